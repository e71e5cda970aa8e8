#include "author/rtf_reader.h"

#include <algorithm>
#include <bitset>
#include <iterator>
#include <memory>
#include <utility>

#include "author/code_page.h"
#include "author/rich_text_builder.h"
#include "author/rtf_keywords.h"
#include "author/rtf_numbering.h"
#include "author/rtf_tables.h"
#include "author/rtf_tokenizer.h"
#include "platform/letter_case.h"

namespace quenloft {
namespace {

constexpr std::string_view kSignature = "{\\rtf";
// Groups further in share the state of this one: no document nests so deep.
constexpr std::size_t kMostStates = 1000;
constexpr std::size_t kMostTabStops = 64;
constexpr char32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

bool IsAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string_view WithoutMarkAndBlanks(std::string_view bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        bytes.remove_prefix(3);
    }
    return bytes.substr(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
}

int Twips(int number) { return std::clamp(number, -kLargestTwips, kLargestTwips); }

/// One pass over the tokens. No function calls itself: the groups are on a stack of its own.
class Reader {
  public:
    explicit Reader(std::string_view bytes) : tokens_(bytes) { states_.emplace_back(); }
    RtfContent Read();

    // One for each alternative of RtfMeaning.
    void operator()(std::monostate /*unknown*/) const {}
    void operator()(RtfCharFlag flag) { Chars().*flag.member = IsOn(); }
    void operator()(RtfCharNumber number) { Chars().*number.member = token_.number; }
    void operator()(RtfCapitals which) {
        Chars().capitals = IsOn() ? which.capitals : Capitals::AsTyped;
    }
    void operator()(RtfPosition which) {
        Chars().position = IsOn() ? which.position : ScriptPosition::Normal;
    }
    void operator()(RtfParagraphNumber number) {
        ParagraphOf().format.*number.member = Twips(token_.number);
    }
    void operator()(RtfAlignment which) { ParagraphOf().format.alignment = which.alignment; }
    void operator()(RtfCharacter character) { AddLetter(character.letter); }
    void operator()(RtfGroup group) { EnterGroup(group.destination); }
    void operator()(RtfSkippedGroup group);
    void operator()(RtfAction action) { Do(action); }

  private:
    // Tokens.
    void Handle();
    void HandleSkipped();
    void StartGroup();
    void EndGroup();
    void HandleWord();
    void HandleSymbol(char symbol);
    void HandleText(std::string_view text);
    void HandleHex();
    bool IsFallback(const RtfMeaning& meaning);
    void Do(RtfAction action);
    void DoWithParagraph(RtfAction action);

    // Groups.
    std::size_t Depth() const { return states_.size() + unstackedGroups_; }
    void EnterGroup(RtfDestination destination);
    void SkipGroup() { skipDepth_ = Depth(); }
    void LeaveDestination(RtfDestination destination);

    // Text.
    void AddUnicode(int number);
    void AddLetter(char32_t letter);
    void AddBytes();
    void AddSurrogateAlone();
    void AddText(std::string_view utf8);
    void AddToDocument(std::string_view utf8);
    void AddPendingCells();
    void EndParagraph();
    void EndRow();
    /// The last paragraph of a file needs no end of its own.
    void EndLastParagraph();

    // What the state amounts to.
    RtfState& State() { return states_.back(); }
    RtfCharState& Chars() { return State().chars; }
    RtfParagraphState& ParagraphOf() { return State().paragraph; }
    bool IsOn() const { return !token_.hasNumber || token_.number != 0; }
    int CurrentCodePage();
    const CharFormat& CurrentFormat();
    void Lose(Loss loss) { losses_.set(static_cast<std::size_t>(loss)); }

    RtfTokenizer tokens_;
    RtfToken token_;
    std::vector<RtfState> states_;
    std::size_t unstackedGroups_ = 0;
    std::size_t skipDepth_ = 0;  // Passing over groups at this depth and below; 0 for none.
    // Only behind the start of a group does a word say what the whole group is; behind a "\*" there
    // one that is not known says that the group is to be passed over.
    enum class Place { Inside, GroupStart, AfterStar };
    Place place_ = Place::Inside;      // Of this token.
    Place nextPlace_ = Place::Inside;  // Of the one behind it.
    int fallbackLeft_ = 0;             // What readers without Unicode would show instead of a "\u".
    char32_t highSurrogate_ = 0;
    std::string bytes_;  // Not yet decoded: a character may be of several.
    std::unique_ptr<CodePage> codePage_ = std::make_unique<CodePage>(kWindows1252);
    int codePageOfFile_ = kWindows1252;
    int defaultFont_ = 0;

