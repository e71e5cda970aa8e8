#include "author/rich_text_box.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextList>
#include <algorithm>

#include "author/plain_text.h"
#include "author/qt_formats.h"
#include "author/rich_document.h"
#include "author/rtf_reader.h"
#include "author/rtf_writer.h"
#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

// The names that RTF goes by on the clipboard.
constexpr const char* kRtfTypes[] = {"text/rtf", "application/rtf", "text/richtext"};

QByteArray RtfIn(const QMimeData& data) {
    for (const char* type : kRtfTypes) {
        const QByteArray bytes = data.data(QLatin1String(type));
        if (IsRtf({bytes.constData(), static_cast<std::size_t>(bytes.size())})) {
            return bytes;
        }
    }
    return {};
}

bool HoldsFiles(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

// A selection that ends before the first character of a block, as that of whole lines does, shows
// nothing of that block as selected: what is returned ends before it.
QTextCursor AsSeen(const QTextCursor& selection) {
    QTextCursor seen(selection);
    const int end = selection.selectionEnd();
    if (selection.hasSelection() && selection.document()->findBlock(end).position() == end) {
        seen.setPosition(selection.selectionStart());
        seen.setPosition(end - 1, QTextCursor::KeepAnchor);
    }
    return seen;
}

// The blocks that `selection` touches.
QList<QTextBlock> BlocksOf(const QTextCursor& selection) {
    QList<QTextBlock> blocks;
    const QTextCursor seen = AsSeen(selection);
    for (QTextBlock block = seen.document()->findBlock(seen.selectionStart());
         block.isValid() && block.position() <= seen.selectionEnd(); block = block.next()) {
        blocks.append(block);
    }
    return blocks;
}

// Whether `selection` is of several blocks, items of lists among them: a tab would replace them.
bool SpansItems(const QTextCursor& selection) {
    const QTextDocument& document = *selection.document();
    if (document.findBlock(selection.selectionStart()) ==
        document.findBlock(selection.selectionEnd())) {
        return false;
    }
    const QList<QTextBlock> blocks = BlocksOf(selection);
    return std::any_of(blocks.begin(), blocks.end(),
                       [](const QTextBlock& block) { return block.textList() != nullptr; });
}

void EndList(const QTextBlock& block) {
    if (QTextList* list = block.textList()) {
        list->remove(block);
    }
    QTextCursor cursor(block);
    QTextBlockFormat format = cursor.blockFormat();
    format.setIndent(0);
    cursor.setBlockFormat(format);
}

// The list of this level that `block` would go on with; null where there is none.
QTextList* ListBefore(const QTextBlock& block, int level) {
    for (QTextBlock before = block.previous(); before.textList(); before = before.previous()) {
        const int levelBefore = ListItemOf(before).level;
        if (levelBefore <= level) {
            return levelBefore == level ? before.textList() : nullptr;
        }
    }
    return nullptr;
}

}  // namespace

RichTextBox::RichTextBox(QWidget* parent) : QTextEdit(parent) { PrepareDocument(*document()); }

RichText RichTextBox::Text() const { return TextOf(*document()); }

void RichTextBox::SetText(const RichText& text) {
    ShowText(text, *document());
    moveCursor(QTextCursor::Start);
}

RichText RichTextBox::SelectedText() const {
    QTextDocument part;
    PrepareDocument(part);
    part.setDefaultFont(document()->defaultFont());
    QTextCursor(&part).insertFragment(textCursor().selection());
    return TextOf(part);
}

void RichTextBox::PasteText(const QString& text) {
    QTextCursor cursor = textCursor();
    InsertPlainText(text, cursor);
    ensureCursorVisible();
}

void RichTextBox::ChangeFormat(const QTextCharFormat& change) { mergeCurrentCharFormat(change); }

void RichTextBox::ChangeColor(const Color& color) {
    QTextCharFormat change;
    if (color) {
        change.setForeground(QColor::fromRgb(*color));
    } else {
        change.setForeground(Qt::NoBrush);  // Merging cannot take a property away.
    }
    ChangeFormat(change);
}

void RichTextBox::ChangeList(ListKind kind) {
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    if (kind == ListKind::None) {
        for (const QTextBlock& block : BlocksOf(cursor)) {
            EndList(block);
        }
    } else {
        const int level = ListItemOf(document()->findBlock(cursor.selectionStart())).level;
        AsSeen(cursor).createList(ListFormatOf(kind, level));
    }
    cursor.endEditBlock();
    emit cursorPositionChanged();
}

