// The lists of an RTF file: which paragraph is an item of what, and its number.
#pragma once

#include <string>
#include <string_view>

#include "author/rtf_state.h"
#include "author/rtf_tables.h"

namespace quenloft {

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

/// Three things tell of an item: a group of its own ("\pn"), the list table, and the label that is
/// written before it for readers without lists. The label has the right number when all is well.
class RtfNumbering {
  public:
    RtfListTable& Table() { return table_; }

    /// A "\pn" group begins within a paragraph of this state, goes on, and ends.
    void BeginGroup(const RtfParagraphState& paragraph);
    void ReadWord(const RtfToken& word);
    void EndGroup(RtfParagraphState& paragraph) const;

    void BeginLabel() { label_.clear(); }
    void AddToLabel(std::string_view utf8);

    /// The item that a paragraph is which ends now.
    ListItem EndParagraph(const RtfParagraphState& paragraph);

  private:
    ListKind KindOf(const RtfParagraphState& paragraph) const;
    int NumberOf(const RtfParagraphState& paragraph, ListKind kind);

    RtfListTable table_;
    ListItem group_;
    int groupStart_ = 1;
    std::string label_;
    ListCounter counter_;
};

}  // namespace quenloft
