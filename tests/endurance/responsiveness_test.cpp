// The worst runs: the program must stay awake in each, and Abort must end it at once.
#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <algorithm>

#include "engine/interpreter.h"
#include "engine/text_helpers.h"
#include "shell/child_window.h"
#include "shell/form_names.h"
#include "shell/text_box.h"
#include "shell/window_kinds.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

struct WorstRun {
    const char* name;
    const char* file;
    std::string bytes;
};

std::string Table(const std::string& entry) {
    return "T\xA4"
           "1\r\n1\xA7" +
           entry + "\r\n";
}

std::vector<WorstRun> Runs() {
    return {
        {"Jumps", "run.spt", "LABEL:a\r\nGOTO:a\r\n"},
        {"JumpsWithOutput", "run.spt", "LABEL:a\r\nx\r\nGOTO:a\r\n"},
        {"Repeats", "run.tbl", Table("#one^900000000#")},
        {"Dice", "run.tbl", Table("@2000000000d6@")},
        {"OpenEndedDice", "run.tbl", Table("@2000000000d2~@")},
        {"DuplicatesForEver", "run.spt", "DUPLICATESACCEPTED=0\r\n#one^2#\r\n#one^2#\r\n"},
        {"Doubling", "run.spt", "x=a\r\nLABEL:a\r\n??x=??x????x????\r\nGOTO:a\r\n"},
        {"Breadth", "run.tbl", Table("#wide^1000#")},
    };
}

class Responsiveness : public WindowsFixture {
  protected:
    Responsiveness() {
        folder.Write("one.tbl", Table("one"));
        folder.Write("wide.tbl", Table("#one^1000# #one^1000#"));
        std::string lines;
        for (int i = 0; i < 1000; ++i) {
            lines += "x|";
        }
        folder.Write("page.tbl", Table(lines));
        ShowMainWindow(window);
    }
    /// Runs the file in its window, result shown; the longest time between two turns of the event
    /// loop.
    qint64 LongestPause(const std::string& path) {
        child = window.Open(IsScriptPath(path) ? form::kScript : form::kSingleList);
        child->Load(path);
        QElapsedTimer sinceTurn;
        qint64 longest = 0;
        QTimer turns;
        QObject::connect(&turns, &QTimer::timeout,
                         [&] { longest = std::max(longest, sinceTurn.restart()); });
        turns.start(0);
        QCoreApplication::processEvents();
        sinceTurn.start();
        child->Run();
        return std::max(longest, sinceTurn.elapsed());
    }
    std::string Output() const { return child->findChild<TextBox*>("txtOut")->Text(); }

    frmMain window{Services(), MakeWindowKinds(random)};
    ChildWindow* child = nullptr;
};

class WorstRuns : public Responsiveness, public testing::WithParamInterface<WorstRun> {};

TEST_P(WorstRuns, TheEventLoopTurnsAndAbortEndsTheRun) {
    QElapsedTimer sinceAbort;
    constexpr int kUntilAbort = 400;
    QTimer::singleShot(kUntilAbort, [&] {
        sinceAbort.start();
        window.AbortRun();
    });
    EXPECT_LT(LongestPause(folder.Write(GetParam().file, GetParam().bytes)), 100)
        << "between two turns of the event loop";
    if (sinceAbort.isValid()) {
        EXPECT_LT(sinceAbort.elapsed(), 250) << "from Abort to the result";
    }
}

INSTANTIATE_TEST_SUITE_P(Responsiveness, WorstRuns, testing::ValuesIn(Runs()),
                         [](const auto& run) { return std::string(run.param.name); });

TEST_F(Responsiveness, ALargeResultIsShownWholeAndMeanwhileTheEventLoopTurns) {
    const std::string path = folder.Write("run.tbl", Table("#page^300#"));
    EXPECT_LT(LongestPause(path), 100);
    const std::string shown = Output();
    EXPECT_EQ(std::count(shown.begin(), shown.end(), 'x'), 300'000);
    EXPECT_EQ(shown.find(kAbortedText), std::string::npos);
    EXPECT_EQ(child->findChild<TextBox*>("txtOut")->textCursor().position(), 0);
}

TEST_F(Responsiveness, AWindowClosedWhileItsResultIsShownGoesAtOnce) {
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, [&] {
        if (child && child->findChild<TextBox*>("txtOut")->blockCount() > 10'000) {
            closing.stop();
            child->CloseWindow();
        }
    });
    closing.start(0);
    LongestPause(folder.Write("run.tbl", Table("#page^300#")));
    const std::string shown = Output();
    EXPECT_TRUE(shown.ends_with("x\r\n\r\n\r\nProcess Aborted!")) << shown.size();
    const QPointer<ChildWindow> closed = child;
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(closed);
}

}  // namespace
}  // namespace quenloft
