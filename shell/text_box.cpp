#include "shell/text_box.h"

#include <QMimeData>
#include <QTextBlock>

#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

// Laying out a word takes a time that grows with the square of its length: one of a million letters
// would hold up the program for minutes. So longer lines stand in several blocks, which are marked
// and become one line again on their way out.
constexpr qsizetype kLongestBlock = 4096;
constexpr int kGoesOn = 1;  // State of a block that goes on with the line of the block before it.

qsizetype BreakBefore(const QString& line, qsizetype from) {
    const qsizetype end = from + kLongestBlock;
    const qsizetype blank = line.lastIndexOf(u' ', end - 1);
    qsizetype at = blank > from ? blank + 1 : end;
    if (line[at - 1].isHighSurrogate()) {
        --at;
    }
    return at;
}

void InsertLine(QTextCursor& cursor, const QString& line) {
    qsizetype from = 0;
    while (line.size() - from > kLongestBlock) {
        const qsizetype end = BreakBefore(line, from);
        cursor.insertText(line.mid(from, end - from));
        cursor.insertBlock();
        cursor.block().setUserState(kGoesOn);
        from = end;
    }
    cursor.insertText(line.mid(from));
}

bool HasLongLine(const QString& text) {
    qsizetype from = 0;
    while (text.size() - from > kLongestBlock) {
        const qsizetype end = text.indexOf(u'\n', from);
        if (end < 0 || end - from > kLongestBlock) {
            return true;
        }
        from = end + 1;
    }
    return false;
}

void Insert(QTextCursor& cursor, QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    cursor.beginEditBlock();
    if (!HasLongLine(text)) {
        cursor.insertText(text);
    } else {
        bool first = true;
        for (const QString& line : text.split(u'\n')) {
            if (!first) {
                cursor.insertBlock();
                cursor.block().setUserState(-1);
            }
            InsertLine(cursor, line);
            first = false;
        }
    }
    cursor.endEditBlock();
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
