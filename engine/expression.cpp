#include "engine/expression.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "engine/built_in_functions.h"
#include "engine/failure.h"
#include "engine/numbers.h"
#include "engine/text_helpers.h"

namespace quenloft {

namespace {

struct Operator {
    char sign = 0;
    bool orEqual = false;  // "<=", ">="
    int priority = 0;
};

/// 0 for a character that is no operator.
int Priority(char c) {
    switch (c) {
        case '^':
            return 9;
        case '*':
        case '/':
            return 8;
        case '\\':
            return 6;
        case '%':
            return 5;
        case '+':
        case '-':
        case '<':
        case '>':
        case '=':
        case '&':
            return 4;
        default:
            return 0;
    }
}

/// These are operators only behind an operand; elsewhere they are signs.
bool CanBeSign(int priority) { return priority == 4; }

/// Both operands as whole numbers, half to even.
std::pair<double, double> WholeOperands(const Value& left, const Value& right) {
    const double a = std::nearbyint(left.AsNumber());
    const double b = std::nearbyint(right.AsNumber());
    if (b == 0) {
        throw Failure(FailureNumber::DivisionByZero);
    }
    return {a, b};
}

double Quotient(double a, double b) {
    if (b == 0) {
        throw Failure(a == 0 ? FailureNumber::Overflow : FailureNumber::DivisionByZero);
    }
    return a / b;
}

double Power(double a, double b) {
    const bool undefined = (a == 0 && b < 0) || (a < 0 && b != std::trunc(b));
    if (undefined) {
        throw Failure(FailureNumber::InvalidArgument);
    }
    return std::pow(a, b);
}

/// `\` and `%` beyond 32 bits: exact as long as the whole numbers fit into 63.
double WholeQuotient(double a, double b) {
    constexpr double kExact = 9.2e18;
    if (std::fabs(a) < kExact && std::fabs(b) < kExact) {
        const std::int64_t quotient = static_cast<std::int64_t>(a) / static_cast<std::int64_t>(b);
        return static_cast<double>(quotient);
    }
    return std::trunc(a / b);
}

double Arithmetic(char sign, const Value& left, const Value& right) {
    switch (sign) {
        case '^':
            return Power(left.AsNumber(), right.AsNumber());
        case '*':
            return left.AsNumber() * right.AsNumber();
        case '/':
            return Quotient(left.AsNumber(), right.AsNumber());
        case '\\': {
            const auto [a, b] = WholeOperands(left, right);
            return WholeQuotient(a, b);
        }
        case '%': {
            const auto [a, b] = WholeOperands(left, right);
            return std::fmod(a, b);
        }
        default:
            return left.AsNumber() - right.AsNumber();
    }
}

Value Combine(Operator op, Value left, const Value& right) {
    switch (op.sign) {
        case '+':
            return Add(std::move(left), right);
        case '&':
            return Join(std::move(left), right);
        case '=':
            return Value::OfTruth(Compare(left, right) == 0);
        case '<':
            return Value::OfTruth(op.orEqual ? Compare(left, right) <= 0
                                             : Compare(left, right) < 0);
        case '>':
            return Value::OfTruth(op.orEqual ? Compare(left, right) >= 0
                                             : Compare(left, right) > 0);
        default:
            break;
    }
    const double result = Arithmetic(op.sign, left, right);
    if (!std::isfinite(result)) {
        throw Failure(FailureNumber::Overflow);
    }
    return Value::OfNumber(result);
}

Failure TooManyClosed(std::string_view text) {
    return {FailureNumber::TooManyClosed, "Too many )s in '" + std::string(Trimmed(text)) + "'"};
}

/// Reads operands and operators from left to right and combines as soon as the next operator binds
/// no tighter. An open parenthesis begins a level on a stack of our own, so that a text of any
/// depth is only a matter of memory.
class Evaluation {
  public:
    Evaluation(std::string_view text, const VariableStore& variables, EngineHost& host)
        : text_(text), variables_(variables), host_(host) {}

