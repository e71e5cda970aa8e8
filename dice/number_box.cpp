#include "dice/number_box.h"

#include <QFocusEvent>

namespace quenloft {
namespace {

QSize RoomFor(const QLineEdit& box, QSize usual, const QString& digits) {
    // The height of a line is room enough for frame and margins in any style.
    const QFontMetrics font = box.fontMetrics();
    return {font.horizontalAdvance(digits) + font.height(), usual.height()};
}

}  // namespace

NumberBox::NumberBox(QWidget* parent) : QLineEdit(parent) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void NumberBox::MakeRoomForAnyNumber() {
    usual_ = shortest_ = QStringLiteral("0000000000");
    updateGeometry();
}

QSize NumberBox::sizeHint() const { return RoomFor(*this, QLineEdit::sizeHint(), usual_); }

QSize NumberBox::minimumSizeHint() const {
    return RoomFor(*this, QLineEdit::minimumSizeHint(), shortest_);
}

void NumberBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::OtherFocusReason) {
        selectAll();
    }
}

}  // namespace quenloft
