#include "author/format_icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <functional>
#include <utility>

#include "shell/drawn_icon.h"

namespace quenloft {
namespace {

using Drawing = std::function<void(QPainter& painter, const QColor& ink)>;

QIcon Drawn(Drawing drawing, const QPalette& palette) {
    return DrawnIcon(
        [drawing = std::move(drawing), palette](QPainter& painter, QIcon::Mode mode, QIcon::State) {
            const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
            drawing(painter, palette.color(group, QPalette::ButtonText));
        });
}

// A line of text at `y`.
void DrawLine(QPainter& painter, const QColor& ink, double left, double right, double y) {
    painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(left, y), QPointF(right, y));
}

void DrawLetter(QPainter& painter, const QColor& ink, QString letter, QFont font,
                const QRectF& place) {
    font.setPixelSize(qRound(place.height()));
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(place.adjusted(-4, -4, 4, 4), Qt::AlignCenter, letter);
}

// An arrow that turns back to the left.
void DrawTurn(QPainter& painter, const QColor& ink) {
    QPainterPath path(QPointF(3.5, 6.5));
    path.lineTo(9, 6.5);
    path.arcTo(QRectF(5.5, 6.5, 7, 7), 90, -180);
    path.lineTo(6, 13.5);
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.drawPolyline(QPolygonF({{6.5, 3.5}, {3.5, 6.5}, {6.5, 9.5}}));
}

// Three lines with what `mark` draws before each.
void DrawItems(QPainter& painter, const QColor& ink,
               const std::function<void(int item, double y)>& mark) {
    for (int item = 0; item < 3; ++item) {
        const double y = 3 + item * 5;
        DrawLine(painter, ink, 7, 14.5, y);
        mark(item, y);
    }
}

}  // namespace

QIcon AlignmentIcon(Alignment alignment, const QPalette& palette) {
    return Drawn(
        [alignment](QPainter& painter, const QColor& ink) {
            constexpr double kLeft = 1.5;
            constexpr double kRight = 14.5;
            constexpr double kLengths[] = {13, 8, 11, 6};
            double y = 2.5;
            for (const double length : kLengths) {
                const double rest = alignment == Alignment::Justify ? 0 : kRight - kLeft - length;
                const double before = alignment == Alignment::Left     ? 0
                                      : alignment == Alignment::Center ? rest / 2
                                                                       : rest;
                DrawLine(painter, ink, kLeft + before, kRight - (rest - before), y);
                y += 3.6;
            }
        },
        palette);
}

QIcon BulletsIcon(const QPalette& palette) {
    return Drawn(
        [](QPainter& painter, const QColor& ink) {
            DrawItems(painter, ink, [&](int, double y) {
                painter.setPen(Qt::NoPen);
                painter.setBrush(ink);
                painter.drawEllipse(QPointF(3, y), 1.5, 1.5);
            });
        },
        palette);
}

QIcon NumbersIcon(const QPalette& palette) {
    return Drawn(
        [](QPainter& painter, const QColor& ink) {
            DrawItems(painter, ink, [&](int item, double y) {
                DrawLetter(painter, ink, QString::number(item + 1), QFont(),
                           QRectF(0, y - 2.5, 6, 5.5));
            });
        },
        palette);
}

QIcon UndoIcon(const QPalette& palette) { return Drawn(DrawTurn, palette); }

QIcon RedoIcon(const QPalette& palette) {
    return Drawn(
        [](QPainter& painter, const QColor& ink) {
            painter.translate(kIconUnits, 0);
            painter.scale(-1, 1);
            DrawTurn(painter, ink);
        },
        palette);
}

QIcon LetterIcon(QChar letter, const QFont& font, const QPalette& palette) {
    return Drawn(
        [letter, font](QPainter& painter, const QColor& ink) {
            DrawLetter(painter, ink, letter, font, QRectF(0, 1, kIconUnits, 13));
        },
        palette);
}

QIcon ColorIcon(const Color& color, const QPalette& palette) {
    return Drawn(
        [color](QPainter& painter, const QColor& ink) {
            DrawLetter(painter, ink, QStringLiteral("A"), QFont(), QRectF(0, 0, kIconUnits, 11));
            painter.fillRect(QRectF(1, 12, 14, 3.5), color ? QColor::fromRgb(*color) : ink);
        },
        palette);
}

QIcon SwatchIcon(const Color& color, const QPalette& palette) {
    return Drawn(
        [color](QPainter& painter, const QColor& ink) {
            painter.setPen(QPen(ink, 0.8));
            painter.setBrush(color ? QBrush(QColor::fromRgb(*color)) : QBrush(Qt::NoBrush));
            painter.drawRect(QRectF(1.5, 1.5, 13, 13));
        },
        palette);
}

}  // namespace quenloft
