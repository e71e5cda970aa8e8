#include "shell/text_box.h"

#include <QMimeData>
#include <QTextBlock>
#include <vector>

#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

// Laying out a word takes a time that grows with the square of its length: one of a million letters
// would hold up the program for minutes. So longer lines stand in several blocks, which are marked
// and become one line again on their way out.
constexpr qsizetype kLongestBlock = 4096;
constexpr int kGoesOn = 1;  // State of a block that goes on with the line of the block before it.

// The end of the next piece of `text`: behind a line feed, or else behind the last blank.
qsizetype PieceLength(QStringView text) {
    const QStringView head = text.left(kLongestBlock);
    const qsizetype feed = head.indexOf(u'\n');
    if (feed >= 0) {
        return feed + 1;
    }
    const qsizetype blank = head.lastIndexOf(u' ');
    if (blank >= 0) {
        return blank + 1;
    }
    return head.back().isHighSurrogate() ? head.size() - 1 : head.size();
}

// Breaks the long lines of `text` by line feeds and returns the places behind these.
std::vector<int> BreakLongLines(QString& text) {
    std::vector<int> places;
    QString broken;
    QStringView rest(text);
    while (rest.size() > kLongestBlock) {
        const QStringView piece = rest.left(PieceLength(rest));
        broken += piece;
        if (!piece.endsWith(u'\n')) {
            broken += u'\n';
            places.push_back(static_cast<int>(broken.size()));
        }
        rest = rest.mid(piece.size());
    }
    if (!places.empty()) {
        broken += rest;
        text = broken;
    }
    return places;
}

// In one piece: each piece costs a time that grows with the document.
void Insert(QTextCursor& cursor, QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    const std::vector<int> breaks = BreakLongLines(text);
    const int start = cursor.position();
    cursor.insertText(text);
    for (const int place : breaks) {
        cursor.document()->findBlock(start + place).setUserState(kGoesOn);
    }
}

// Block by block: the document's own functions turn no-break spaces into blanks.
QString TextBetween(const QTextDocument& document, int start, int end, QLatin1String lineBreak) {
    QString text;
    for (QTextBlock block = document.findBlock(start); block.isValid() && block.position() <= end;
         block = block.next()) {
        const bool isFirst = block.position() <= start;
        if (!isFirst && block.userState() != kGoesOn) {
            text += lineBreak;
        }
        const int from = isFirst ? start - block.position() : 0;
        text += QStringView(block.text()).mid(from, end - block.position() - from);
    }
    return text;
}

QString Selection(const QPlainTextEdit& box, QLatin1String lineBreak) {
    const QTextCursor cursor = box.textCursor();
    return TextBetween(*box.document(), cursor.selectionStart(), cursor.selectionEnd(), lineBreak);
}

}  // namespace

TextBox::TextBox(QWidget* parent) : QPlainTextEdit(parent) { setTabChangesFocus(true); }

std::string TextBox::Text() const { return WholeText(*this); }

void TextBox::SetText(std::string_view text) {
    clear();
    AppendText(text);
    moveCursor(QTextCursor::Start);
}

void TextBox::AppendText(std::string_view text) {
    // Undo would keep every result of a long run a second time.
    setUndoRedoEnabled(false);
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    Insert(end, ToQt(text));
    setUndoRedoEnabled(true);
}

QMimeData* TextBox::createMimeDataFromSelection() const {
    auto* data = new QMimeData;
    data->setText(Selection(*this, QLatin1String("\n")));
    return data;
}

bool TextBox::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText() && !source->hasUrls();
}

std::string SelectedText(const QPlainTextEdit& box) {
    return FromQt(Selection(box, QLatin1String("\r\n")));
}

std::string WholeText(const QPlainTextEdit& box) {
    const QTextDocument& document = *box.document();
    return FromQt(TextBetween(document, 0, document.characterCount() - 1, QLatin1String("\r\n")));
}

}  // namespace quenloft
