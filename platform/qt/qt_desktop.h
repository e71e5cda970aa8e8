// The trash of the desktop, as the freedesktop.org rules lay it out.
#pragma once

#include "platform/desktop.h"

namespace quenloft {

class QtDesktop : public Desktop {
  public:
    bool MoveToTrash(const std::string& nativePath) override;
};

}  // namespace quenloft
