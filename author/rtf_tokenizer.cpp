#include "author/rtf_tokenizer.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace quenloft {
namespace {

// Longer names are cut: none that means something is.
constexpr std::size_t kLongestName = 32;

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }
bool IsText(char c) { return c != '{' && c != '}' && c != '\\' && !IsLineEnd(c); }

int HexValue(char c) {
    if (IsDigit(c)) {
        return c - '0';
    }
    const auto lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

std::size_t LengthWhile(std::string_view text, bool (*belongs)(char)) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), belongs) -
                                    text.begin());
}

int ToNumber(std::string_view digits, bool negative) {
    constexpr std::int64_t kLargest = std::numeric_limits<int>::max();
    std::int64_t number = 0;
    for (const char c : digits) {
        number = std::min(number * 10 + (c - '0'), kLargest);
    }
    return static_cast<int>(negative ? -number : number);
}

}  // namespace

RtfToken RtfTokenizer::Next() {
    Take(LengthWhile(rest_, IsLineEnd));
    if (rest_.empty()) {
        return {};
    }
    switch (Peek()) {
        case '{':
            Take(1);
            return {.kind = RtfToken::Kind::GroupStart};
        case '}':
            Take(1);
            return {.kind = RtfToken::Kind::GroupEnd};
        case '\\':
            Take(1);
            return ReadAfterBackslash();
        default:
            return ReadText();
    }
}

RtfToken RtfTokenizer::ReadAfterBackslash() {
    if (IsLetter(Peek())) {
        return ReadWord();
    }
    const std::string_view symbol = Take(1);
    if (symbol == "'") {
        return ReadHex();
    }
    if (!symbol.empty() && IsLineEnd(symbol.front())) {
        return {.kind = RtfToken::Kind::Word, .text = "par"};
    }
    if (symbol.empty()) {
        return {};
    }
    return {.kind = RtfToken::Kind::Symbol, .text = symbol};
}

RtfToken RtfTokenizer::ReadWord() {
    RtfToken token{.kind = RtfToken::Kind::Word};
    token.text = Take(LengthWhile(rest_, IsLetter)).substr(0, kLongestName);
    const bool negative = Peek() == '-' && rest_.size() > 1 && IsDigit(rest_[1]);
    Take(negative ? 1 : 0);
    const std::string_view digits = Take(LengthWhile(rest_, IsDigit));
    token.hasNumber = !digits.empty();
    token.number = ToNumber(digits, negative);
    Take(Peek() == ' ' ? 1 : 0);
    if (token.text == "bin" && token.number > 0) {
        Take(static_cast<std::size_t>(token.number));
    }
    return token;
}

RtfToken RtfTokenizer::ReadHex() {
    const int high = HexValue(Peek());
    const int low = rest_.size() > 1 ? HexValue(rest_[1]) : -1;
    if (high < 0 || low < 0) {
        return {.kind = RtfToken::Kind::Symbol, .text = "'"};
    }
    Take(2);
    return {.kind = RtfToken::Kind::Hex, .byte = static_cast<unsigned char>(high * 16 + low)};
}

RtfToken RtfTokenizer::ReadText() {
    return {.kind = RtfToken::Kind::Text, .text = Take(LengthWhile(rest_, IsText))};
}

std::string_view RtfTokenizer::Take(std::size_t count) {
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
}

}  // namespace quenloft
