#include "shell/elided_widgets.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "engine/text_helpers.h"
#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

// Narrower than this, a title tells nothing.
constexpr int kFewestLetters = 10;
// Wider than this, a title alone does not make its window wider.
constexpr int kMostLetters = 40;

// The bar of a marked button, and its distance from the edges.
constexpr int kBar = 4;
constexpr int kEdge = 2;

// Whatever the title holds, it is text; and long ones are wrapped.
QString ToolTipOf(const QString& title) {
    constexpr std::size_t kMostInToolTip = 5000;  // More than fits on a screen.
    const QString shown = ToQt(ShownTitle(FromQt(title), kMostInToolTip));
    return shown.isEmpty() ? QString() : QStringLiteral("<qt>%1</qt>").arg(shown.toHtmlEscaped());
}

int WidthOf(const QWidget& widget, int letters) {
    return widget.fontMetrics().averageCharWidth() * letters;
}

}  // namespace

TitleButton::TitleButton(QWidget* parent) : QPushButton(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TitleButton::SetTitle(const QString& title) {
    const QString shown = ToQt(ShownTitle(FromQt(title)));
    setText(QString(shown).replace(u'&', QLatin1String("&&")));
    setToolTip(ToolTipOf(title));
}

void TitleButton::SetMarked(bool marked) {
    if (marked_ == marked) {
        return;
    }
    marked_ = marked;
    QFont bold = font();
    bold.setBold(marked);
    setFont(bold);
    setAccessibleDescription(marked ? tr("Its result is shown") : QString());
}

QSize TitleButton::sizeHint() const {
    const QSize whole = QPushButton::sizeHint();
    return {qMin(whole.width(), WidthOf(*this, kMostLetters)), whole.height()};
}

QSize TitleButton::minimumSizeHint() const {
    return {WidthOf(*this, kFewestLetters), QPushButton::minimumSizeHint().height()};
}

void TitleButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect inside = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    option.text = option.fontMetrics.elidedText(
        option.text, Qt::ElideRight, inside.width() - 2 * (kBar + kEdge), Qt::TextShowMnemonic);
    painter.drawControl(QStyle::CE_PushButton, option);
    if (marked_) {
        const QRect bar(isRightToLeft() ? width() - kEdge - kBar : kEdge, kEdge, kBar,
                        height() - 2 * kEdge);
        painter.fillRect(bar, palette().highlight());
    }
}

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void ElidedLabel::SetTitle(const QString& title) {
    const QString shown = ToQt(ShownTitle(FromQt(title)));
    setText(shown);
    setToolTip(ToolTipOf(title));
}

QSize ElidedLabel::minimumSizeHint() const {
    return {WidthOf(*this, kFewestLetters), fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), Qt::AlignVCenter | Qt::AlignLeading, palette(),
                          isEnabled(), fontMetrics().elidedText(text(), Qt::ElideRight, width()),
                          foregroundRole());
}

}  // namespace quenloft
