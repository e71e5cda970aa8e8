// Expanding an entry's text: dice, variables, line breaks, references, and the duplicate rule.
#include <array>

#include "engine/expression.h"
#include "engine/failure.h"
#include "engine/interpreter.h"
#include "engine/limits.h"
#include "engine/numbers.h"
#include "engine/pending_text.h"
#include "engine/table_file.h"
#include "engine/text_helpers.h"

namespace quenloft {

namespace {

constexpr std::string_view kDiceMark = "@";
constexpr std::string_view kReferenceMark = "#";
constexpr char kLineBreakMark = '|';

// The marks by their names: a mark in a diagnostic would be expanded by the level above.
constexpr std::string_view kDiceMarkName = "dice mark (at sign)";
constexpr std::string_view kVariableMarkName = "variable mark (two question marks)";
constexpr std::string_view kReferenceMarkName = "reference mark (number sign)";

Failure NoPartner(std::string_view nameOfMark) {
    return {FailureNumber::InvalidArgument,
            "A " + std::string(nameOfMark) + " has no partner in the text"};
}

constexpr std::array<bool, 256> kFirstOfMark = [] {
    std::array<bool, 256> first{};
    for (const unsigned char c : std::string_view("@?|#")) {
        first[c] = true;
    }
    return first;
}();

/// Most entries that are rolled hold no mark: one look is cheaper than one for each kind.
bool HoldsMarks(std::string_view text) {
    for (const char c : text) {
        if (kFirstOfMark[static_cast<unsigned char>(c)]) {
            return true;
        }
    }
    return false;
}

void ReplaceLineBreakMarks(std::string& text) {
    std::size_t mark = text.find(kLineBreakMark);
    if (mark == std::string::npos) {
        return;
    }
    std::string result;
    std::size_t done = 0;
    for (; mark != std::string::npos; mark = text.find(kLineBreakMark, done)) {
        result.append(text, done, mark - done).append(kLineBreak);
        done = mark + 1;
    }
    text = result.append(text, done);
}

}  // namespace

std::string Interpreter::ExpandEntry(std::string_view text) {
    if (!TakeTurn()) {
        return std::string(kAbortedText);
    }
    CheckOutputSize(text.size());
    std::string expanded(text);
    if (!HoldsMarks(text)) {
        return expanded;
    }
    ReplaceMarks(expanded, kDiceMark, kDiceMarkName, [&](std::string_view notation) {
        std::string dice(notation);
        SubstituteVariables(dice);
        std::string total = dice_.RollDice(dice);
        return abortFlag_ ? std::string(kAbortedText) : total;  // A row of dice may have been cut.
    });
    SubstituteVariables(expanded);
    ReplaceLineBreakMarks(expanded);
    RollCounts::Referrer referrer(text);
    ReplaceMarks(expanded, kReferenceMark, kReferenceMarkName, [&](std::string_view reference) {
        Reference parsed;
        if (const std::size_t forced = reference.find('='); forced != std::string_view::npos) {
            parsed.forcedRoll = NumericValue(reference.substr(forced + 1));
            reference = reference.substr(0, forced);
        }
        if (const std::size_t repeat = reference.find('^'); repeat != std::string_view::npos) {
            const std::size_t joined = reference.find("^_");
            parsed.joined = joined != std::string_view::npos;
            parsed.count = NumericValue(reference.substr(parsed.joined ? joined + 2 : repeat + 1));
            reference = reference.substr(0, repeat);
        }
        parsed.file = reference;
        return ExpandReference(parsed, referrer, /*tablesOnly=*/false);
    });
    return expanded;
}

void Interpreter::SubstituteVariables(std::string& text) {
    ReplaceMarks(text, kVariableMark, kVariableMarkName, [&](std::string_view statement) {
        return EvaluateVariableStatement(statement).TextForm();
    });
}

std::string Interpreter::ExpandTableReferences(std::string_view text) {
    std::string expanded(text);
    RollCounts::Referrer referrer(text);
    ReplaceMarks(expanded, kReferenceMark, kReferenceMarkName, [&](std::string_view reference) {
        Reference parsed;
        if (const std::size_t repeat = reference.find('^'); repeat != std::string_view::npos) {
            parsed.count = NumericValue(reference.substr(repeat + 1));
            reference = reference.substr(0, repeat);
        }
        parsed.file = reference;
        return ExpandReference(parsed, referrer, /*tablesOnly=*/true);
    });
    return expanded;
}

/// Replaces what stands between two marks, first pair first. A result is searched again, since it
/// may hold the same mark; what stands before it holds none any more.
template <typename Replace>
void Interpreter::ReplaceMarks(std::string& text, std::string_view mark,
                               std::string_view nameOfMark, Replace replace) {
    std::size_t begin = text.find(mark);
    if (begin == std::string::npos) {
        return;
    }
    std::string done;
    PendingText pending(std::move(text));
    for (; begin != std::string_view::npos; begin = pending.View().find(mark)) {
        done.append(pending.View().substr(0, begin));
        if (!TakeTurn()) {
            AppendAbortedOnce(done);
            text = std::move(done);
            return;
        }
        pending.Drop(begin + mark.size());
        const std::size_t end = pending.View().find(mark);
        if (end == std::string_view::npos) {
            throw NoPartner(nameOfMark);
        }
        const std::string result = replace(pending.View().substr(0, end));
        pending.Drop(end + mark.size());
        pending.PutBack(result);
        CheckOutputSize(done.size() + pending.Size());
    }
    text = std::move(done.append(pending.View()));
}

std::string Interpreter::ExpandReference(const Reference& reference, RollCounts::Referrer& referrer,
                                         bool tablesOnly) {
    const std::shared_ptr<const ReferenceTarget> target = targets_.Find(reference.file);
    std::string result;
    for (std::int32_t i = 0; i < reference.count && !abortFlag_; ++i) {
        std::string item = i > 0 && !TakeTurn()
                               ? std::string(kAbortedText)
                               : RollAccepted(*target, reference.forcedRoll, referrer, tablesOnly);
        if (i == 0) {
            result = std::move(item);
        } else {
            result.append(reference.joined ? std::string_view{} : kLineBreak).append(item);
        }
        CheckOutputSize(result.size());
    }
    return result;
}

std::string Interpreter::RollAccepted(const ReferenceTarget& target, std::int32_t forcedRoll,
                                      RollCounts::Referrer& referrer, bool tablesOnly) {
    for (;;) {
        std::string item =
            tablesOnly ? RollTarget(target, 0) : GetReferenceData(target, forcedRoll);
        if (AcceptRoll(referrer, item)) {
            return item;
        }
        if (!TakeTurn()) {
            return std::string(kAbortedText);
        }
    }
}

bool Interpreter::AcceptRoll(RollCounts::Referrer& referrer, std::string_view result) {
    constexpr std::int32_t kUsualLimit = 2;
    std::int64_t* count = rollCounts_.FindOrStart(referrer, result);
    if (count == nullptr) {
        return true;
    }
    const Value* accepted = variables_.Find("DUPLICATESACCEPTED");
    const std::int32_t limit = accepted ? NumericValue(accepted->TextForm()) : kUsualLimit;
    if (limit != 0 && (*count >= limit || IsExpression(result, variables_))) {
        *count = 1;
        return true;
    }
    ++*count;
    return false;
}

}  // namespace quenloft
