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

/// The number of each item of a document's lists, for items whose label does not tell.
class ListCounter {
  public:
    /// `list` tells lists apart; below 0 where it goes on only from one paragraph to the next.
    /// `shown` is the number in the label, 0 where none could be read.
    int Count(int list, int level, int start, int shown);
    /// A paragraph of no list came.
    void Interrupt();

  private:
    struct Last {
        int list = 0;  // 0: none yet.
        int number = 0;
    };
    Last last_[kListLevels];
};

}  // namespace quenloft
