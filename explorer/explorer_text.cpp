#include "explorer/explorer_text.h"

#include "engine/text_helpers.h"

namespace quenloft {

std::string ExportText(std::string_view output, std::string_view file, std::string_view program,
                       std::string_view date) {
    std::string text(output);
    text.append(kLineBreak).append(kLineBreak);
    text.append("Filename : ").append(file).append(kLineBreak);
    return text.append("Printed by ").append(program).append(" ").append(date);
}

std::string DeleteQuestion(std::string_view label, std::string_view nativePath) {
    return std::string("Do You really want to delete ")
        .append(label)
        .append(" (")
        .append(nativePath)
        .append(")?");
}

std::string MissingLibraryText(std::string_view nativePath, std::string_view reason) {
    std::string text("The library folder ");
    text.append(nativePath).append(" cannot be shown: ").append(reason).append(".");
    text.append(kLineBreak).append(kLineBreak);
    return text.append(
        "Choose the folder of your tables under File, Settings, Library Path; then click Refresh.");
}

}  // namespace quenloft
