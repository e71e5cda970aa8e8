#include "shell/window_arrangement.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>
#include <gtest/gtest.h>
#include <numeric>

namespace quenloft {
namespace {

const QRect kArea(0, 0, 1000, 701);

int Pixels(const std::vector<QRect>& places) {
    return std::accumulate(places.begin(), places.end(), 0, [](int sum, const QRect& place) {
        return sum + place.width() * place.height();
    });
}

TEST(WindowPlaces, TilesCoverTheAreaWithoutOverlap) {
    for (const Arrangement how : {Arrangement::TileHorizontally, Arrangement::TileVertically}) {
        const bool inColumns = how == Arrangement::TileVertically;
        for (const int count : {1, 2, 3, 7}) {
            const auto places = WindowPlaces(how, kArea, count, 24);
            ASSERT_EQ(places.size(), static_cast<std::size_t>(count));
            EXPECT_EQ(Pixels(places), kArea.width() * kArea.height()) << count;
            EXPECT_EQ(inColumns ? places[0].height() : places[0].width(),
                      inColumns ? kArea.height() : kArea.width());
            for (std::size_t i = 1; i < places.size(); ++i) {
                EXPECT_FALSE(places[i].intersects(places[i - 1])) << count;
            }
        }
    }
}

TEST(WindowPlaces, CascadedWindowsStayInsideWhateverTheirNumber) {
    for (const int count : {1, 2, 7, 40}) {
        const auto places = WindowPlaces(Arrangement::Cascade, kArea, count, 24);
        for (const QRect& place : places) {
            EXPECT_TRUE(kArea.contains(place)) << count;
            EXPECT_EQ(place.size(), places[0].size());
        }
    }
    const auto places = WindowPlaces(Arrangement::Cascade, kArea, 2, 24);
    EXPECT_EQ(places[1].topLeft() - places[0].topLeft(), QPoint(24, 24));
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
    for (int i = 0; i < 7; ++i) {
        Add(1);
        for (const Arrangement how :
             {Arrangement::Cascade, Arrangement::TileHorizontally, Arrangement::TileVertically}) {
            ArrangeWindows(area, how);
            QCoreApplication::processEvents();
            EXPECT_EQ(window.size(), QSize(900, 600)) << frames.size();
        }
    }
    for (const QMdiSubWindow* frame : frames) {
        EXPECT_TRUE(area.viewport()->rect().contains(frame->geometry())) << "seven columns";
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
    EXPECT_FALSE(frames[1]->geometry().intersects(frames[2]->geometry()));
    for (const int i : {1, 2}) {
        EXPECT_FALSE(frames[i]->isMaximized());
        EXPECT_EQ(frames[i]->size(), QSize(area.viewport()->width() / 2, strip.top()));
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
