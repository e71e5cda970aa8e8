// An output box during one run.
#pragma once

#include <string_view>

namespace quenloft {

class TextBox;
struct ServiceSet;

/// Until the result is there the box says that the run is going on. That is seen only in runs that
/// last long enough for the window to be drawn.
class ResultBox {
  public:
    ResultBox(TextBox& box, const ServiceSet& services);
    ~ResultBox();
    ResultBox(const ResultBox&) = delete;
    ResultBox& operator=(const ResultBox&) = delete;

    /// Caret at the start. A large result comes in pieces with turns of the event loop between
    /// them; an abort, also one before, cuts it (see shell/append_result.h).
    void Show(std::string_view result);

  private:
    TextBox& box_;
    const ServiceSet& services_;
};

}  // namespace quenloft
