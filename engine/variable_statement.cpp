// The statement between two "??": an expression, a variable, a constant, a group, or an assignment.
#include <algorithm>

#include "engine/expression.h"
#include "engine/interpreter.h"
#include "engine/numbers.h"
#include "platform/letter_case.h"

namespace quenloft {

namespace {

constexpr std::string_view kIncrease = "=INC";
constexpr char kEchoMark = '!';

/// The first place of "=INC", in any case.
std::size_t FindIncrease(std::string_view statement) {
    const auto sameLetter = [](char a, char b) {
        return UpperLetter(static_cast<unsigned char>(a)) == static_cast<unsigned char>(b);
    };
    const auto place = std::search(statement.begin(), statement.end(), kIncrease.begin(),
                                   kIncrease.end(), sameLetter);
    return place == statement.end() ? std::string_view::npos
                                    : static_cast<std::size_t>(place - statement.begin());
}

}  // namespace

Value Interpreter::EvaluateVariableStatement(std::string_view statement) {
    const std::size_t sign = statement.find('=');
    if (sign == std::string_view::npos) {
        return ReadVariable(statement);
    }
    const std::size_t increase = FindIncrease(statement);
    return increase == std::string_view::npos
               ? Assign(statement, sign, VariableStore::Operation::Set)
               : Assign(statement, increase, VariableStore::Operation::Increase);
}

Value Interpreter::ReadVariable(std::string_view text) {
    // The name of a variable alone is an expression too.
    if (IsExpression(text, variables_)) {
        return EvaluateExpr(text);
    }
    if (const Value* stored = variables_.Find(text)) {
        return *stored;
    }
    const std::string upper = UpperCase(text);
    if (upper == "PI") {
        return Value::OfNumber(3.14159265358979);
    }
    if (upper == "NOW") {
        return Value::Now();
    }
    const std::size_t mark = text.find(kEchoMark);
    if (mark == std::string_view::npos || mark + 1 != text.size()) {
        return Value::OfText({});  // Only a text that ends at its first "!" names a group.
    }
    return Value::OfText(variables_.ListGroup(text));
}

Value Interpreter::Assign(std::string_view statement, std::size_t sign,
                          VariableStore::Operation operation) {
    const bool increases = operation == VariableStore::Operation::Increase;
    const std::string_view right = statement.substr(sign + (increases ? kIncrease.size() : 1));
    const bool evaluates =
        right.empty() || NumericPrefix(right) != 0 || IsExpression(right, variables_);
    const Value value =
        evaluates ? EvaluateExpr(right) : Value::OfText(ExpandTableReferences(right));
    const std::string name = ExpandEntry(statement.substr(0, sign));
    variables_.SetVariable(name, value, operation);
    if (statement.find(kEchoMark) == std::string_view::npos) {
        return Value::OfText({});
    }
    const std::size_t mark = name.find(kEchoMark);
    const std::string shownName = mark == std::string::npos ? name : name.substr(mark + 1);
    return Value::OfText(shownName + "=" + value.TextForm());
}

}  // namespace quenloft
