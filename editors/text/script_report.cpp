#include "editors/text/script_report.h"

#include <charconv>

#include "engine/text_helpers.h"

namespace quenloft {
namespace {

constexpr std::string_view kBegin = "Errors in script \r\n";
constexpr std::string_view kLine = "Line :";
constexpr std::string_view kDescription = "Error description :";

std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = text.find(kLineBreak);
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == text.npos ? text.size() : end + kLineBreak.size());
    return line;
}

/// What stands behind `caption`; empty where the line begins otherwise.
std::string_view TakeBehind(std::string_view caption, std::string_view& text) {
    const std::string_view line = TakeLine(text);
    return line.starts_with(caption) ? line.substr(caption.size()) : std::string_view();
}

}  // namespace

std::vector<ScriptReport> FindScriptReports(std::string_view output) {
    std::vector<ScriptReport> reports;
    for (std::size_t begin = output.find(kBegin); begin != output.npos;
         begin = output.find(kBegin)) {
        output.remove_prefix(begin + kBegin.size());
        std::string_view rest = output;
        ScriptReport report;
        report.path = TakeLine(rest);
        const std::string_view line = TakeBehind(kLine, rest);
        const auto number = std::from_chars(line.data(), line.data() + line.size(), report.line);
        report.description = TakeBehind(kDescription, rest);
        if (number.ec == std::errc() && report.line > 0) {
            reports.push_back(std::move(report));
        }
    }
    return reports;
}

}  // namespace quenloft
