#include "shell/window_arrangement.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>
#include <gtest/gtest.h>
#include <numeric>

namespace quenloft {
namespace {

constexpr int kCounts[] = {1, 2, 3, 7};
const QRect kArea(0, 0, 1000, 701);

int Pixels(const std::vector<QRect>& places) {
    return std::accumulate(places.begin(), places.end(), 0, [](int sum, const QRect& place) {
        return sum + place.width() * place.height();
    });
}

TEST(WindowPlaces, TilesCoverTheAreaWithoutOverlap) {
    for (const Arrangement how : {Arrangement::TileHorizontally, Arrangement::TileVertically}) {
        for (const int count : kCounts) {
            const auto places = WindowPlaces(how, kArea, count, 24);
            ASSERT_EQ(places.size(), static_cast<std::size_t>(count));
            EXPECT_EQ(Pixels(places), kArea.width() * kArea.height()) << count;
            for (std::size_t i = 1; i < places.size(); ++i) {
                EXPECT_FALSE(places[i].intersects(places[i - 1])) << count;
            }
        }
    }
}

TEST(WindowPlaces, VerticallyMeansColumnsAndHorizontallyRows) {
    const auto columns = WindowPlaces(Arrangement::TileVertically, kArea, 3, 24);
    const auto rows = WindowPlaces(Arrangement::TileHorizontally, kArea, 3, 24);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(columns[i].height(), kArea.height());
        EXPECT_EQ(rows[i].width(), kArea.width());
    }
    EXPECT_LT(columns[0].x(), columns[1].x());
    EXPECT_LT(rows[0].y(), rows[1].y());
}

TEST(WindowPlaces, CascadedWindowsStayInsideWhateverTheirNumber) {
    for (const int count : {1, 2, 3, 7, 40}) {
        const auto places = WindowPlaces(Arrangement::Cascade, kArea, count, 24);
        for (std::size_t i = 0; i < places.size(); ++i) {
            EXPECT_TRUE(kArea.contains(places[i])) << i << " of " << count;
            EXPECT_EQ(places[i].size(), places[0].size());
        }
        if (count > 1) {
            EXPECT_EQ(places[1].topLeft() - places[0].topLeft(), QPoint(24, 24));
        }
    }
}

class ArrangeWindowsTest : public testing::Test {
  protected:
    ArrangeWindowsTest() {
        window.setCentralWidget(&area);
        window.resize(900, 600);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    void Add(int count) {
        for (int i = 0; i < count; ++i) {
            auto* content = new QWidget;
            content->setMinimumSize(300, 200);  // Wider than a seventh of the main window.
            frames.push_back(area.addSubWindow(content));
            frames.back()->show();
        }
    }

    QMainWindow window;
    QMdiArea& area = *new QMdiArea;
    std::vector<QMdiSubWindow*> frames;
};

TEST_F(ArrangeWindowsTest, NeverWidensTheMainWindow) {
    for (const int count : {1, 1, 1, 4}) {
        Add(count);
        for (const Arrangement how :
             {Arrangement::Cascade, Arrangement::TileHorizontally, Arrangement::TileVertically}) {
            ArrangeWindows(area, how);
            QCoreApplication::processEvents();
            EXPECT_EQ(window.size(), QSize(900, 600)) << frames.size();
        }
    }
}

TEST_F(ArrangeWindowsTest, MaximisedWindowsJoinTheTilesAndMinimisedOnesKeepTheirStrip) {
    Add(3);
    frames[0]->showMinimized();
    const QRect strip = frames[0]->geometry();
    frames[1]->showMaximized();

    ArrangeWindows(area, Arrangement::TileVertically);

    EXPECT_EQ(frames[0]->geometry(), strip);
    EXPECT_TRUE(frames[0]->isMinimized());
    EXPECT_FALSE(frames[1]->isMaximized());
    EXPECT_FALSE(frames[1]->geometry().intersects(frames[2]->geometry()));
    for (const int i : {1, 2}) {
        EXPECT_FALSE(frames[i]->geometry().intersects(strip));
        EXPECT_EQ(frames[i]->height(), strip.top());
        EXPECT_EQ(frames[i]->width(), area.viewport()->width() / 2);
    }
}

TEST_F(ArrangeWindowsTest, SevenColumnsStayInsideTheArea) {
    Add(7);
    ArrangeWindows(area, Arrangement::TileVertically);
    for (const QMdiSubWindow* frame : frames) {
        EXPECT_TRUE(area.viewport()->rect().contains(frame->geometry()));
    }
}

TEST_F(ArrangeWindowsTest, TheActiveWindowStaysActive) {
    Add(3);
    area.setActiveSubWindow(frames[0]);
    ArrangeWindows(area, Arrangement::Cascade);
    EXPECT_EQ(area.currentSubWindow(), frames[0]);
}

}  // namespace
}  // namespace quenloft
