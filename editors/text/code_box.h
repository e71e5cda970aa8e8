// The box that tables and scripts are written in as text.
#pragma once

#include <QTextCursor>
#include <optional>
#include <vector>

#include "editors/text/line_numbers.h"
#include "editors/text/visible_colouring.h"
#include "shell/text_box.h"

namespace quenloft {

class LineMargin;

/// A line as it is seen; pixels from the top of the viewport.
struct VisibleLine {
    int number = 0;
    int top = 0;
    bool hasCaret = false;
};

/// Line numbers in the margin, the caret's line and one faulty line marked, colours. Files, and
/// what follows on a typed "#", are left to the window.
class CodeBox : public TextBox {
    Q_OBJECT

  public:
    explicit CodeBox(QWidget* parent = nullptr);

    void SetLanguage(Language language);

    /// The text with "\n" between its lines.
    std::string Lines() const;
    /// Counted from 1; where the selection ends.
    int CaretLine() const;
    int LineCount() const { return numbers_.LineCount(); }
    /// Those in the viewport.
    std::vector<VisibleLine> VisibleLines() const;

    /// Marks `line` (counted from 1; the last one where there are fewer), shows it and puts the
    /// caret there. `message` is its tool tip. The mark goes when the line is changed.
    void MarkLine(int line, const QString& message);
    void Unmark();

  signals:
    void focused();
    /// Caret, selection or the number of lines above them changed.
    void caretMoved();
    /// The user typed "#", which is not in the text. By the letter, whatever the keyboard.
    void numberSignTyped();
    /// The line that MarkLine marked was changed.
    void unmarked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    void FollowText();
    void FollowScrolling(const QRect& rect, int dy);
    void PlaceMargin();
    void TakeOverLook();
    void HighlightLines();
    QTextBlock LastVisibleBlock() const;

    LineNumbers numbers_;
    CodeColours colours_;
    VisibleColouring colouring_;
    LineMargin* margin_;
    std::optional<QTextCursor> marked_;
    int markedRevision_ = 0;
    QString markMessage_;
};

}  // namespace quenloft
