// The port to services of the user's desktop.
#pragma once

#include <string>

namespace quenloft {

class Desktop {
  public:
    virtual ~Desktop() = default;
    /// Moves the file at a native path to the desktop's trash; false where there is none.
    virtual bool MoveToTrash(const std::string& nativePath) = 0;
};

}  // namespace quenloft