    RtfFontTable fonts_;
    RtfColorTable colors_;
    RtfNumbering numbering_;

    RichTextBuilder document_;
    RtfCharState formatOf_;  // That format_ was made from.
    CharFormat format_;
    bool formatIsMade_ = false;
    int pendingCells_ = 0;
    bool breakPage_ = false;
    std::bitset<kLossCount> losses_;
};

RtfContent Reader::Read() {
    while (!document_.IsFull() && (token_ = tokens_.Next()).kind != RtfToken::Kind::End) {
        Handle();
    }
    AddBytes();
    EndLastParagraph();
    if (document_.IsFull()) {
        Lose(Loss::RestOfText);
    }
    RtfContent content{document_.Take(), {}};
    for (std::size_t i = 0; i < losses_.size(); ++i) {
        if (losses_[i]) {
            content.losses.push_back(static_cast<Loss>(i));
        }
    }
    return content;
}

void Reader::operator()(RtfSkippedGroup group) {
    if (group.loss) {
        Lose(*group.loss);
    }
    SkipGroup();
}

// --- Tokens ---

void Reader::Handle() {
    if (skipDepth_ > 0) {
        HandleSkipped();
        return;
    }
    place_ = std::exchange(nextPlace_, Place::Inside);
    switch (token_.kind) {
        case RtfToken::Kind::GroupStart:
            StartGroup();
            break;
        case RtfToken::Kind::GroupEnd:
            EndGroup();
            break;
        case RtfToken::Kind::Word:
            HandleWord();
            break;
        case RtfToken::Kind::Symbol:
            HandleSymbol(token_.text.front());
            break;
        case RtfToken::Kind::Hex:
            HandleHex();
            break;
        case RtfToken::Kind::Text:
            HandleText(token_.text);
            break;
        case RtfToken::Kind::End:
            break;
    }
}

void Reader::HandleSkipped() {
    if (token_.kind == RtfToken::Kind::GroupStart) {
        ++unstackedGroups_;
    } else if (token_.kind == RtfToken::Kind::GroupEnd) {
        if (Depth() == skipDepth_) {
            skipDepth_ = 0;
            EndGroup();
        } else {
            --unstackedGroups_;
        }
    }
}

void Reader::StartGroup() {
    AddBytes();
    fallbackLeft_ = 0;
    nextPlace_ = Place::GroupStart;
    if (states_.size() < kMostStates) {
        states_.push_back(State());
    } else {
        ++unstackedGroups_;
    }
}

void Reader::EndGroup() {
    AddBytes();
    fallbackLeft_ = 0;
    if (unstackedGroups_ > 0) {
        --unstackedGroups_;
    } else if (states_.size() > 1) {
        if (states_.size() == 2) {
            EndLastParagraph();
        }
        const RtfDestination destination = State().destination;
        states_.pop_back();
        LeaveDestination(destination);
    }
}

void Reader::HandleWord() {
    AddBytes();
    const RtfMeaning meaning = MeaningOf(token_.text);
    const bool opensGroup = std::holds_alternative<RtfGroup>(meaning) ||
                            std::holds_alternative<RtfSkippedGroup>(meaning);
    if (place_ == Place::AfterStar && !opensGroup) {
        SkipGroup();
        return;
    }
    if (IsFallback(meaning) || (place_ == Place::Inside && opensGroup)) {
        return;
    }
    switch (State().destination) {
        case RtfDestination::Fonts:
            fonts_.ReadWord(token_);
            break;
        case RtfDestination::Colors:
            colors_.ReadWord(token_);
            return;
        case RtfDestination::Lists:
            numbering_.Table().ReadWord(token_);
            return;
        case RtfDestination::Numbering:
            numbering_.ReadWord(token_);
            break;
        case RtfDestination::Text:
        case RtfDestination::Label:
            break;
    }
    std::visit(*this, meaning);
}

void Reader::HandleSymbol(char symbol) {
    if (symbol == '*') {
        if (place_ == Place::GroupStart) {
            nextPlace_ = Place::AfterStar;
        }
        return;
    }
    if (fallbackLeft_ > 0) {
        --fallbackLeft_;
        return;
    }
    switch (symbol) {
        case '\\':
        case '{':
        case '}':
            HandleText(token_.text);
            break;
        case '~':
            AddLetter(0x00A0);
            break;
        case '-':
            AddLetter(0x00AD);
            break;
        case '_':
            AddLetter(0x2011);
            break;
        case '\t':
            AddLetter('\t');
            break;
        default:
            break;
    }
}

void Reader::HandleText(std::string_view text) {
    const std::size_t skipped = std::min(text.size(), static_cast<std::size_t>(fallbackLeft_));
    fallbackLeft_ -= static_cast<int>(skipped);
    bytes_ += text.substr(skipped);
}

void Reader::HandleHex() {
    const auto byte = static_cast<char>(token_.byte);
    HandleText({&byte, 1});
}

// A character may be spelled as a word; any other word says that the fallback was left out.
bool Reader::IsFallback(const RtfMeaning& meaning) {
    if (fallbackLeft_ == 0 || !std::holds_alternative<RtfCharacter>(meaning)) {
        fallbackLeft_ = 0;
        return false;
    }
    --fallbackLeft_;
    return true;
}

void Reader::Do(RtfAction action) {
    switch (action) {
        case RtfAction::CodePage:
            codePageOfFile_ = token_.number;
            break;
        case RtfAction::DefaultFont:
            defaultFont_ = token_.number;
            formatIsMade_ = false;
            break;
        case RtfAction::FallbackLength:
            State().fallbackLength = std::max(token_.hasNumber ? token_.number : 1, 0);
            break;
        case RtfAction::Unicode:
            AddUnicode(token_.number);
            break;
        case RtfAction::Plain:
            Chars() = {};
            break;
        case RtfAction::Size:
            Chars().halfPoints = token_.number > 0 ? std::min(token_.number, kLargestHalfPoints)
                                                   : RtfCharState().halfPoints;
            break;
        case RtfAction::NoPosition:
            Chars().position = ScriptPosition::Normal;
            break;
        case RtfAction::NoUnderline:
            Chars().underline = false;
            break;
        default:
            DoWithParagraph(action);
            break;
    }
}

void Reader::DoWithParagraph(RtfAction action) {
    RtfParagraphState& paragraph = ParagraphOf();
    const bool isText = State().destination == RtfDestination::Text;
    switch (action) {
        case RtfAction::ParagraphDefaults:
            paragraph = {};
            break;
        case RtfAction::ParagraphEnd:
            if (isText) {
                EndParagraph();
            }
            break;
        case RtfAction::PageBreak:
            if (isText && !document_.ParagraphIsEmpty()) {
                EndParagraph();
            }
            breakPage_ = isText;
            break;
        case RtfAction::PageBreakBefore:
            paragraph.format.pageBreakBefore = IsOn();
            break;
        case RtfAction::LineHeight:
            paragraph.lineHeight = Twips(token_.number);
            break;
        case RtfAction::LineHeightIsMultiple:
            paragraph.lineHeightIsMultiple = IsOn();
            break;
        case RtfAction::TabStop:
            if (paragraph.format.tabStops.size() < kMostTabStops) {
                paragraph.format.tabStops.push_back(Twips(token_.number));
            }
            break;
        case RtfAction::List:
            paragraph.list = std::max(token_.number, 0);
            break;
        case RtfAction::ListLevel:
            paragraph.format.list.level = std::clamp(token_.number, 0, kListLevels - 1);
            break;
        case RtfAction::RowStart:
            Lose(Loss::TableForm);
            break;
        case RtfAction::CellEnd:
            ++pendingCells_;
            break;
        case RtfAction::RowEnd:
            EndRow();
            break;
        default:
            break;
    }
}

// --- Groups ---

void Reader::EnterGroup(RtfDestination destination) {
    if (unstackedGroups_ > 0) {
        SkipGroup();  // Nothing would say where it ends.
        return;
    }
    State().destination = destination;
    if (destination == RtfDestination::Label) {
        numbering_.BeginLabel();
    } else if (destination == RtfDestination::Numbering) {
        numbering_.BeginGroup(ParagraphOf());
    }
}

void Reader::LeaveDestination(RtfDestination destination) {
    if (destination == RtfDestination::Fonts) {
        fonts_.EndFont();
        formatIsMade_ = false;
    } else if (destination == RtfDestination::Numbering &&
               State().destination != RtfDestination::Numbering) {
        numbering_.EndGroup(ParagraphOf());
    }
}

// --- Text ---

void Reader::AddUnicode(int number) {
    constexpr int kUnits = 0x10000;
    constexpr int kLast = 0x10FFFF;
    const auto unit =
        static_cast<char32_t>(std::clamp(number < 0 ? number + kUnits : number, 0, kLast));
    if (IsLowSurrogate(unit) && highSurrogate_ != 0) {
        const char32_t high = std::exchange(highSurrogate_, 0);
        AddLetter(0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00));
    } else if (IsHighSurrogate(unit)) {
        AddSurrogateAlone();
        highSurrogate_ = unit;
    } else {
        AddLetter(IsLowSurrogate(unit) ? kReplacement : unit);
    }
    fallbackLeft_ = State().fallbackLength;
}

void Reader::AddLetter(char32_t letter) {
    AddBytes();
    std::string utf8;
    AppendLetter(utf8, letter);
    AddText(utf8);
}

void Reader::AddBytes() {
    const std::string bytes = std::exchange(bytes_, {});
    if (bytes.empty()) {
        return;
    }
    if (IsAscii(bytes)) {
        AddText(bytes);
        return;
    }
    const int codePage = CurrentCodePage();
    if (codePage_->Number() != codePage) {
        codePage_ = std::make_unique<CodePage>(codePage);
    }
    AddText(codePage_->Decode(bytes));
}

void Reader::AddSurrogateAlone() {
    if (std::exchange(highSurrogate_, 0) != 0) {
        AddLetter(kReplacement);
    }
}

void Reader::AddText(std::string_view utf8) {
    switch (State().destination) {
        case RtfDestination::Text:
            AddToDocument(utf8);
            break;
        case RtfDestination::Fonts:
            fonts_.ReadText(utf8);
            break;
        case RtfDestination::Colors:
            for (auto count = std::count(utf8.begin(), utf8.end(), ';'); count > 0; --count) {
                colors_.EndColor();
            }
            break;
        case RtfDestination::Label:
            numbering_.AddToLabel(utf8);
            break;
        case RtfDestination::Lists:
        case RtfDestination::Numbering:
            break;
    }
}

void Reader::AddToDocument(std::string_view utf8) {
    AddSurrogateAlone();
    if (Chars().hidden) {
        Lose(Loss::HiddenText);
        return;
    }
    AddPendingCells();
    document_.AddText(utf8, CurrentFormat());
}

void Reader::AddPendingCells() {
    for (; pendingCells_ > 0; --pendingCells_) {
        document_.AddText("\t", CurrentFormat());
    }
}

void Reader::EndParagraph() {
    AddSurrogateAlone();
    AddPendingCells();
    ParagraphFormat format = FormatOf(ParagraphOf());
    format.pageBreakBefore = format.pageBreakBefore || breakPage_;
    format.list = numbering_.EndParagraph(ParagraphOf());
    document_.EndParagraph(CurrentFormat(), format);
    breakPage_ = false;
}

void Reader::EndRow() {
    pendingCells_ = std::max(pendingCells_ - 1, 0);  // The last cell needs no tab behind it.
    EndParagraph();
}

void Reader::EndLastParagraph() {
    AddSurrogateAlone();
    if (!document_.ParagraphIsEmpty()) {
        EndParagraph();
    }
}

// --- What the state amounts to ---

int Reader::CurrentCodePage() {
    int codePage = 0;
    if (State().destination == RtfDestination::Fonts) {
        codePage = fonts_.CurrentCodePage();
    } else {
        const int font = Chars().font;
        codePage = fonts_.CodePageOf(font == RtfCharState::kDefaultFont ? defaultFont_ : font);
    }
    return codePage > 0 ? codePage : codePageOfFile_;
}

const CharFormat& Reader::CurrentFormat() {
    if (!formatIsMade_ || Chars() != formatOf_) {
        formatOf_ = Chars();
        format_ = FormatOf(formatOf_, defaultFont_, fonts_, colors_);
        formatIsMade_ = true;
    }
    return format_;
}

}  // namespace

bool IsRtf(std::string_view bytes) { return WithoutMarkAndBlanks(bytes).starts_with(kSignature); }

RtfContent ReadRtf(std::string_view bytes) { return Reader(WithoutMarkAndBlanks(bytes)).Read(); }

}  // namespace quenloft
