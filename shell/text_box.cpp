#include "shell/text_box.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>

#include "platform/qt/qt_text.h"
#include "shell/document_text.h"

namespace quenloft {
namespace {

QString Selection(const QPlainTextEdit& box, QLatin1String lineBreak) {
    const QTextCursor cursor = box.textCursor();
    return cursor.hasSelection() ? TextBetween(*box.document(), cursor.selectionStart(),
                                               cursor.selectionEnd(), lineBreak)
                                 : QString();
}

// Where a line goes on in the next block, two characters stand between its two sides: the one that
// says so, and the end of the block.
constexpr int kBreakLength = 2;

bool IsBeforeBreak(const QTextCursor& cursor) {
    return GoesOn(cursor.block()) &&
           cursor.positionInBlock() == cursor.block().length() - kBreakLength;
}

bool IsBehindBreak(const QTextCursor& cursor) {
    return cursor.atBlockStart() && IsContinued(cursor.block());
}

}  // namespace

TextBox::TextBox(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    // As narrow as its scroll bar, a box would show and hide that for ever: with it there is no
    // width to wrap at, so the text needs one line and no bar; without it, many lines and a bar.
    setMinimumWidth(minimumSizeHint().width());
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &TextBox::KeepCaretOffBreaks);
}

std::string TextBox::Text() const { return WholeText(*this); }

void TextBox::SetText(std::string_view text) {
    clear();
    AppendText(text);
}

void TextBox::AppendText(std::string_view text) {
    const bool wasEmpty = document()->isEmpty();
    // Undo would keep every result of a long run a second time.
    setUndoRedoEnabled(false);
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    InsertText(end, ToQt(text));
    setUndoRedoEnabled(true);
    if (wasEmpty) {
        moveCursor(QTextCursor::Start);  // Where it was: text that comes to it pushes it on.
    }
}

QMimeData* TextBox::createMimeDataFromSelection() const {
    auto* data = new QMimeData;
    data->setText(Selection(*this, QLatin1String("\n")));
    return data;
}

bool TextBox::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText() && !source->hasUrls();
}

void TextBox::insertFromMimeData(const QMimeData* source) { InsertText(*this, source->text()); }

void TextBox::keyPressEvent(QKeyEvent* event) {
    if (StepOverBreak(*event)) {
        event->accept();
        return;
    }
    if (event->matches(QKeySequence::InsertLineSeparator) && !isReadOnly()) {
        // Shift+Enter would put a character into the text that ends no line of a file.
        QKeyEvent enter(event->type(), Qt::Key_Return, Qt::NoModifier);
        QPlainTextEdit::keyPressEvent(&enter);
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

// What were typed between the two characters of a break would end the line there.
void TextBox::KeepCaretOffBreaks() {
    QTextCursor cursor = textCursor();
    if (cursor.atBlockEnd() && GoesOn(cursor.block())) {
        cursor.movePosition(QTextCursor::PreviousCharacter, cursor.hasSelection()
                                                                ? QTextCursor::KeepAnchor
                                                                : QTextCursor::MoveAnchor);
        setTextCursor(cursor);
    }
}

// The caret goes over a break with one key, and no key deletes one instead of a letter. True when
// nothing else remains to be done.
bool TextBox::StepOverBreak(const QKeyEvent& event) {
    QTextCursor cursor = textCursor();
    const int key = event.key();
    const bool moves = key == Qt::Key_Left || key == Qt::Key_Right;
    const bool deletes =
        (key == Qt::Key_Backspace || key == Qt::Key_Delete) && !cursor.hasSelection();
    const bool forwards = key == Qt::Key_Right || key == Qt::Key_Delete;
    if ((!moves && !deletes) || !(forwards ? IsBeforeBreak(cursor) : IsBehindBreak(cursor))) {
        return false;
    }
    const bool selects = moves && event.modifiers().testFlag(Qt::ShiftModifier);
    cursor.setPosition(cursor.position() + (forwards ? kBreakLength : -kBreakLength),
                       selects ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
    setTextCursor(cursor);
    return moves;
}

std::string SelectedText(const QPlainTextEdit& box) {
    return FromQt(Selection(box, QLatin1String("\r\n")));
}

std::string WholeText(const QPlainTextEdit& box) {
    return FromQt(WholeText(*box.document(), QLatin1String("\r\n")));
}

void InsertText(QPlainTextEdit& box, const QString& text) {
    QTextCursor cursor = box.textCursor();
    InsertText(cursor, text);
    box.setTextCursor(cursor);
    box.ensureCursorVisible();
}

}  // namespace quenloft
