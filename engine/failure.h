// The one exception type inside the engine. It never leaves an entry point: there it becomes the
// texts that users know.
#pragma once

#include <stdexcept>
#include <string>

namespace quenloft {

/// Numbers as in the classic runtime of the libraries' home; 1001 and 1002 are the evaluator's own.
enum class FailureNumber {
    InvalidArgument = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    InputPastEnd = 62,
    PermissionDenied = 70,
    DiskFailure = 75,
    PathNotFound = 76,
    TooManyClosed = 1001,
    MissingClosed = 1002,
};

class Failure : public std::runtime_error {
  public:
    /// With the runtime's own words ("Type mismatch").
    explicit Failure(FailureNumber number);
    Failure(FailureNumber number, const std::string& description)
        : std::runtime_error(description), number_(number) {}
    FailureNumber Number() const { return number_; }

  private:
    FailureNumber number_;
};

/// Ends the whole run, past every place that turns failures into text: what is left of the run
/// could only repeat itself. `what()` is the run's whole result.
class RunStopped : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace quenloft
