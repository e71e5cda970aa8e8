// Colours the blocks of a document that are about to be painted, and no others.
#pragma once

#include <QTextBlock>

#include "editors/text/code_colours.h"
#include "editors/text/language_scanner.h"

class QTextDocument;

namespace quenloft {

/// A highlighter of the whole document would cost more than laying it out; here the time depends on
/// what is seen only. Each block's user state notes what its colours were made from.
class VisibleColouring {
  public:
    VisibleColouring(QTextDocument& document, const CodeColours& colours);

    void SetLanguage(Language language);
    void SetColours(const CodeColours& colours);

    /// Brings the blocks from `first` to `last` up to date. Those that change are laid out anew.
    void Colour(const QTextBlock& first, const QTextBlock& last);

  private:
    /// What a line takes over from the one above it.
    struct Carry {
        Part part = Part::Start;
        MarkSet open = 0;
    };

    Carry CarryInto(const QTextBlock& block) const;
    LineContext ContextOf(const QTextBlock& block, const QString& text, Carry carry) const;
    bool BeginsText(const QTextBlock& block) const;
    bool IsHeader(const QTextBlock& block) const;
    MarkSet LaterMarks(const QTextBlock& block, bool isHeader) const;
    ScannedLine Scan(const QTextBlock& block, Carry carry, LineContext& context) const;
    bool Apply(const QTextBlock& block, const ScannedLine& line, const LineContext& context);
    int StampOf(const QTextBlock& block, const LineContext& context) const;

    QTextDocument& document_;
    CodeColours colours_;
    Language language_ = Language::Script;
    unsigned generation_ = 0;  // Of language and colours.
    QTextBlock header_;        // Of a table, during Colour().
};

}  // namespace quenloft
