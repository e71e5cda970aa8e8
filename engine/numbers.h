// Numbers and text, never depending on the locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quenloft {

/// 15 significant digits without trailing zeros; "1E+15" from 1E15 on and where plain notation
/// would need more than 15 decimals; never "-0".
std::string NumberToText(double number);

/// Strict reading: the whole text is a number. Blanks, tabs and line ends around are cut; a sign in
/// front or behind, ".5", "5.", "1e3", "1,000", "&H10", "$5" and "(5)" (= -5) are numbers.
/// Nothing for any other text, and for a number past the largest double.
std::optional<double> ParseNumber(std::string_view text);
/// As above. Throws Failure: "Type mismatch", or "Overflow" past the largest double.
double TextToNumber(std::string_view text);

/// The longest leading number, leading blanks skipped, sign included; 0 where there is none.
/// Past the largest double: infinity.
double NumericPrefix(std::string_view text);

/// Half to even. Throws Failure "Overflow" past 32 bits.
std::int32_t RoundToInt32(double number);
/// The numeric value of formats: RoundToInt32 of the numeric prefix.
std::int32_t NumericValue(std::string_view text);
/// A strict whole number of 32 bits: RoundToInt32 of TextToNumber.
std::int32_t TextToInt32(std::string_view text);

}  // namespace quenloft
