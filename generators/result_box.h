// An output box during one run.
#pragma once

#include <string_view>

namespace quenloft {

class TextBox;

/// Until the result is there the box says that the run is going on. That is seen only in runs that
/// last long enough for the window to be drawn.
class ResultBox {
  public:
    explicit ResultBox(TextBox& box);
    ~ResultBox();
    ResultBox(const ResultBox&) = delete;
    ResultBox& operator=(const ResultBox&) = delete;

    void Show(std::string_view result);

  private:
    TextBox& box_;
};

}  // namespace quenloft
