#include "dice/report_lines.h"

#include "engine/failure.h"

namespace quenloft {
namespace {

// Some ten million lines; without a bound the system would end the whole program.
constexpr std::size_t kMostBytes = std::size_t{512} << 20U;
constexpr std::size_t kLongestLine = std::size_t{16} << 20U;

}  // namespace

void ReportLines::Add(std::string line) {
    const std::size_t bytes = bytes_ + BytesOf(line);
    if (bytes > kMostBytes) {
        throw Failure(FailureNumber::OutOfMemory);
    }
    bytes_ = bytes;
    lines_.push_back(std::move(line));
}

void ReportLines::CheckLength(const std::string& line) {
    if (line.size() > kLongestLine) {
        throw Failure(FailureNumber::OutOfMemory);
    }
}

}  // namespace quenloft
