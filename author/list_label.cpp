#include "author/list_label.h"

#include <algorithm>
#include <charconv>

namespace quenloft {
namespace {

constexpr int kLetters = 26;
constexpr int kLargestRoman = 3999;

struct RomanFigure {
    std::string_view letters;
    int value;
};
constexpr RomanFigure kRomanFigures[] = {
    {"m", 1000}, {"cm", 900}, {"d", 500}, {"cd", 400}, {"c", 100}, {"xc", 90}, {"l", 50},
    {"xl", 40},  {"x", 10},   {"ix", 9},  {"v", 5},    {"iv", 4},  {"i", 1},
};

bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }
bool IsLower(char c) { return c >= 'a' && c <= 'z'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string Upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return IsLower(c) ? static_cast<char>(c - 'a' + 'A') : c; });
    return text;
}

// a to z, then aa, ab and so on.
std::string Letters(int number) {
    std::string text;
    for (; number > 0; number = (number - 1) / kLetters) {
        text.insert(text.begin(), static_cast<char>('a' + (number - 1) % kLetters));
    }
    return text;
}

std::string Roman(int number) {
    std::string text;
    for (const RomanFigure& figure : kRomanFigures) {
        for (; number >= figure.value; number -= figure.value) {
            text += figure.letters;
        }
    }
    return text;
}

std::optional<int> NumberOfLetters(std::string_view word) {
    int number = 0;
    for (const char c : word) {
        number = number * kLetters + (c - 'a' + 1);
        if (!IsLower(c) || number > kLargestListNumber) {
            return std::nullopt;
        }
    }
    return number;
}

std::optional<int> NumberOfRoman(std::string_view word) {
    int number = 0;
    std::string_view rest = word;
    for (const RomanFigure& figure : kRomanFigures) {
        while (rest.starts_with(figure.letters) && number <= kLargestRoman) {
            number += figure.value;
            rest.remove_prefix(figure.letters.size());
        }
    }
    return rest.empty() && Roman(number) == word ? std::optional<int>(number) : std::nullopt;
}

std::optional<int> NumberOfDigits(std::string_view word) {
    int number = 0;
    const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
    const bool isWhole = result.ec == std::errc() && result.ptr == word.data() + word.size();
    return isWhole && number <= kLargestListNumber ? std::optional<int>(number) : std::nullopt;
}

std::string_view LastWord(std::string_view label) {
    const auto isPart = [](char c) { return IsDigit(c) || IsLower(c) || IsUpper(c); };
    const auto end = std::find_if(label.rbegin(), label.rend(), isPart).base();
    const auto start =
        std::find_if_not(std::make_reverse_iterator(end), label.rend(), isPart).base();
    return {start, end};
}

}  // namespace

std::string ListLabel(ListKind kind, int number) {
    const bool isRoman = number <= kLargestRoman;
    switch (number > 0 ? kind : std::min(kind, ListKind::Decimal)) {
        case ListKind::None:
            return {};
        case ListKind::Bullet:
            return "\xE2\x80\xA2";
        case ListKind::Decimal:
            break;
        case ListKind::LowerLetter:
            return Letters(number);
        case ListKind::UpperLetter:
            return Upper(Letters(number));
        case ListKind::LowerRoman:
            return isRoman ? Roman(number) : std::to_string(number);
        case ListKind::UpperRoman:
            return isRoman ? Upper(Roman(number)) : std::to_string(number);
    }
    return std::to_string(number);
}

std::optional<int> NumberOfLabel(ListKind kind, std::string_view label) {
    if (kind == ListKind::None || kind == ListKind::Bullet) {
        return std::nullopt;
    }
    std::string word(LastWord(label));
    if (word.empty() || IsDigit(word.front())) {
        return NumberOfDigits(word);
    }
    std::transform(word.begin(), word.end(), word.begin(),
                   [](char c) { return IsUpper(c) ? static_cast<char>(c - 'A' + 'a') : c; });
    const bool isRoman = kind == ListKind::LowerRoman || kind == ListKind::UpperRoman;
    return isRoman ? NumberOfRoman(word) : NumberOfLetters(word);
}

}  // namespace quenloft
