// The port to services of the user's desktop.
#pragma once

#include <string>
#include <vector>

namespace quenloft {

class Desktop {
  public:
    virtual ~Desktop() = default;
    /// Moves the file at a native path to the desktop's trash; false where there is none.
    virtual bool MoveToTrash(const std::string& nativePath) = 0;
    /// Starts a program by its name, with arguments, and lets it go on by itself; false where it is
    /// not installed or does not start.
    virtual bool StartProgram(const std::string& name,
                              const std::vector<std::string>& arguments) = 0;
};

}  // namespace quenloft
