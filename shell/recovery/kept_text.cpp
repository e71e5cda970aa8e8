#include "shell/recovery/kept_text.h"

#include <charconv>
#include <initializer_list>

#include "platform/fingerprint.h"

namespace quenloft {
namespace {

// Raised when the fields change: an older program then sets the file aside.
constexpr std::string_view kMagic = "Quenloft unsaved text 1\n";

template <typename Number>
bool ReadNumber(std::string_view digits, Number& number) {
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() && end == digits.data() + digits.size();
}

// A field is its length, ":", its bytes and a line feed: a path may hold any character.
void AppendField(std::string& bytes, std::string_view field) {
    bytes.append(std::to_string(field.size())).append(":").append(field).append("\n");
}

std::optional<std::string_view> TakeField(std::string_view& bytes) {
    const std::size_t colon = bytes.find(':');
    std::size_t size = 0;
    if (colon == bytes.npos || !ReadNumber(bytes.substr(0, colon), size)) {
        return std::nullopt;
    }
    bytes.remove_prefix(colon + 1);
    if (bytes.size() <= size || bytes[size] != '\n') {
        return std::nullopt;
    }
    const std::string_view field = bytes.substr(0, size);
    bytes.remove_prefix(size + 1);
    return field;
}

}  // namespace

std::string BytesOfKept(const KeptText& kept) {
    std::string bytes(kMagic);
    for (const std::string& field : {kept.form, kept.path, kept.base, std::to_string(kept.when)}) {
        AppendField(bytes, field);
    }
    AppendField(bytes, kept.text);
    AppendField(bytes, Fingerprint(bytes));
    return bytes;
}

std::optional<KeptText> KeptOfBytes(std::string_view bytes) {
    if (!bytes.starts_with(kMagic)) {
        return std::nullopt;
    }
    std::string_view rest = bytes.substr(kMagic.size());
    KeptText kept;
    std::string when;
    for (std::string* field : {&kept.form, &kept.path, &kept.base, &when, &kept.text}) {
        const auto read = TakeField(rest);
        if (!read) {
            return std::nullopt;
        }
        *field = *read;
    }
    const std::string_view checked = bytes.substr(0, bytes.size() - rest.size());
    const auto fingerprint = TakeField(rest);
    const bool isWhole = fingerprint && *fingerprint == Fingerprint(checked) && rest.empty();
    return isWhole && ReadNumber(when, kept.when) ? std::optional(std::move(kept)) : std::nullopt;
}

}  // namespace quenloft