    Value Run() {
        MatchParentheses();
        levels_.push_back(Level{.position = 0, .end = text_.size()});
        for (;;) {
            Level& level = levels_.back();
            const Span operand = NextOperand(level);
            if (!BeginOperand(operand)) {
                continue;  // The operand is a level of its own.
            }
            while (!FinishOperand()) {
                if (levels_.size() == 1) {
                    return std::move(values_.back());
                }
                FinishLevel();
            }
        }
    }

  private:
    struct Span {
        std::size_t begin;
        std::size_t end;
    };

    /// A text being evaluated: the whole, a pair of parentheses, or an argument.
    struct Level {
        std::size_t position;
        std::size_t end;
        std::size_t firstOperator = 0;  // Operators of outer levels lie below it.
        std::optional<BuiltIn> function = std::nullopt;
        bool negate = false;
        bool convert = false;                         // At least one "-" stands before it.
        std::optional<Operator> next = std::nullopt;  // The operator behind the last operand.
    };

    void MatchParentheses() {
        std::vector<std::size_t> open;
        for (std::size_t i = text_.find_first_of("()"); i != std::string_view::npos;
             i = text_.find_first_of("()", i + 1)) {
            if (partner_.empty()) {
                partner_.resize(text_.size());
            }
            if (text_[i] == '(') {
                open.push_back(i);
            } else if (open.empty()) {
                throw TooManyClosed(text_);
            } else {
                partner_[open.back()] = i;
                open.pop_back();
            }
        }
        if (!open.empty()) {
            throw Failure(FailureNumber::MissingClosed,
                          "Missing ) in '" + std::string(text_) + "'");
        }
    }

    /// The text up to the next operator of the level, which becomes `level.next`.
    Span NextOperand(Level& level) {
        const std::size_t begin = level.position;
        bool behindOperator = true;
        for (std::size_t i = begin; i < level.end; ++i) {
            const char c = text_[i];
            if (c == ' ') {
                continue;
            }
            if (c == '(') {
                i = partner_[i];
                behindOperator = false;
                continue;
            }
            const int priority = Priority(c);
            if (priority == 0) {
                behindOperator = false;
                continue;
            }
            if (behindOperator && CanBeSign(priority)) {
                continue;
            }
            const bool orEqual = (c == '<' || c == '>') && i + 1 < level.end && text_[i + 1] == '=';
            level.next = Operator{c, orEqual, priority};
            level.position = i + (orEqual ? 2 : 1);
            return {begin, i};
        }
        level.next.reset();
        level.position = level.end;
        return {begin, level.end};
    }

    Span TrimmedSpan(Span span) const {
        while (span.begin < span.end && text_[span.begin] == ' ') {
            ++span.begin;
        }
        while (span.end > span.begin && text_[span.end - 1] == ' ') {
            --span.end;
        }
        return span;
    }

    /// Puts the operand's value on the stack, or begins a level for it and returns false.
    bool BeginOperand(Span span) {
        bool negate = false;
        bool convert = false;
        for (;;) {
            span = TrimmedSpan(span);
            if (span.begin == span.end) {
                break;
            }
            const char first = text_[span.begin];
            const char last = text_[span.end - 1];
            if (first == '(' && last == ')') {
                BeginLevel({span.begin + 1, span.end - 1}, span.begin, std::nullopt, negate,
                           convert);
                return false;
            }
            if (first == '-') {
                negate = !negate;
                convert = true;
            } else if (first != '+') {
                break;
            }
            ++span.begin;
        }
        const std::string_view operand = text_.substr(span.begin, span.end - span.begin);
        constexpr std::size_t kShortestCall = 6;
        const auto function = operand.size() >= kShortestCall && operand.back() == ')'
                                  ? BuiltInAt(operand)
                                  : std::nullopt;
        if (!function) {
            values_.push_back(Signed(OperandValue(operand), negate, convert));
            return true;
        }
        const Span argument{span.begin + 4, span.end - 1};
        if (!TakesTextAsWritten(*function)) {
            BeginLevel(argument, span.begin + 3, function, negate, convert);
            return false;
        }
        const std::string_view written =
            text_.substr(argument.begin, argument.end - argument.begin);
        values_.push_back(Signed(CallWithText(*function, written, host_), negate, convert));
        return true;
    }

