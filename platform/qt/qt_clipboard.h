// The desktop's clipboard.
#pragma once

#include "platform/clipboard.h"

namespace quenloft {

class QtClipboard : public Clipboard {
  public:
    std::string GetText() override;
    /// Line ends go out as LF, the desktop's own: other programs would show CR LF as two.
    void SetText(const std::string& text) override;
};

}  // namespace quenloft
