// The port to the clipboard, plain text only.
#pragma once

#include <string>

namespace quenloft {

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual std::string GetText() = 0;
    virtual void SetText(const std::string& text) = 0;
};

}  // namespace quenloft
