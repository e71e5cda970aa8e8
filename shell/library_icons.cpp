#include "shell/library_icons.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include "shell/drawn_icon.h"

namespace quenloft {
namespace {

const QColor kFolderFill(0xF2, 0xC0, 0x55);
const QColor kFolderEdge(0xB0, 0x7D, 0x1B);
const QColor kTableFill(0xE8, 0xF1, 0xFC);
const QColor kTableEdge(0x24, 0x5A, 0x96);
const QColor kScriptFill(0xF1, 0xF8, 0xEC);
const QColor kScriptEdge(0x3F, 0x86, 0x3A);
const QColor kRunFill(0x3F, 0x9B, 0x46);
const QColor kDeleteEdge(0xC6, 0x3B, 0x36);

using Draw = void (*)(QPainter& painter, bool open);

QIcon IconOf(Draw draw) {
    return DrawnIcon([draw](QPainter& painter, QIcon::Mode mode, QIcon::State state) {
        if (mode == QIcon::Disabled) {
            constexpr double kFaded = 0.35;
            painter.setOpacity(kFaded);
        }
        draw(painter, state == QIcon::On);
    });
}

QPen LinePen(const QColor& color, double width = 1.2) {
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

// Strokes without a colour of their own follow the text.
QPen TextPen() { return LinePen(QGuiApplication::palette().color(QPalette::Text), 1.4); }

void DrawFolder(QPainter& painter, bool open) {
    painter.setPen(LinePen(kFolderEdge));
    painter.setBrush(kFolderFill.darker(112));
    painter.drawPolygon(
        QPolygonF({{1.5, 13}, {1.5, 3.5}, {6, 3.5}, {7.5, 5.2}, {13.5, 5.2}, {13.5, 13}}));
    painter.setBrush(kFolderFill);
    if (open) {
        painter.drawPolygon(QPolygonF({{1.5, 13}, {4, 7.6}, {15.2, 7.6}, {13, 13}}));
    } else {
        painter.drawRoundedRect(QRectF(1.5, 6.6, 12.5, 6.6), 0.8, 0.8);
    }
}

void DrawTable(QPainter& painter, bool /*open*/) {
    painter.setPen(LinePen(kTableEdge));
    painter.setBrush(kTableFill);
    painter.drawRoundedRect(QRectF(1.7, 2.7, 12.6, 10.6), 1, 1);
    painter.fillRect(QRectF(2.2, 3.2, 11.6, 2.8), kTableEdge);
    painter.drawLine(QPointF(5.6, 6), QPointF(5.6, 13));
    painter.drawLine(QPointF(2, 9.6), QPointF(14, 9.6));
}

void DrawScript(QPainter& painter, bool /*open*/) {
    painter.setPen(LinePen(kScriptEdge));
    painter.setBrush(kScriptFill);
    painter.drawPolygon(QPolygonF({{3, 1.7}, {10, 1.7}, {13.2, 4.9}, {13.2, 14.3}, {3, 14.3}}));
    painter.drawPolyline(QPolygonF({{10, 1.7}, {10, 4.9}, {13.2, 4.9}}));
    painter.drawLine(QPointF(5.2, 7.6), QPointF(9, 7.6));
    painter.drawLine(QPointF(6.6, 9.8), QPointF(11, 9.8));
    painter.drawLine(QPointF(5.2, 12), QPointF(9.8, 12));
}

void DrawTriangle(QPainter& painter, double left, double top, double size) {
    painter.setPen(LinePen(kRunFill.darker(125)));
    painter.setBrush(kRunFill);
    painter.drawPolygon(
        QPolygonF({{left, top}, {left + size * 0.9, top + size / 2}, {left, top + size}}));
}

void DrawRun(QPainter& painter, bool /*open*/) { DrawTriangle(painter, 3.5, 2.5, 11); }

void DrawRunAsNew(QPainter& painter, bool /*open*/) {
    painter.setPen(TextPen());
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(1.5, 2.5, 13, 11), 1, 1);
    painter.drawLine(QPointF(1.5, 5), QPointF(14.5, 5));
    DrawTriangle(painter, 5.8, 6.4, 5.4);
}

void DrawEdit(QPainter& painter, bool /*open*/) {
    painter.setPen(TextPen());
    painter.setBrush(kFolderFill);
    painter.drawPolygon(QPolygonF({{2, 14}, {3, 10.4}, {10.8, 2.6}, {13.4, 5.2}, {5.6, 13}}));
    painter.drawLine(QPointF(9.2, 4.2), QPointF(11.8, 6.8));
}

void DrawDelete(QPainter& painter, bool /*open*/) {
    painter.setPen(LinePen(kDeleteEdge, 2.2));
    painter.drawLine(QPointF(3.5, 3.5), QPointF(12.5, 12.5));
    painter.drawLine(QPointF(12.5, 3.5), QPointF(3.5, 12.5));
}

void DrawRefresh(QPainter& painter, bool /*open*/) {
    constexpr int kDegree = 16;
    painter.setPen(LinePen(kTableEdge, 1.8));
    painter.drawArc(QRectF(2.8, 2.8, 10.4, 10.4), 20 * kDegree, 290 * kDegree);
    painter.setBrush(kTableEdge);
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(QPolygonF({{14.8, 7.4}, {9.8, 7}, {13.4, 3.2}}));
}

void DrawNewDirectory(QPainter& painter, bool /*open*/) {
    DrawFolder(painter, false);
    painter.setPen(LinePen(kRunFill.darker(125), 2));
    painter.drawLine(QPointF(9, 11), QPointF(15, 11));
    painter.drawLine(QPointF(12, 8), QPointF(12, 14));
}

}  // namespace

QIcon FolderIcon() { return IconOf(DrawFolder); }
QIcon TableIcon() { return IconOf(DrawTable); }
QIcon ScriptIcon() { return IconOf(DrawScript); }

CommandPictures MakeCommandPictures() {
    return {IconOf(DrawRun),    IconOf(DrawRunAsNew), IconOf(DrawEdit),
            IconOf(DrawDelete), IconOf(DrawRefresh),  IconOf(DrawNewDirectory)};
}

}  // namespace quenloft
