#include "generators/export_text.h"

#include "engine/text_helpers.h"

namespace quenloft {
namespace {

void AppendFooter(std::string& text, std::string_view path, std::string_view program,
                  std::string_view now) {
    text.append("Filename : ").append(path).append(kLineBreak);
    text.append("Printed by ").append(program).append(" ").append(now);
}

}  // namespace

std::string TableExportText(std::string_view title, std::string_view result, std::string_view path,
                            std::string_view program, std::string_view now) {
    std::string text("Table : ");
    text.append(title).append(kLineBreak);
    text.append("Result :").append(kLineBreak);
    text.append(result).append(kLineBreak).append(kLineBreak);
    AppendFooter(text, path, program, now);
    return text;
}

std::string ScriptExportText(std::string_view output, std::string_view fileName,
                             std::string_view program, std::string_view now) {
    std::string text(output);
    text.append(kLineBreak).append(kLineBreak);
    AppendFooter(text, fileName, program, now);
    return text;
}

}  // namespace quenloft