    /// `open` is the place of the parenthesis before `inner`. Where its partner is not the one
    /// behind `inner`, as in "(1)(2)", the inner text closes more than it opens.
    void BeginLevel(Span inner, std::size_t open, std::optional<BuiltIn> function, bool negate,
                    bool convert) {
        if (partner_[open] != inner.end) {
            throw TooManyClosed(text_.substr(inner.begin, inner.end - inner.begin));
        }
        levels_.push_back(Level{.position = inner.begin,
                                .end = inner.end,
                                .firstOperator = operators_.size(),
                                .function = function,
                                .negate = negate,
                                .convert = convert});
    }

    /// An operand lies on the stack: combines what binds at least as tight as the operator behind
    /// it. True when that operator now waits for its right operand, false at the end of the level.
    bool FinishOperand() {
        const Level& level = levels_.back();
        const int priority = level.next ? level.next->priority : 0;
        while (operators_.size() > level.firstOperator && operators_.back().priority >= priority) {
            const Value right = std::move(values_.back());
            values_.pop_back();
            values_.back() = Combine(operators_.back(), std::move(values_.back()), right);
            operators_.pop_back();
        }
        if (!level.next) {
            return false;
        }
        operators_.push_back(*level.next);
        return true;
    }

    /// The value of a whole level lies on the stack and becomes an operand of the level around it.
    void FinishLevel() {
        const Level level = levels_.back();
        levels_.pop_back();
        Value& value = values_.back();
        if (level.function) {
            value = CallWithValue(*level.function, value);
        }
        value = Signed(std::move(value), level.negate, level.convert);
    }

    static Value Signed(Value value, bool negate, bool convert) {
        if (!convert) {
            return value;
        }
        const double number = value.AsNumber();
        return Value::OfNumber(negate ? -number : number);
    }

    Value OperandValue(std::string_view operand) const {
        if (operand.empty()) {
            return {};
        }
        if (const Value* stored = variables_.Find(operand)) {
            return VariableValue(*stored);
        }
        if (const auto number = ParseNumber(operand)) {
            return Value::OfNumber(*number);
        }
        return Value::OfText(std::string(operand));
    }

    /// A variable is read through its text form: as a number only where all of it is one, not zero.
    static Value VariableValue(const Value& stored) {
        constexpr double kExactAsText = 1e15;  // Whole numbers below it survive 15 digits.
        if (stored.GetKind() == Value::Kind::Number) {
            const double number = stored.AsNumber();
            if (number != 0 && std::fabs(number) < kExactAsText && number == std::trunc(number)) {
                return stored;
            }
        }
        std::string text = stored.TextForm();
        if (NumericPrefix(text) != 0) {
            if (const auto number = ParseNumber(text)) {
                return Value::OfNumber(*number);
            }
        }
        return Value::OfText(std::move(text));
    }

    std::string_view text_;
    const VariableStore& variables_;
    EngineHost& host_;
    std::vector<std::size_t> partner_;  // Of each "(" the place of its ")".
    std::vector<Level> levels_;
    std::vector<Value> values_;
    std::vector<Operator> operators_;
};

}  // namespace

Value EvaluateExpr(std::string_view text, const VariableStore& variables, EngineHost& host) {
    text = Trimmed(text);
    return text.empty() ? Value{} : Evaluation(text, variables, host).Run();
}

bool IsHashQuoted(std::string_view text) {
    return text.size() > 1 && text.front() == '#' && text.back() == '#';
}

bool IsExpression(std::string_view text, const VariableStore& variables) {
    if (IsHashQuoted(text)) {
        return false;
    }
    return text.find_first_of("%\\^/*-+") != std::string_view::npos || HoldsBuiltIn(text) ||
           variables.Find(text) != nullptr;
}

}  // namespace quenloft
