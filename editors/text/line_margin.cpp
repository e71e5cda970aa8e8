#include "editors/text/line_margin.h"

#include <QPaintEvent>
#include <QPainter>

#include "editors/text/code_box.h"

namespace quenloft {
namespace {

constexpr int kPadding = 6;  // Pixels on both sides of the numbers.

}  // namespace

LineMargin::LineMargin(CodeBox& box) : QWidget(&box), box_(box) {
    setObjectName(QStringLiteral("lineMargin"));
}

QSize LineMargin::sizeHint() const {
    constexpr int kFewestDigits = 3;  // So that the text does not move in most files.
    const auto digits = qMax<qsizetype>(kFewestDigits, QString::number(box_.LineCount()).size());
    const int digitWidth = box_.fontMetrics().horizontalAdvance(u'9');
    return {static_cast<int>(digits) * digitWidth + 2 * kPadding, 0};
}

void LineMargin::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QColor base = box_.palette().color(QPalette::Base);
    const QColor text = box_.palette().color(QPalette::Text);
    constexpr double kMarginShare = 0.04;
    const QColor background = Blend(base, text, kMarginShare);
    painter.fillRect(event->rect(), background);
    for (const VisibleLine& line : box_.VisibleLines()) {
        constexpr double kQuietShare = 0.5;
        painter.setPen(line.hasCaret ? text
                                     : ReadableOn(background, Blend(base, text, kQuietShare)));
        painter.setFont(box_.font());
        painter.drawText(0, line.top, width() - kPadding, box_.fontMetrics().height(),
                         Qt::AlignRight, QString::number(line.number));
    }
}

}  // namespace quenloft
