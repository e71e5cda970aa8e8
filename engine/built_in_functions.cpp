#include "engine/built_in_functions.h"

#include <array>
#include <cmath>

#include "engine/failure.h"
#include "engine/numbers.h"

namespace quenloft {

namespace {

constexpr std::size_t kNameLength = 4;  // Three letters and the parenthesis.

struct Name {
    std::string_view text;
    BuiltIn function;
};

constexpr std::array<Name, 10> kNames = {{
    {"SIN(", BuiltIn::Sin},
    {"COS(", BuiltIn::Cos},
    {"TAN(", BuiltIn::Tan},
    {"SQR(", BuiltIn::Sqr},
    {"RND(", BuiltIn::Rnd},
    {"LOG(", BuiltIn::Log},
    {"EXP(", BuiltIn::Exp},
    {"GET(", BuiltIn::Get},
    {"VAL(", BuiltIn::Val},
    {"MSG(", BuiltIn::Msg},
}};

char UpperAscii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }

double Radians(double degrees) {
    constexpr double kPi = 3.14159265358979;  // The 15 digits that "PI" has in the language.
    return degrees * kPi / 180;
}

double RoundTo8Decimals(double number) {
    constexpr double kScale = 1e8;
    const double scaled = number * kScale;
    return std::isfinite(scaled) ? std::nearbyint(scaled) / kScale : number;
}

double Checked(double result) {
    if (!std::isfinite(result)) {
        throw Failure(FailureNumber::Overflow);
    }
    return result;
}

double CallNumeric(BuiltIn function, double argument) {
    switch (function) {
        case BuiltIn::Sin:
            return RoundTo8Decimals(std::sin(Radians(argument)));
        case BuiltIn::Cos:
            return RoundTo8Decimals(std::cos(Radians(argument)));
        case BuiltIn::Tan:
            return RoundTo8Decimals(std::tan(Radians(argument)));
        case BuiltIn::Sqr:
            if (argument < 0) {
                throw Failure(FailureNumber::InvalidArgument);
            }
            return std::sqrt(argument);
        case BuiltIn::Rnd:
            return std::nearbyint(argument);
        case BuiltIn::Log:
            if (argument <= 0) {
                throw Failure(FailureNumber::InvalidArgument);
            }
            return std::log(argument);
        case BuiltIn::Exp:
            return Checked(std::exp(argument));
        case BuiltIn::Get:
        case BuiltIn::Val:
        case BuiltIn::Msg:
            break;
    }
    return argument;
}

}  // namespace

std::optional<BuiltIn> BuiltInAt(std::string_view text) {
    if (text.size() < kNameLength || text[kNameLength - 1] != '(') {
        return std::nullopt;
    }
    const std::array<char, kNameLength> upper = {UpperAscii(text[0]), UpperAscii(text[1]),
                                                 UpperAscii(text[2]), '('};
    for (const Name& name : kNames) {
        if (name.text == std::string_view(upper.data(), upper.size())) {
            return name.function;
        }
    }
    return std::nullopt;
}

bool HoldsBuiltIn(std::string_view text) {
    for (std::size_t i = text.find('('); i != std::string_view::npos; i = text.find('(', i + 1)) {
        if (i >= kNameLength - 1 && BuiltInAt(text.substr(i - (kNameLength - 1)))) {
            return true;
        }
    }
    return false;
}

bool TakesTextAsWritten(BuiltIn function) {
    return function == BuiltIn::Get || function == BuiltIn::Msg;
}

Value CallWithText(BuiltIn function, std::string_view argument, EngineHost& host) {
    if (function == BuiltIn::Get) {
        return Value::OfText(host.AskForText(std::string(argument)));
    }
    host.ShowMessage(std::string(argument));
    return Value::OfNumber(1);
}

Value CallWithValue(BuiltIn function, const Value& argument) {
    if (function == BuiltIn::Val) {
        return Value::OfNumber(Checked(NumericPrefix(argument.TextForm())));
    }
    return Value::OfNumber(CallNumeric(function, argument.AsNumber()));
}

}  // namespace quenloft
