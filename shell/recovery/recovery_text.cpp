#include "shell/recovery/recovery_text.h"

#include <algorithm>

#include "engine/text_helpers.h"
#include "platform/fingerprint.h"
#include "shell/form_names.h"
#include "shell/recovery/line_difference.h"
#include "shell/recovery/readable_text.h"

namespace quenloft {
namespace {

struct Kind {
    const char* form;
    std::string_view name;
};

constexpr Kind kKinds[] = {
    {form::kEditTable, "Table"},
    {form::kEdit, "Text"},
    {form::kImportTable, "Lines to import"},
    {form::kAuthor, "Notes"},
};

std::string_view MarkOf(DifferenceLine::Kind kind) {
    switch (kind) {
        case DifferenceLine::Kind::Removed:
            return "- ";
        case DifferenceLine::Kind::Added:
            return "+ ";
        case DifferenceLine::Kind::LeftOut:
            return "...";
        case DifferenceLine::Kind::Both:
            break;
    }
    return "  ";
}

std::string Heading(const KeptText& kept, const std::optional<std::string>& bytes) {
    if (kept.path.empty()) {
        return "+ in the unsaved text, which has no file";
    }
    return bytes ? "- only in the file " + kept.path + "\r\n+ only in the unsaved text"
                 : "+ in the unsaved text; " + kept.path + " is not there or cannot be read";
}

}  // namespace

std::string DocumentName(const KeptText& kept) {
    return kept.path.empty() ? "(never saved)" : kept.path.substr(kept.path.rfind('/') + 1);
}

std::string DocumentFolder(const KeptText& kept) {
    const std::size_t slash = kept.path.rfind('/');
    return slash == kept.path.npos ? "" : kept.path.substr(0, slash == 0 ? 1 : slash);
}

std::string_view KindName(const KeptText& kept) {
    for (const Kind& kind : kKinds) {
        if (kept.form == kind.form) {
            return kind.name;
        }
    }
    return "Unknown";
}

std::string Beginning(const KeptText& kept) {
    constexpr std::size_t kMostLetters = 40;
    const std::string text = ReadableKept(kept);
    const std::size_t first = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    return ShownTitle(std::string_view(text).substr(first, text.find('\n', first) - first),
                      kMostLetters);
}

std::string_view StateOfFile(const KeptText& kept, const std::optional<std::string>& bytes) {
    if (kept.path.empty()) {
        return "";
    }
    if (!bytes) {
        return "not there";
    }
    return Fingerprint(*bytes) == kept.base ? "unchanged" : "changed";
}

std::string ComparisonText(const KeptText& kept, const std::optional<std::string>& bytes) {
    const std::string former = bytes ? ReadableFile(kept.form, *bytes) : "";
    const std::string latter = ReadableKept(kept);
    const auto lines = DifferenceOf(former, latter);
    if (lines.empty()) {
        return "The unsaved text says the same as the file " + kept.path + ".";
    }
    std::string text = Heading(kept, bytes) + std::string(kLineBreak);
    for (const DifferenceLine& line : lines) {
        text.append(kLineBreak).append(MarkOf(line.kind)).append(line.text);
    }
    return text;
}

std::string DiscardQuestion(const KeptText& kept, const std::string& when) {
    return "Do You want to discard the unsaved text of " +
           (kept.path.empty() ? "a document that was never saved" : kept.path) + ", kept " + when +
           "? It is nowhere else.";
}

}  // namespace quenloft
