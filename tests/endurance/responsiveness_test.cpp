// The worst runs: the program must stay awake in each, and Abort must end it at once.
#include <QPointer>
#include <QTimer>
#include <algorithm>
#include <ctime>
#include <optional>

#include "engine/interpreter.h"
#include "engine/text_helpers.h"
#include "shell/child_window.h"
#include "shell/form_names.h"
#include "shell/text_box.h"
#include "shell/window_kinds.h"
#include "tests/support/repeated.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

/// Milliseconds that this thread has had a processor: what else the machine does must not count.
qint64 TimeOfThread() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64{time.tv_sec} * 1000 + time.tv_nsec / 1'000'000;
}

struct WorstRun {
    const char* name;
    const char* file;
    std::string bytes;
};

std::string Table(const std::string& entry) { return InCodePage("T¤1\r\n1§" + entry + "\r\n"); }

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
        folder.Write("page.tbl", Table(Repeated("x|", 1000)));
        ShowMainWindow(window);
    }
    /// Runs the file in its window, result shown; the longest time between two turns of the event
    /// loop.
    qint64 LongestPause(const std::string& path) {
        child = window.Open(IsScriptPath(path) ? form::kScript : form::kSingleList);
        child->Load(path);
        qint64 longest = 0;
        QTimer turns;
        qint64 lastTurn = 0;
        const auto turn = [&] {
            const qint64 now = TimeOfThread();
            longest = std::max(longest, now - lastTurn);
            lastTurn = now;
        };
        QObject::connect(&turns, &QTimer::timeout, turn);
        turns.start(0);
        lastTurn = TimeOfThread();
        child->Run();
        turn();
        return longest;
    }
    std::string Output() const { return child->findChild<TextBox*>("txtOut")->Text(); }

    frmMain window{Services(), MakeWindowKinds(random)};
    ChildWindow* child = nullptr;
};

class WorstRuns : public Responsiveness, public testing::WithParamInterface<WorstRun> {};

TEST_P(WorstRuns, TheEventLoopTurnsAndAbortEndsTheRun) {
    std::optional<qint64> aborted;
    constexpr int kUntilAbort = 400;
    QTimer abort;  // Goes with the test: not every run lasts so long.
    abort.setSingleShot(true);
    QObject::connect(&abort, &QTimer::timeout, [&] {
        aborted = TimeOfThread();
        window.AbortRun();
    });
    abort.start(kUntilAbort);
    EXPECT_LT(LongestPause(folder.Write(GetParam().file, GetParam().bytes)), 100)
        << "between two turns of the event loop";
    if (aborted) {
        EXPECT_LT(TimeOfThread() - *aborted, 250) << "from Abort to the result";
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
