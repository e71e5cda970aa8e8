#include "shell/window_arrangement.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStyle>

namespace quenloft {
namespace {

std::vector<QRect> Cascade(const QRect& area, int count, int step) {
    // Two thirds of the area leave room for several steps at any size of the main window.
    const QSize size(area.width() * 2 / 3, area.height() * 2 / 3);
    const int room = qMin(area.width() - size.width(), area.height() - size.height());
    const int stepsInArea = qMax(1, room / qMax(1, step) + 1);
    std::vector<QRect> places;
    for (int i = 0; i < count; ++i) {
        const int offset = i % stepsInArea * step;
        places.emplace_back(area.topLeft() + QPoint(offset, offset), size);
    }
    return places;
}

std::vector<QRect> Tiles(const QRect& area, int count, bool columns) {
    const int extent = columns ? area.width() : area.height();
    std::vector<QRect> places;
    for (int i = 0; i < count; ++i) {
        const int begin = extent * i / count;
        const int length = extent * (i + 1) / count - begin;
        places.push_back(columns ? QRect(area.x() + begin, area.y(), length, area.height())
                                 : QRect(area.x(), area.y() + begin, area.width(), length));
    }
    return places;
}

}  // namespace

std::vector<QRect> WindowPlaces(Arrangement arrangement, const QRect& area, int count, int step) {
    return arrangement == Arrangement::Cascade
               ? Cascade(area, count, step)
               : Tiles(area, count, arrangement == Arrangement::TileVertically);
}

void ArrangeWindows(QMdiArea& area, Arrangement arrangement) {
    QMdiSubWindow* active = area.currentSubWindow();
    QRect inside = area.viewport()->rect();
    std::vector<QMdiSubWindow*> windows;
    for (QMdiSubWindow* window : area.subWindowList(QMdiArea::StackingOrder)) {
        if (!window->isVisible()) {
            continue;
        }
        if (window->isMinimized()) {
            inside.setBottom(qMin(inside.bottom(), window->y() - 1));
            continue;
        }
        windows.push_back(window);
    }
    for (QMdiSubWindow* window : windows) {
        window->showNormal();
    }
    const int step = area.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const auto places = WindowPlaces(arrangement, inside, static_cast<int>(windows.size()), step);
    for (std::size_t i = 0; i < windows.size(); ++i) {
        windows[i]->setGeometry(places[i]);
        if (arrangement == Arrangement::Cascade) {
            windows[i]->raise();
        }
    }
    if (active) {
        area.setActiveSubWindow(active);
    }
}

void RestoreWindows(QMdiArea& area) {
    // The maximised ones first: as long as there is one, a window that is restored becomes
    // maximised.
    const auto restore = [&area](bool (QWidget::*isOfState)() const) {
        for (QMdiSubWindow* window : area.subWindowList()) {
            if ((window->*isOfState)()) {
                window->showNormal();
            }
        }
    };
    restore(&QWidget::isMaximized);
    restore(&QWidget::isMinimized);
}

}  // namespace quenloft
