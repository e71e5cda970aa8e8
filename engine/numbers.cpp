#include "engine/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "engine/failure.h"

namespace quenloft {

namespace {

constexpr int kSignificantDigits = 15;  // What a double holds for certain.
constexpr int kMostDecimals = 15;
constexpr std::string_view kOuterBlanks = " \t\r\n";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsSign(char c) { return c == '+' || c == '-'; }
bool IsExponentMark(char c) { return c == 'e' || c == 'E'; }

std::string_view CutOuterBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kOuterBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kOuterBlanks) - first + 1);
}

/// `digits` is an unsigned decimal number in plain or exponent form, already checked.
double ReadDigits(std::string_view digits) {
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc::result_out_of_range) {
        // Too large or too small? from_chars does not say, the sign of the exponent does; without
        // an exponent only a long row of leading zeros behind the point is too small.
        const std::size_t mark = digits.find_first_of("eE");
        const bool tiny = mark != std::string_view::npos
                              ? digits[mark + 1] == '-'
                              : digits.starts_with('.') || digits.starts_with('0');
        return tiny ? 0.0 : std::numeric_limits<double>::infinity();
    }
    return error == std::errc() ? value : 0.0;
}

/// Length of the unsigned number at the start of `text`, 0 where there is none.
std::size_t UnsignedPrefixLength(std::string_view text) {
    std::size_t i = 0;
    std::size_t digits = 0;
    for (; i < text.size() && IsDigit(text[i]); ++i) {
        ++digits;
    }
    if (i < text.size() && text[i] == '.') {
        ++i;
        for (; i < text.size() && IsDigit(text[i]); ++i) {
            ++digits;
        }
    }
    if (digits == 0) {
        return 0;
    }
    if (i < text.size() && IsExponentMark(text[i])) {
        std::size_t j = i + 1;
        if (j < text.size() && IsSign(text[j])) {
            ++j;
        }
        const std::size_t firstDigit = j;
        while (j < text.size() && IsDigit(text[j])) {
            ++j;
        }
        if (j > firstDigit) {
            i = j;
        }
    }
    return i;
}

std::optional<double> ParseHexOrOctal(std::string_view text) {
    if (text.size() < 3 || text[0] != '&') {
        return std::nullopt;
    }
    const char kind = text[1];
    const int base = kind == 'h' || kind == 'H' ? 16 : kind == 'o' || kind == 'O' ? 8 : 0;
    if (base == 0) {
        return std::nullopt;
    }
    std::uint64_t value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data() + 2, end, value, base);
    if (error != std::errc() || stop != end) {
        return std::nullopt;
    }
    return static_cast<double>(value);
}

/// Commas group the digits before the decimal mark; a comma never stands first.
std::string WithoutGroupCommas(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    bool wholePart = true;
    for (const char c : text) {
        if (c == ',' && wholePart && !result.empty()) {
            continue;
        }
        wholePart = wholePart && IsDigit(c);
        result.push_back(c);
    }
    return result;
}

std::optional<double> ParseUnsigned(std::string_view text) {
    if (text.empty()) {
        return std::nullopt;
    }
    if (const auto value = ParseHexOrOctal(text)) {
        return value;
    }
    if (text.find(',') != std::string_view::npos) {
        const std::string plain = WithoutGroupCommas(text);
        return UnsignedPrefixLength(plain) == plain.size() ? std::optional(ReadDigits(plain))
                                                           : std::nullopt;
    }
    return UnsignedPrefixLength(text) == text.size() ? std::optional(ReadDigits(text))
                                                     : std::nullopt;
}

