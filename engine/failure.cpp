#include "engine/failure.h"

namespace quenloft {

namespace {

const char* RuntimeWords(FailureNumber number) {
    switch (number) {
        case FailureNumber::InvalidArgument:
            return "Invalid procedure call or argument";
        case FailureNumber::Overflow:
            return "Overflow";
        case FailureNumber::OutOfMemory:
            return "Out of memory";
        case FailureNumber::SubscriptOutOfRange:
            return "Subscript out of range";
        case FailureNumber::DivisionByZero:
            return "Division by zero";
        case FailureNumber::TypeMismatch:
            return "Type mismatch";
        case FailureNumber::FileNotFound:
            return "File not found";
        case FailureNumber::InputPastEnd:
            return "Input past end of file";
        case FailureNumber::PermissionDenied:
            return "Permission denied";
        case FailureNumber::DiskFailure:
            return "Path/File access error";
        case FailureNumber::PathNotFound:
            return "Path not found";
        case FailureNumber::TooManyClosed:
        case FailureNumber::MissingClosed:
            break;  // Always raised with a description of their own.
    }
    return "Unbalanced parentheses";
}

}  // namespace

Failure::Failure(FailureNumber number) : Failure(number, RuntimeWords(number)) {}

}  // namespace quenloft
