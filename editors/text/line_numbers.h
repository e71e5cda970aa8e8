// Numbers of lines in a document where long lines stand in several blocks.
#pragma once

#include <QObject>
#include <vector>

class QTextBlock;
class QTextDocument;

namespace quenloft {

/// Counts lines as files have them (see shell/document_text.h); follows every change.
class LineNumbers : public QObject {
    Q_OBJECT

  public:
    explicit LineNumbers(QTextDocument& document);

    /// Of the line that `block` belongs to, counted from 1.
    int LineOf(const QTextBlock& block) const;
    /// The block that `line` begins with; the last line's for numbers past the end.
    QTextBlock FirstBlockOf(int line) const;
    int LineCount() const;

  private:
    void Follow(int position, int removed, int added);

    QTextDocument& document_;
    std::vector<int> breaks_;  // Positions, in order, of what ends blocks whose line goes on.
};

}  // namespace quenloft
