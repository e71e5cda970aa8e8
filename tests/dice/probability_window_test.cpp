#include <QCheckBox>
#include <QLabel>

#include "tests/dice/dice_windows.h"

namespace quenloft {
namespace {

using Log = std::vector<std::string>;

const std::string kDashes(59, '-');

class ProbabilityWindow : public DiceWindowsFixture {
  protected:
    ProbabilityWindow() { Open(form::kProbability); }
};

TEST_F(ProbabilityWindow, OpensWithItsDefaults) {
    EXPECT_EQ(child->windowTitle(), "Kelbrunsystem Dice Probability Analysis");
    QString boxes;
    for (const char* name : {"txt2", "txt4", "txt6", "txt8", "txt10", "txt12", "txt20", "txtRolls",
                             "txtDisplayMin", "txtDisplayUpto"}) {
        boxes += Text(name) + " ";
    }
    EXPECT_EQ(boxes, "0 0 0 0 0 0 0 0 0 300 ");
    EXPECT_EQ(Caption("cmdRoll"), "Roll");
    EXPECT_FALSE(Find<QLabel>("lblRolled")->isVisible());
    Click("cmdRoll");
    EXPECT_EQ(child->Export(), "") << "no rolls";
}

TEST_F(ProbabilityWindow, AppendsAReportForEachRun) {
    Type("txtDisplayMin", "3");
    Type("txtRolls", "50");
    Click("cmdRoll");
    const std::string report = kDashes +
                               "\r\n rolled 50 times in N seconds\r\n"
                               "Result\tOutcome\t% of Total\t\t% to get\r\n"
                               "50 results were below 3\r\nLowest roll result: 0\r\n" +
                               kDashes;
    EXPECT_EQ(Report(), report);
    EXPECT_NE(Find<QLabel>("lblRolled")->text(), "50") << "nobody counts";
    Check("chkCounter");
    EXPECT_TRUE(Find<QLabel>("lblRolled")->isVisible());
    Click("cmdRoll");
    EXPECT_EQ(Report(), report + "\r\n" + report);
    EXPECT_EQ(Find<QLabel>("lblRolled")->text(), "50");
    EXPECT_EQ(Caption("cmdRoll"), "Roll");
    Click("btnClear");
    EXPECT_EQ(child->Export(), "");
}

TEST_F(ProbabilityWindow, RefusesTextThatIsNoNumberAndStaysUsable) {
    const struct {
        const char* box;
        const char* text;
        const char* words;
    } cases[] = {{"txt6", "abc", "Type mismatch"},
                 {"txt20", "", "Type mismatch"},
                 {"txtRolls", "12x", "Type mismatch"},
                 {"txtRolls", "2147483648", "Overflow"}};
    for (const auto& [box, text, words] : cases) {
        Find<QLineEdit>(box)->setText(text);
        dialogs.WillConfirm();
        Click("cmdRoll");
        EXPECT_EQ(dialogs.TakeLog(), Log{std::string("warning: ") + words});
        EXPECT_EQ(Caption("cmdRoll"), "Roll");
        EXPECT_EQ(child->Export(), "");
        Find<QLineEdit>(box)->setText("0");
    }
}

TEST_F(ProbabilityWindow, KeepsTheButtonOfARunThatFailed) {
    Type("txtDisplayUpto", "9999999999");
    Type("txtRolls", "5");
    dialogs.WillConfirm();
    Click("cmdRoll");
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: Overflow"});
    EXPECT_EQ(Caption("cmdRoll"), "Rolling... (disabled)");
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(ProbabilityWindow, RunsAScript) {
    const std::string path =
        folder.Write("dice.scr", "[Autorun]\r\nOpenEnded=1\r\nRolls=3\r\n[Values]\r\nNone=x\r\n");
    dialogs.WillGive(path);
    Click("btnRollCfg");
    EXPECT_EQ(dialogs.TakeLog(),
              Log{std::string("open: ") + kScriptFilter + " in " + folder.Path()});
    EXPECT_TRUE(Find<QCheckBox>("chkOpenEnded")->isChecked());
    const std::string times =
        std::regex_replace(Report(), std::regex(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d)"), "NOW");
    EXPECT_EQ(times, "Script " + path + "\r\nstarted NOW\r\n" + kDashes +
                         "\r\nValue None Roll x\r\n" + kDashes +
                         "\r\n rolled 3 times in N seconds\r\n"
                         "Result\tOutcome\t% of Total\t\t% to get\r\n" +
                         kDashes + "\r\n" + kDashes + "\r\n" + kDashes +
                         "\r\nScript ended NOW with 3 rolls in N seconds");
    dialogs.WillCancel();
    Click("btnRollCfg");
}

TEST_F(ProbabilityWindow, CopiesAndSavesLinesWithTheirEnds) {
    Type("txtRolls", "1");
    Click("cmdRoll");
    const std::string whole = child->Export() + "\r\n";
    Click("cmdSave");
    EXPECT_EQ(clipboard.text, whole);
    dialogs.WillGive(folder.Path("report.txt"));
    Click("btnSaveResultTofile");
    EXPECT_EQ(dialogs.TakeLog(),
              Log{std::string("save: ") + kScriptFilter + " from 2 at " + folder.Path()});
    EXPECT_EQ(folder.Read("report.txt"), whole);
    dialogs.WillCancel();
    Click("btnSaveResultTofile");
    window.EnableAbort();
    Click("btnSaveResultTofile");
    Click("btnRollCfg");
    window.DisableAbort();
    EXPECT_EQ(dialogs.TakeLog().size(), 1U) << "no dialogs during a run";
    dialogs.WillGive(folder.Path("missing/report.txt"));
    dialogs.WillConfirm();
    Click("btnSaveResultTofile");
    EXPECT_NE(dialogs.TakeLog().back().find(folder.Path("missing")), std::string::npos);
}

}  // namespace
}  // namespace quenloft
