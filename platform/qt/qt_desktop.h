// The trash of the desktop, as the freedesktop.org rules lay it out, and its programs.
#pragma once

#include "platform/desktop.h"

namespace quenloft {

class QtDesktop : public Desktop {
  public:
    bool MoveToTrash(const std::string& nativePath) override;
    bool StartProgram(const std::string& name, const std::vector<std::string>& arguments) override;
};

}  // namespace quenloft
