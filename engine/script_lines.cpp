#include "engine/script_lines.h"

#include <string>

#include "engine/table_file.h"
#include "engine/text_helpers.h"

namespace quenloft {

bool IsStatementOnly(std::string_view line) {
    if (line.empty()) {
        return false;
    }
    while (!line.empty()) {
        if (!line.starts_with(kVariableMark)) {
            return false;
        }
        line.remove_prefix(kVariableMark.size());
        const std::size_t end = line.find(kVariableMark);
        if (end == std::string_view::npos) {
            return false;
        }
        line.remove_prefix(end + kVariableMark.size());
    }
    return true;
}

std::uint8_t KindsOf(std::string_view line) {
    struct Keyword {
        std::string_view text;
        LineKind kind;
    };
    static constexpr Keyword kKeywords[] = {{"END:", kEndLine},     {kGotoKeyword, kGotoLine},
                                            {kIfKeyword, kIfLine},  {"ELSE", kElseLine},
                                            {"END IF", kEndIfLine}, {"LABEL:", kLabelLine}};
    unsigned kinds = IsStatementOnly(line) ? kStatementOnlyLine : kOutputLine;
    const std::string_view trimmed = Trimmed(line);
    for (const Keyword& keyword : kKeywords) {
        kinds |= trimmed.starts_with(keyword.text) ? keyword.kind : kOutputLine;
    }
    return static_cast<std::uint8_t>(kinds);
}

ScriptIndex& ScriptIndexOf(const TextFile& script) {
    std::unique_ptr<ScriptIndex>& index = NotesOf(script).script;
    if (!index) {
        index = std::make_unique<ScriptIndex>();
        index->lineKinds.reserve(script.LineCount());
        for (std::size_t i = 0; i < script.LineCount(); ++i) {
            index->lineKinds.push_back(KindsOf(script.Line(i)));
        }
    }
    return *index;
}

std::size_t FindLabel(const TextFile& script, std::string_view label) {
    ScriptIndex& index = ScriptIndexOf(script);
    const auto known = index.labelLines.find(label);
    if (known != index.labelLines.end()) {
        return known->second;
    }
    const std::string wanted = "LABEL:" + std::string(label);
    std::size_t line = 0;
    while (line < script.LineCount() && !StartsWithTrimmed(script.Line(line), wanted)) {
        ++line;
    }
    index.labelLines.emplace(label, line);
    return line;
}

}  // namespace quenloft
