// The worst runs: the program must stay awake in each, and Abort must end it at once.
#include <QElapsedTimer>
#include <QTimer>

#include "engine/text_helpers.h"
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

std::vector<WorstRun> WorstRuns() {
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

class Responsiveness : public WindowsFixture, public testing::WithParamInterface<WorstRun> {};

TEST_P(Responsiveness, TheEventLoopTurnsAndAbortEndsTheRun) {
    folder.Write("one.tbl", Table("one"));
    folder.Write("wide.tbl", Table("#one^1000# #one^1000#"));
    const std::string path = folder.Write(GetParam().file, GetParam().bytes);
    QElapsedTimer sinceTurn;
    QElapsedTimer sinceAbort;
    qint64 longestPause = 0;
    sinceTurn.start();
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout,
                     [&] { longestPause = std::max(longestPause, sinceTurn.restart()); });
    turns.start(0);
    constexpr int kUntilAbort = 400;
    QTimer::singleShot(kUntilAbort, [&] {
        sinceAbort.start();
        engine.SetAbortFlag();
    });
    engine.ClearAbortFlag();
    engine.ResetGeneration();
    IsScriptPath(path) ? engine.RunScript(path, true) : engine.RollTable(path);
    if (sinceAbort.isValid()) {
        EXPECT_LT(sinceAbort.elapsed(), 250) << "from Abort to the end";
    }
    EXPECT_LT(longestPause, 100) << "between two turns of the event loop";
}

INSTANTIATE_TEST_SUITE_P(Runs, Responsiveness, testing::ValuesIn(WorstRuns()),
                         [](const auto& run) { return std::string(run.param.name); });

}  // namespace
}  // namespace quenloft
