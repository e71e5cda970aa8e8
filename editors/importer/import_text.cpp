#include "editors/importer/import_text.h"

#include "engine/table_file.h"
#include "engine/text_helpers.h"
#include "platform/letter_case.h"

namespace quenloft {
namespace {

void AddEntry(std::string& body, std::size_t number, std::string_view text) {
    body += kLineBreak;
    body += std::to_string(number);
    body += kEntrySeparator;
    body += text;
}

}  // namespace

std::string TableOfLines(std::string_view title, std::string_view text) {
    std::size_t count = 0;
    std::string body;
    std::size_t end = text.find(kLineBreak);
    const bool isOnly = end == std::string_view::npos;
    while (end != std::string_view::npos) {
        AddEntry(body, ++count, text.substr(0, end));
        text.remove_prefix(end + kLineBreak.size());
        end = text.find(kLineBreak);
    }
    if (!IsDroppedAtEnd(text, isOnly)) {
        AddEntry(body, count + 1, text);
    }
    std::string file(title);
    file += kHeaderSeparator;
    file += std::to_string(count + 1);
    file += kLineBreak;
    return file + body;
}

bool IsDroppedAtEnd(std::string_view line, bool isOnly) {
    if (isOnly || line.empty()) {
        return true;
    }
    TakeLetter(line);
    return line.empty();
}

}  // namespace quenloft
