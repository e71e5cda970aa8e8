#include "editors/text/code_box.h"

#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolTip>

#include "editors/text/line_margin.h"
#include "platform/qt/qt_text.h"
#include "shell/document_text.h"

namespace quenloft {

CodeBox::CodeBox(QWidget* parent)
    : TextBox(parent),
      numbers_(*document()),
      colours_(palette()),
      colouring_(*document(), colours_),
      margin_(new LineMargin(*this)) {
    setLineWrapMode(NoWrap);
    setTabChangesFocus(false);
    connect(this, &QPlainTextEdit::textChanged, this, &CodeBox::FollowText);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &CodeBox::PlaceMargin);
    connect(this, &QPlainTextEdit::updateRequest, this, &CodeBox::FollowScrolling);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CodeBox::HighlightLines);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CodeBox::caretMoved);
    connect(this, &QPlainTextEdit::selectionChanged, this, &CodeBox::caretMoved);
    TakeOverLook();
}

void CodeBox::SetLanguage(Language language) {
    colouring_.SetLanguage(language);
    viewport()->update();
}

std::string CodeBox::Lines() const { return FromQt(WholeText(*document(), QLatin1String("\n"))); }

int CodeBox::CaretLine() const {
    return numbers_.LineOf(document()->findBlock(textCursor().selectionEnd()));
}

std::vector<VisibleLine> CodeBox::VisibleLines() const {
    std::vector<VisibleLine> lines;
    const int caretLine = numbers_.LineOf(textCursor().block());
    const QTextBlock last = LastVisibleBlock();
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        if (!IsContinued(block)) {
            const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
            const int number = numbers_.LineOf(block);
            lines.push_back({number, qRound(place.top()), number == caretLine});
        }
        if (block == last) {
            break;
        }
    }
    return lines;
}

void CodeBox::MarkLine(int line, const QString& message) {
    const QTextCursor cursor(numbers_.FirstBlockOf(line));
    setTextCursor(cursor);
    marked_ = cursor;
    markedRevision_ = cursor.block().revision();
    markMessage_ = message;
    centerCursor();
    HighlightLines();
}

void CodeBox::Unmark() {
    if (marked_) {
        marked_.reset();
        HighlightLines();
        emit unmarked();
    }
}

void CodeBox::paintEvent(QPaintEvent* event) {
    colouring_.Colour(firstVisibleBlock(), LastVisibleBlock());
    TextBox::paintEvent(event);
}

void CodeBox::resizeEvent(QResizeEvent* event) {
    TextBox::resizeEvent(event);
    PlaceMargin();
}

void CodeBox::changeEvent(QEvent* event) {
    TextBox::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange ||
        event->type() == QEvent::StyleChange) {
        TakeOverLook();
    }
}

void CodeBox::focusInEvent(QFocusEvent* event) {
    TextBox::focusInEvent(event);
    emit focused();
}

void CodeBox::keyPressEvent(QKeyEvent* event) {
    constexpr auto kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const bool isTyped = (event->modifiers() & kCommands) == 0 && !isReadOnly();
    if (isTyped && event->text() == QLatin1String("#")) {
        emit numberSignTyped();
    } else if (event->key() == Qt::Key_Backtab) {
        // The tab key writes tabs here; this is the way out for those without a mouse.
        setTabChangesFocus(true);
        focusPreviousChild();
        setTabChangesFocus(false);
    } else {
        TextBox::keyPressEvent(event);
    }
}

void CodeBox::inputMethodEvent(QInputMethodEvent* event) {
    if (event->commitString() == QLatin1String("#") && event->replacementLength() == 0) {
        QInputMethodEvent rest(event->preeditString(), event->attributes());
        TextBox::inputMethodEvent(&rest);
        event->accept();
        emit numberSignTyped();
        return;
    }
    TextBox::inputMethodEvent(event);
}

bool CodeBox::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip && marked_) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const bool isOverMark = cursorForPosition(help->pos()).block() == marked_->block();
        QToolTip::showText(help->globalPos(), isOverMark ? markMessage_ : QString(), this);
        return true;
    }
    return TextBox::viewportEvent(event);
}

void CodeBox::FollowText() {
    if (marked_ && marked_->block().revision() != markedRevision_) {
        Unmark();
    }
    emit caretMoved();
}

void CodeBox::FollowScrolling(const QRect& rect, int dy) {
    if (dy != 0) {
        margin_->scroll(0, dy);
    } else {
        margin_->update(0, rect.y(), margin_->width(), rect.height());
    }
}

void CodeBox::PlaceMargin() {
    const int width = margin_->sizeHint().width();
    const QRect inside = contentsRect();
    setViewportMargins(width, 0, 0, 0);
    margin_->setGeometry(inside.left(), inside.top(), width, viewport()->height());
}

void CodeBox::TakeOverLook() {
    constexpr int kTabLetters = 4;
    colours_ = CodeColours(palette());
    colouring_.SetColours(colours_);
    setTabStopDistance(fontMetrics().horizontalAdvance(u' ') * kTabLetters);
    PlaceMargin();
    HighlightLines();
    viewport()->update();
}

void CodeBox::HighlightLines() {
    const auto wholeLine = [](QTextCursor cursor, const QColor& colour) {
        cursor.clearSelection();
        QTextEdit::ExtraSelection line;
        line.cursor = cursor;
        line.format.setBackground(colour);
        line.format.setProperty(QTextFormat::FullWidthSelection, true);
        return line;
    };
    QList<QTextEdit::ExtraSelection> lines{wholeLine(textCursor(), colours_.CaretLine())};
    if (marked_) {
        lines.append(wholeLine(*marked_, colours_.MarkedLine()));
    }
    setExtraSelections(lines);
    margin_->update();
}

QTextBlock CodeBox::LastVisibleBlock() const {
    QTextBlock block = firstVisibleBlock();
    const qreal bottom = viewport()->height();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    for (;;) {
        top += blockBoundingRect(block).height();
        const QTextBlock next = block.next();
        if (top >= bottom || !next.isValid()) {
            return block;
        }
        block = next;
    }
}

}  // namespace quenloft
