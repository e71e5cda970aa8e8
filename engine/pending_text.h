// A text being expanded mark by mark: what is finished in front, what may still hold marks behind.
#pragma once

#include <cstring>
#include <string>
#include <string_view>

namespace quenloft {

/// Taking from the front and putting back results there is linear in what is taken and put.
class PendingText {
  public:
    explicit PendingText(std::string text) : buffer_(std::move(text)) {}

    std::string_view View() const { return std::string_view(buffer_).substr(start_); }
    std::size_t Size() const { return buffer_.size() - start_; }
    void Drop(std::size_t count) { start_ += count; }

    void PutBack(std::string_view text) {
        if (text.size() > start_) {
            // Room for as much as there is: putting back again and again stays linear.
            const std::size_t room = text.size() + Size();
            buffer_.insert(0, room, '\0');
            start_ += room;
        }
        start_ -= text.size();
        std::memcpy(buffer_.data() + start_, text.data(), text.size());
    }

  private:
    std::string buffer_;
    std::size_t start_ = 0;
};

}  // namespace quenloft
