// A profile: what is written is read back, and nothing else changes.
#include "platform/linux/profile_text.h"
#include "platform/text_encoding.h"
#include "tests/fuzz/fuzz.h"

void quenloft::Fuzz(std::string_view input) {
    FindProfileValue(input, "Settings", "Libpath");
    ListProfileKeys(input, "Values");
    // The first two lines are the key and the value, the rest is the file.
    const std::size_t first = input.find('\n');
    const std::size_t second = first == input.npos ? first : input.find('\n', first + 1);
    if (second == input.npos) {
        return;
    }
    const std::string key = DecodeText(input.substr(0, first));
    const std::string value = DecodeText(input.substr(first + 1, second - first - 1));
    const std::string_view file = input.substr(second + 1);
    const auto changed = ReplaceProfileValue(file, "Font", key, value);
    if (!changed) {
        return;
    }
    const auto read = FindProfileValue(*changed, "Font", key);
    FUZZ_CHECK(read.has_value());
    FUZZ_CHECK(ReplaceProfileValue(*changed, "Font", key, value) == changed);
    FUZZ_CHECK(FindProfileValue(*changed, "Other", "Key") ==
               FindProfileValue(file, "Other", "Key"));
}