/// Infinite where the number is past the largest double.
std::optional<double> ParseSigned(std::string_view text) {
    text = CutOuterBlanks(text);
    if (text.empty()) {
        return std::nullopt;
    }
    bool negative = false;
    bool hasSign = false;
    bool hasCurrency = false;
    if (text.size() > 2 && text.front() == '(' && text.back() == ')') {
        negative = true;
        hasSign = true;
        text = CutOuterBlanks(text.substr(1, text.size() - 2));
    }
    while (!text.empty() &&
           ((IsSign(text.front()) && !hasSign) || (text.front() == '$' && !hasCurrency))) {
        if (text.front() == '$') {
            hasCurrency = true;
        } else {
            hasSign = true;
            negative = text.front() == '-';
        }
        text = CutOuterBlanks(text.substr(1));
    }
    if (!text.empty() && !hasSign && IsSign(text.back())) {
        negative = text.back() == '-';
        text = CutOuterBlanks(text.substr(0, text.size() - 1));
    }
    const auto value = ParseUnsigned(text);
    return value ? std::optional(negative ? -*value : *value) : std::nullopt;
}

}  // namespace

std::string NumberToText(double number) {
    if (number == 0 || std::isnan(number)) {
        return "0";
    }
    std::array<char, 40> buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(number),
                      std::chars_format::scientific, kSignificantDigits - 1);
    const std::string_view form(buffer.data(),
                                static_cast<std::size_t>(written.ptr - buffer.data()));
    const std::size_t mark = form.find('e');
    if (mark == std::string_view::npos) {
        throw Failure(FailureNumber::Overflow);  // Infinity: no result of ours is.
    }
    int exponent = 0;
    const char* exponentText = form.data() + mark + (form[mark + 1] == '+' ? 2 : 1);
    std::from_chars(exponentText, form.data() + form.size(), exponent);

    std::string digits;
    digits.push_back(form[0]);
    digits += form.substr(2, mark - 2);
    digits.erase(digits.find_last_not_of('0') + 1);

    std::string result = number < 0 ? "-" : "";
    const int decimals = static_cast<int>(digits.size()) - 1 - exponent;
    if (exponent >= kSignificantDigits || decimals > kMostDecimals) {
        result += digits[0];
        if (digits.size() > 1) {
            result += '.';
            result += digits.substr(1);
        }
        result += exponent < 0 ? "E-" : "E+";
        const std::string power = std::to_string(std::abs(exponent));
        result += power.size() < 2 ? "0" + power : power;
    } else if (exponent < 0) {
        result += "0.";
        result.append(static_cast<std::size_t>(-exponent - 1), '0');
        result += digits;
    } else {
        const auto whole = static_cast<std::size_t>(exponent) + 1;
        if (digits.size() <= whole) {
            result += digits;
            result.append(whole - digits.size(), '0');
        } else {
            result += digits.substr(0, whole);
            result += '.';
            result += digits.substr(whole);
        }
    }
    return result;
}

std::optional<double> ParseNumber(std::string_view text) {
    const auto value = ParseSigned(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

double TextToNumber(std::string_view text) {
    const auto value = ParseSigned(text);
    if (!value) {
        throw Failure(FailureNumber::TypeMismatch);
    }
    if (!std::isfinite(*value)) {
        throw Failure(FailureNumber::Overflow);
    }
    return *value;
}

double NumericPrefix(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return 0;
    }
    text.remove_prefix(first);
    const bool negative = text.front() == '-';
    if (IsSign(text.front())) {
        text.remove_prefix(1);
    }
    const std::size_t length = UnsignedPrefixLength(text);
    if (length == 0) {
        return 0;
    }
    const double value = ReadDigits(text.substr(0, length));
    return negative ? -value : value;
}

std::int32_t RoundToInt32(double number) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
          rounded <= std::numeric_limits<std::int32_t>::max())) {
        throw Failure(FailureNumber::Overflow);
    }
    return static_cast<std::int32_t>(rounded);
}

std::int32_t NumericValue(std::string_view text) {
    // Nearly every number in a library is a short row of digits.
    std::int32_t whole = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), whole);
    const char* stop = text.data() + text.size();
    if (error == std::errc() && (end == stop || (*end != '.' && !IsExponentMark(*end)))) {
        return whole;
    }
    return RoundToInt32(NumericPrefix(text));
}

std::int32_t TextToInt32(std::string_view text) { return RoundToInt32(TextToNumber(text)); }

}  // namespace quenloft
