// Any file through the text editor: unchanged text gives the same bytes, changed text comes back.
#include "editors/shared/text_form.h"
#include "tests/fuzz/fuzz.h"

void quenloft::Fuzz(std::string_view input) {
    const std::string text = TextOfBytes(input);
    FUZZ_CHECK(BytesOfText(text, input, DetectEncoding(input)) == input);
    const std::size_t middle = text.find('\n', text.size() / 2);
    const std::string changed =
        text.substr(0, middle) + "\n\xC2\xA7new" + text.substr(std::min(middle, text.size()));
    for (const TextEncoding encoding : {TextEncoding::Windows1252, TextEncoding::Utf8}) {
        if (const auto bytes = BytesOfText(changed, input, encoding)) {
            FUZZ_CHECK(TextOfBytes(*bytes) == changed);
        }
    }
    FUZZ_CHECK(TextOfBytes(Utf8BytesOfText(changed, input)) == changed);
}
