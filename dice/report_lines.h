// The lines of a report as they are written, one after the other.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace quenloft {

class ReportLines {
  public:
    /// `bytesHeld`: what the lines before this report take up, as by BytesOf.
    explicit ReportLines(std::size_t bytesHeld = 0) : bytes_(bytesHeld) {}

    /// What a line takes up, in bytes.
    static std::size_t BytesOf(const std::string& line) {
        return sizeof(std::string) + line.size();
    }

    /// Throws Failure "Out of memory" where the report and the lines before it would grow past what
    /// a machine holds; what was added before stays.
    void Add(std::string line);
    /// The same for a line that is still being written: throws where it is too long already.
    static void CheckLength(const std::string& line);

    const std::vector<std::string>& Lines() const { return lines_; }
    std::vector<std::string> Take() { return std::exchange(lines_, {}); }

  private:
    std::vector<std::string> lines_;
    std::size_t bytes_;
};

}  // namespace quenloft
