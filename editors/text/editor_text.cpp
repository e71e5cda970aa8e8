#include "editors/text/editor_text.h"

#include "engine/text_helpers.h"

namespace quenloft {

int EditorFilterIndex(std::string_view path) {
    if (path.empty() || IsScriptPath(path)) {
        return 1;
    }
    return IsTablePath(path) ? 2 : 3;
}

std::string SaveBeforeNewQuestion(std::string_view path) {
    return "Do You want to save file " + std::string(path) + " ?";
}

std::string DeleteFileQuestion(std::string_view path) {
    return "Do You really want to delete " + std::string(path) + " ?";
}

std::string ReadFailure(std::string_view path, std::string_view cause) {
    std::string text("Errors in table ");
    text.append(kLineBreak).append(path).append(kLineBreak).append(cause).append(".");
    return text;
}

std::string EditorExportText(std::string_view text, std::string_view fileName,
                             std::string_view program, std::string_view now) {
    std::string result(text);
    result.append(kLineBreak).append(kLineBreak);
    result.append("Filename : ").append(fileName).append(kLineBreak);
    result.append("Printed by ").append(program).append(" ").append(now);
    return result;
}

std::string PlainReference(std::string_view reference) {
    std::string plain;
    for (std::size_t i = 0; i < reference.size(); ++i) {
        const bool isEscaped =
            reference.substr(i).starts_with("{^}") || reference.substr(i).starts_with("{~}");
        i += isEscaped ? 1 : 0;
        plain += reference[i];
        i += isEscaped ? 1 : 0;
    }
    return plain;
}

}  // namespace quenloft