void RichTextBox::ChangeListLevel(int by) {
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    for (const QTextBlock& block : BlocksOf(cursor)) {
        const ListItem item = ListItemOf(block);
        const int level = std::clamp(item.level + by, 0, kListLevels - 1);
        if (item.kind == ListKind::None || level == item.level) {
            continue;
        }
        if (QTextList* list = ListBefore(block, level)) {
            list->add(block);
        } else {
            QTextCursor(block).createList(ListFormatOf(item.kind, level));
        }
    }
    cursor.endEditBlock();
}

void RichTextBox::focusInEvent(QFocusEvent* event) {
    QTextEdit::focusInEvent(event);
    emit GotFocus();
}

void RichTextBox::keyPressEvent(QKeyEvent* event) {
    if (HandleListKey(*event)) {
        return;
    }
    if (event->key() == Qt::Key_Backtab) {
        // Tab is a character of the text; this is the way out by the keyboard.
        LeaveBackwards();
        return;
    }
    const bool isEnter = event->matches(QKeySequence::InsertParagraphSeparator);
    QTextEdit::keyPressEvent(event);
    QTextCursor cursor = textCursor();
    if (const QTextBlockFormat format = cursor.blockFormat();
        isEnter && NextParagraph(format) != format) {
        cursor.joinPreviousEditBlock();
        cursor.setBlockFormat(NextParagraph(format));
        cursor.endEditBlock();
    }
}

// What word processors do in lists: Tab and Shift+Tab at the start of an item or with several items
// selected change their level, Enter in an empty one leaves the list.
bool RichTextBox::HandleListKey(const QKeyEvent& key) {
    const QTextCursor cursor = textCursor();
    const bool isTab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
    const bool isAtItem = cursor.block().textList() && cursor.atBlockStart();
    if (!isAtItem && !(isTab && SpansItems(cursor))) {
        return false;
    }
    const bool isEmpty = cursor.block().length() == 1;
    switch (key.key()) {
        case Qt::Key_Tab:
            ChangeListLevel(1);
            return true;
        case Qt::Key_Backtab:
            ChangeListLevel(-1);
            return true;
        case Qt::Key_Backspace:
            if (!cursor.hasSelection()) {
                ChangeList(ListKind::None);
                return true;
            }
            return false;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (isEmpty && !cursor.hasSelection() && key.modifiers() == Qt::NoModifier) {
                ChangeList(ListKind::None);
                return true;
            }
            return false;
        default:
            return false;
    }
}

void RichTextBox::LeaveBackwards() {
    QWidget* before = previousInFocusChain();
    while (before != this && !(before->isVisible() && before->isEnabled() &&
                               (before->focusPolicy() & Qt::TabFocus) != 0)) {
        before = before->previousInFocusChain();
    }
    before->setFocus(Qt::BacktabFocusReason);
}

QMimeData* RichTextBox::createMimeDataFromSelection() const {
    QMimeData* data = QTextEdit::createMimeDataFromSelection();
    const RichText text = SelectedText();
    data->setText(ToQt(PlainTextOf(text)).remove(u'\r'));
    data->setData(QLatin1String(kRtfTypes[0]), QByteArray::fromStdString(WriteRtf(text)));
    return data;
}

bool RichTextBox::canInsertFromMimeData(const QMimeData* source) const {
    return !HoldsFiles(*source) &&
           (source->hasText() || source->hasHtml() || !RtfIn(*source).isEmpty());
}

void RichTextBox::insertFromMimeData(const QMimeData* source) {
    QTextCursor cursor = textCursor();
    if (const QByteArray rtf = RtfIn(*source); !rtf.isEmpty()) {
        InsertText(ReadRtf({rtf.constData(), static_cast<std::size_t>(rtf.size())}).text, cursor);
    } else if (source->hasHtml()) {
        InsertText(TextOfPage(source->html()), cursor);
    } else {
        InsertPlainText(source->text(), cursor);
    }
    ensureCursorVisible();
}

RichText RichTextBox::TextOfPage(const QString& html) const {
    QTextDocument page;
    PrepareDocument(page);
    page.setDefaultFont(document()->defaultFont());
    page.setHtml(html);
    return TextOf(page);
}

}  // namespace quenloft
