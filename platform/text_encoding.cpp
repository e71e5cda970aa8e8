#include "platform/text_encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "platform/letter_case.h"

namespace quenloft {

namespace {

/// The characters of the bytes 80 to 9F; all other bytes are their own character.
constexpr std::array<char32_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// How many bytes at the beginning are ASCII. Nearly all text is: eight bytes at a time.
std::size_t AsciiLength(std::string_view bytes) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::size_t length = 0;
    for (std::uint64_t eight = 0; length + sizeof eight <= bytes.size(); length += sizeof eight) {
        std::memcpy(&eight, bytes.data() + length, sizeof eight);
        if (eight & kHighBits) {
            break;
        }
    }
    while (length < bytes.size() && static_cast<unsigned char>(bytes[length]) < 0x80) {
        ++length;
    }
    return length;
}

/// Takes the ASCII at the beginning off `bytes`.
std::string_view TakeAscii(std::string_view& bytes) {
    const std::string_view ascii = bytes.substr(0, AsciiLength(bytes));
    bytes.remove_prefix(ascii.size());
    return ascii;
}

bool IsAscii(std::string_view bytes) { return AsciiLength(bytes) == bytes.size(); }

/// TakeLetter marks a byte that belongs to no character with a low surrogate.
bool IsBroken(char32_t letter) { return letter >= 0xDC80 && letter <= 0xDCFF; }

std::optional<char> ByteOf(char32_t letter) {
    if (letter < 0x80 || (letter >= 0xA0 && letter <= 0xFF)) {
        return static_cast<char>(letter);
    }
    const auto* place = std::find(kUpperControls.begin(), kUpperControls.end(), letter);
    if (place == kUpperControls.end()) {
        return std::nullopt;
    }
    return static_cast<char>(0x80 + (place - kUpperControls.begin()));
}

}  // namespace

bool IsUtf8(std::string_view bytes) {
    while (TakeAscii(bytes), !bytes.empty()) {
        if (IsBroken(TakeLetter(bytes))) {
            return false;
        }
    }
    return true;
}

std::string FromWindows1252(std::string_view bytes) {
    std::string result;
    result.reserve(bytes.size() + bytes.size() / 8);
    while (result += TakeAscii(bytes), !bytes.empty()) {
        const auto byte = static_cast<unsigned char>(bytes.front());
        AppendLetter(result, byte <= 0x9F ? kUpperControls[byte - 0x80U] : char32_t{byte});
        bytes.remove_prefix(1);
    }
    return result;
}

std::optional<std::string> ToWindows1252(std::string_view utf8) {
    std::string result;
    result.reserve(utf8.size());
    while (result += TakeAscii(utf8), !utf8.empty()) {
        const std::optional<char> byte = ByteOf(TakeLetter(utf8));
        if (!byte) {
            return std::nullopt;
        }
        result += *byte;
    }
    return result;
}

std::string DecodeText(std::string_view bytes) {
    return IsUtf8(bytes) ? std::string(bytes) : FromWindows1252(bytes);
}

TextEncoding DetectEncoding(std::string_view bytes) {
    const bool isUtf8 = bytes.starts_with(kByteOrderMark) || (!IsAscii(bytes) && IsUtf8(bytes));
    return isUtf8 ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

}  // namespace quenloft
