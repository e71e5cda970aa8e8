#include "platform/letter_case.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace quenloft {

namespace {

struct CaseRange {
    char32_t first;
    char32_t last;
    char32_t step;
    std::int32_t distance;
};

#include "platform/letter_case_tables.inc"

constexpr char32_t kBrokenByte = 0xDC00;

template <std::size_t N>
char32_t Map(const CaseRange (&ranges)[N], char32_t letter) {
    const auto* range =
        std::lower_bound(std::begin(ranges), std::end(ranges), letter,
                         [](const CaseRange& r, char32_t value) { return r.last < value; });
    if (range == std::end(ranges) || letter < range->first) {
        return letter;
    }
    if ((letter - range->first) % range->step != 0) {
        return letter;
    }
    return static_cast<char32_t>(static_cast<std::int32_t>(letter) + range->distance);
}

template <typename MapLetter>
std::string MapText(std::string_view utf8, MapLetter mapLetter) {
    std::string result;
    result.reserve(utf8.size());
    while (!utf8.empty()) {
        AppendLetter(result, mapLetter(TakeLetter(utf8)));
    }
    return result;
}

}  // namespace

char32_t UpperLetter(char32_t letter) {
    if (letter < 0x80) {
        return letter >= U'a' && letter <= U'z' ? letter - 32 : letter;
    }
    return Map(kUpper, letter);
}

char32_t LowerLetter(char32_t letter) {
    if (letter < 0x80) {
        return letter >= U'A' && letter <= U'Z' ? letter + 32 : letter;
    }
    return Map(kLower, letter);
}

std::string UpperCase(std::string_view utf8) { return MapText(utf8, UpperLetter); }

std::string LowerCase(std::string_view utf8) { return MapText(utf8, LowerLetter); }

std::string UpperCaseFirst(std::string_view utf8) {
    if (utf8.empty()) {
        return {};
    }
    std::string result;
    result.reserve(utf8.size() + 1);
    AppendLetter(result, UpperLetter(TakeLetter(utf8)));
    result += utf8;
    return result;
}

// Lower case of upper case: so letters with two lower-case forms (the Greek sigmas) are equal too.
std::string FoldCase(std::string_view utf8) {
    return MapText(utf8, [](char32_t letter) { return LowerLetter(UpperLetter(letter)); });
}

char32_t TakeLetter(std::string_view& utf8) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const unsigned char lead = byte(0);
    std::size_t length = 1;
    char32_t letter = lead;
    char32_t smallest = 0;
    if (lead >= 0x80) {
        if (lead >= 0xC2 && lead <= 0xDF) {
            length = 2;
            letter = lead & 0x1F;
            smallest = 0x80;
        } else if (lead >= 0xE0 && lead <= 0xEF) {
            length = 3;
            letter = lead & 0x0F;
            smallest = 0x800;
        } else if (lead >= 0xF0 && lead <= 0xF4) {
            length = 4;
            letter = lead & 0x07;
            smallest = 0x10000;
        } else {
            length = 0;
        }
        bool wellFormed = length != 0 && utf8.size() >= length;
        for (std::size_t i = 1; wellFormed && i < length; ++i) {
            wellFormed = (byte(i) & 0xC0) == 0x80;
            letter = (letter << 6) | (byte(i) & 0x3F);
        }
        if (!wellFormed || letter < smallest || letter > 0x10FFFF ||
            (letter >= 0xD800 && letter <= 0xDFFF)) {
            length = 1;
            letter = kBrokenByte + lead;
        }
    }
    utf8.remove_prefix(length);
    return letter;
}

void AppendLetter(std::string& utf8, char32_t letter) {
    const auto put = [&](char32_t byte) { utf8.push_back(static_cast<char>(byte)); };
    if (letter < 0x80) {
        put(letter);
    } else if (letter > kBrokenByte && letter <= kBrokenByte + 0xFF) {
        put(letter - kBrokenByte);
    } else if (letter < 0x800) {
        put(0xC0 | (letter >> 6));
        put(0x80 | (letter & 0x3F));
    } else if (letter < 0x10000) {
        put(0xE0 | (letter >> 12));
        put(0x80 | ((letter >> 6) & 0x3F));
        put(0x80 | (letter & 0x3F));
    } else {
        put(0xF0 | (letter >> 18));
        put(0x80 | ((letter >> 12) & 0x3F));
        put(0x80 | ((letter >> 6) & 0x3F));
        put(0x80 | (letter & 0x3F));
    }
}

}  // namespace quenloft
