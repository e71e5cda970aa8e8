#include "engine/numbers.h"

#include <clocale>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <optional>

#include "engine/failure.h"

namespace quenloft {
namespace {

TEST(Numbers, HaveFifteenDigitsAndNoTrailingZeros) {
    const std::pair<double, const char*> cases[] = {
        {0, "0"},
        {-0.0, "0"},
        {3, "3"},
        {-12.5, "-12.5"},
        {100, "100"},
        {0.1 + 0.2, "0.3"},
        {0.00001, "0.00001"},
        {std::sqrt(2.0), "1.4142135623731"},
        {-1.0 / 12, "-8.33333333333333E-02"},
        {999999999999999.0, "999999999999999"},
        {999999999999999.9, "1E+15"},
        {1.5e300, "1.5E+300"},
        {1e-16, "1E-16"},
        {1e-15, "0.000000000000001"},
    };
    for (const auto& [number, text] : cases) {
        EXPECT_EQ(NumberToText(number), text);
    }
}

TEST(Numbers, StrictReadingTakesTheWholeTextOrNothing) {
    const std::pair<const char*, std::optional<double>> cases[] = {
        {"12", 12},     {" \t12\r\n", 12}, {"-3", -3},    {"3-", -3},     {"+3", 3},
        {".5", 0.5},    {"5.", 5},         {"1e3", 1000}, {"1E-2", 0.01}, {"1,000", 1000},
        {"1,0,0", 100}, {"&H10", 16},      {"&o17", 15},  {"$5", 5},      {"-$5", -5},
        {"(5)", -5},    {"007", 7},        {"1e-400", 0}, {"", {}},       {"-", {}},
        {"12abc", {}},  {"50%", {}},       {"1.5.2", {}}, {"0x10", {}},   {",5", {}},
        {"1e", {}},     {"--3", {}},       {"-3-", {}},   {"&H", {}},     {"&HXY", {}},
        {"()", {}},     {".", {}},         {"1e999", {}}, {"1.5,0", {}},  {"inf", {}},
        {"nan", {}},    {"\xD9\xA3", {}},  {"1 000", {}}, {"((5))", {}},
    };
    for (const auto& [text, number] : cases) {
        EXPECT_EQ(ParseNumber(text), number) << text;
    }
    EXPECT_THROW(TextToNumber("12abc"), Failure);
    EXPECT_THROW(TextToInt32("2147483648"), Failure);
}

TEST(Numbers, PrefixIsTheLongestLeadingNumber) {
    const std::pair<const char*, double> cases[] = {
        {"12abc", 12}, {"  3 orcs", 3}, {"-4x", -4},  {"+4", 4},   {".5.5", 0.5}, {"1e3x", 1000},
        {"1ex", 1},    {"1e+", 1},      {"1,000", 1}, {"$5", 0},   {"", 0},       {"-", 0},
        {"abc", 0},    {"- 5", 0},      {"5^3", 5},   {"0x10", 0}, {"&H10", 0},
    };
    for (const auto& [text, number] : cases) {
        EXPECT_EQ(NumericPrefix(text), number) << text;
    }
    EXPECT_EQ(NumericPrefix("1e999"), std::numeric_limits<double>::infinity());
}

TEST(Numbers, RoundHalfToEvenAndFailPast32Bits) {
    const std::pair<const char*, std::int32_t> cases[] = {
        {"2.5", 2},
        {"3.5", 4},
        {"-2.5", -2},
        {"12§", 12},
        {"5e1", 50},
        {"x", 0},
        {"2147483647", 2147483647},
    };
    for (const auto& [text, number] : cases) {
        EXPECT_EQ(NumericValue(text), number) << text;
    }
    for (const char* tooLarge : {"2147483648", "2147483647.5", "-2147483649", "1e40"}) {
        EXPECT_THROW(NumericValue(tooLarge), Failure) << tooLarge;
    }
}

}  // namespace
}  // namespace quenloft
