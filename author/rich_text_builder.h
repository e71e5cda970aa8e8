// Puts a document together as a reader comes upon its pieces.
#pragma once

#include <cstddef>
#include <string_view>

#include "author/rich_text.h"

namespace quenloft {

/// Bounded: a broken or malicious file can fill neither the memory nor the window.
class RichTextBuilder {
  public:
    /// Adds to the paragraph begun last. Characters that no text has (controls, noncharacters) are
    /// left out.
    void AddText(std::string_view utf8, const CharFormat& format);
    void EndParagraph(const CharFormat& endFormat, const ParagraphFormat& format);

    /// No more is taken: the rest of the text is lost.
    bool IsFull() const { return isFull_; }
    bool ParagraphIsEmpty() const { return current_.runs.empty(); }

    /// The paragraphs that were ended; one at least.
    RichText Take();

  private:
    RichText text_;
    Paragraph current_;
    std::size_t bytes_ = 0;
    std::size_t runs_ = 0;
    bool isFull_ = false;
};

}  // namespace quenloft
