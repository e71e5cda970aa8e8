// The lines of a report as they are written, one after the other.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace quenloft {

class ReportLines {
  public:
    /// Throws Failure "Out of memory" where the report would grow past what a machine holds; what
    /// was added before stays.
    void Add(std::string line);
    /// The same for a line that is still being written: throws where it is too long already.
    static void CheckLength(const std::string& line);

    const std::vector<std::string>& Lines() const { return lines_; }
    std::vector<std::string> Take() { return std::exchange(lines_, {}); }

  private:
    std::vector<std::string> lines_;
    std::size_t bytes_ = 0;
};

}  // namespace quenloft
