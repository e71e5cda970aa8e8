// Any file through the table importer: each of its lines is the entry of its number.
#include <vector>

#include "editors/importer/import_text.h"
#include "editors/shared/text_form.h"
#include "engine/text_helpers.h"
#include "tests/fuzz/fuzz.h"

namespace {

std::vector<std::string> Lines(std::string_view text, std::string_view lineBreak) {
    std::vector<std::string> lines;
    for (std::size_t end = text.find(lineBreak); end != std::string_view::npos;
         end = text.find(lineBreak)) {
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end + lineBreak.size());
    }
    lines.emplace_back(text);
    return lines;
}

}  // namespace

void quenloft::Fuzz(std::string_view input) {
    const std::vector<std::string> lines = Lines(TextOfBytes(input), "\n");
    std::string text = lines[0];
    for (std::size_t i = 1; i < lines.size(); ++i) {
        text += std::string(kLineBreak) + lines[i];
    }
    const std::vector<std::string> file = Lines(TableOfLines("T", text), kLineBreak);
    FUZZ_CHECK(file[0] == "T\xC2\xA4" + std::to_string(lines.size()));
    FUZZ_CHECK(file[1].empty());
    // The last line becomes no entry where it is too short.
    const std::size_t entries = file.size() - 2;
    FUZZ_CHECK(entries == lines.size() || entries == lines.size() - 1);
    for (std::size_t i = 0; i < entries; ++i) {
        FUZZ_CHECK(file[i + 2] == std::to_string(i + 1) + "\xC2\xA7" + lines[i]);
    }
}
