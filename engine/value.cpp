#include "engine/value.h"

#include <array>
#include <cmath>
#include <ctime>
#include <utility>

#include "engine/failure.h"
#include "engine/limits.h"
#include "engine/numbers.h"
#include "platform/letter_case.h"

namespace quenloft {

namespace {

std::tm LocalTime(std::time_t moment) {
    std::tm local{};
    localtime_r(&moment, &local);
    return local;
}

std::string IsoText(const std::tm& local) {
    std::array<char, 32> buffer{};
    const std::size_t length =
        std::strftime(buffer.data(), buffer.size(), "%Y-%m-%d %H:%M:%S", &local);
    return {buffer.data(), length};
}

}  // namespace

Value Value::OfNumber(double number) {
    Value value;
    value.kind_ = Kind::Number;
    value.number_ = number;
    return value;
}

Value Value::OfText(std::string text) {
    Value value;
    value.kind_ = Kind::Text;
    value.text_ = std::move(text);
    return value;
}

Value Value::OfTruth(bool truth) {
    Value value;
    value.kind_ = Kind::Truth;
    value.number_ = truth ? -1 : 0;
    return value;
}

Value Value::Now() {
    constexpr double kSecondsPerDay = 86400;
    constexpr double kDaysBefore1970 = 25569;  // Days are counted from 30 December 1899.
    const std::time_t moment = std::time(nullptr);
    const std::tm local = LocalTime(moment);
    Value value;
    value.kind_ = Kind::DateTime;
    value.number_ =
        kDaysBefore1970 +
        (static_cast<double>(moment) + static_cast<double>(local.tm_gmtoff)) / kSecondsPerDay;
    value.text_ = IsoText(local);
    return value;
}

std::string DateTimeText() { return IsoText(LocalTime(std::time(nullptr))); }

std::string Value::TextForm() && {
    return IsText() ? std::move(text_) : std::as_const(*this).TextForm();
}

std::string Value::TextForm() const& {
    switch (kind_) {
        case Kind::Empty:
            return {};
        case Kind::Number:
            return NumberToText(number_);
        case Kind::Truth:
            return number_ != 0 ? "True" : "False";
        case Kind::Text:
        case Kind::DateTime:
            break;
    }
    return text_;
}

double Value::AsNumber() const { return IsText() ? TextToNumber(text_) : number_; }

bool Value::AsTruth() const {
    if (!IsText()) {
        return number_ != 0;
    }
    const std::string folded = FoldCase(text_);
    if (folded == "true") {
        return true;
    }
    if (folded == "false") {
        return false;
    }
    return TextToNumber(text_) != 0;
}

Value Join(Value&& left, const Value& right) {
    std::string text = std::move(left).TextForm();
    text += right.TextForm();
    CheckOutputSize(text.size());
    return Value::OfText(std::move(text));
}

Value Add(Value&& left, const Value& right) {
    if (left.IsText() && right.IsText()) {
        return Join(std::move(left), right);
    }
    if ((left.IsText() && right.IsEmpty()) || (left.IsEmpty() && right.IsText())) {
        throw Failure(FailureNumber::TypeMismatch);
    }
    const double sum = left.AsNumber() + right.AsNumber();
    if (!std::isfinite(sum)) {
        throw Failure(FailureNumber::Overflow);
    }
    return Value::OfNumber(sum);
}

int Compare(const Value& left, const Value& right) {
    if (left.IsText() || right.IsText()) {
        const bool bothTexts =
            (left.IsText() || left.IsEmpty()) && (right.IsText() || right.IsEmpty());
        if (bothTexts) {
            return left.TextForm().compare(right.TextForm());
        }
        return left.IsText() ? 1 : -1;
    }
    const double a = left.AsNumber();
    const double b = right.AsNumber();
    return a < b ? -1 : a > b ? 1 : 0;
}

}  // namespace quenloft
