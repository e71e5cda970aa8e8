#include "shell/program_icon.h"

#include <QPainter>
#include <QPixmap>

namespace quenloft {
namespace {

QPixmap DrawDie(int size) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 16.0, size / 16.0);  // Drawn on a grid of 16.
    painter.setPen(QPen(QColor(0x5A, 0x1E, 0x22), 1));
    painter.setBrush(QColor(0xA8, 0x32, 0x38));
    painter.drawRoundedRect(QRectF(1, 1, 14, 14), 3.5, 3.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    for (const QPointF pip : {QPointF(4.8, 4.8), QPointF(11.2, 4.8), QPointF(8, 8),
                              QPointF(4.8, 11.2), QPointF(11.2, 11.2)}) {
        painter.drawEllipse(pip, 1.5, 1.5);
    }
    return picture;
}

}  // namespace

QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        icon.addPixmap(DrawDie(size));
    }
    return icon;
}

}  // namespace quenloft
