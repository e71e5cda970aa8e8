// The engine's tagged value: what expressions yield and variables hold.
#pragma once

#include <cstdint>
#include <string>

namespace quenloft {

class Value {
  public:
    enum class Kind { Empty, Number, Text, Truth, DateTime };

    Value() = default;
    static Value OfNumber(double number);
    static Value OfText(std::string text);
    static Value OfTruth(bool truth);
    /// The local date and time as of this call.
    static Value Now();

    Kind GetKind() const { return kind_; }
    bool IsText() const { return kind_ == Kind::Text; }
    bool IsEmpty() const { return kind_ == Kind::Empty; }

    /// Numbers per NumberToText, "True" or "False", "2026-11-21 20:15:00", empty as "".
    std::string TextForm() const&;
    std::string TextForm() &&;
    /// True is -1, empty is 0, a date counts days. Throws Failure "Type mismatch" for text that is
    /// no number.
    double AsNumber() const;
    /// Not zero; the texts "True" and "False" in any case. Throws Failure "Type mismatch".
    bool AsTruth() const;

  private:
    Kind kind_ = Kind::Empty;
    double number_ = 0;
    std::string text_;  // Of Text and DateTime.
};

/// The sum; two texts are joined. Throws Failure ("Type mismatch", "Overflow").
/// `left` is used up only where two texts are joined: after a failure it is as it was.
Value Add(Value&& left, const Value& right);
/// The text forms of both, one behind the other. Throws RunStopped past kLargestOutput.
Value Join(Value&& left, const Value& right);
/// Below 0, 0 or above 0: numbers by size, texts by code, a number less than any text. An empty
/// value compares as 0 with numbers and as "" with text.
int Compare(const Value& left, const Value& right);

/// The local date and time as text ("2026-11-21 20:15:00"), as "NOW" and printed footers show it.
std::string DateTimeText();

}  // namespace quenloft
