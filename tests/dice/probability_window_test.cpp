#include <QCheckBox>

#include "tests/dice/dice_windows.h"

namespace quenloft {
namespace {

const std::string kDashes(59, '-');

class ProbabilityWindow : public DiceWindowsFixture {
  protected:
    ProbabilityWindow() { Open(form::kProbability); }
};

TEST_F(ProbabilityWindow, AppendsAReportForEachRun) {
    Click("cmdRoll");
    EXPECT_EQ(child->Export(), "") << "no rolls";
    Type("txtDisplayMin", "3");
    Type("txtRolls", "50");
    Click("cmdRoll");
    const std::string report = kDashes +
                               "\r\n rolled 50 times in N seconds\r\n"
                               "Result\tOutcome\t% of Total\t\t% to get\r\n"
                               "50 results were below 3\r\nLowest roll result: 0\r\n" +
                               kDashes;
    EXPECT_EQ(Report(), report);
    EXPECT_FALSE(Find<QLabel>("lblRolled")->isVisible()) << "nobody counts";
    Check("chkCounter");
    Click("cmdRoll");
    EXPECT_EQ(Report(), report + "\r\n" + report);
    EXPECT_EQ(Find<QLabel>("lblRolled")->text(), "50");
    EXPECT_TRUE(Find<QLabel>("lblRolled")->isVisible());
    Click("btnClear");
    EXPECT_EQ(child->Export(), "");
}

TEST_F(ProbabilityWindow, RefusesTextThatIsNoNumberAndStaysUsable) {
    for (const char* box : {"txt6", "txt20", "txtRolls"}) {
        Find<QLineEdit>(box)->setText("12x");
        dialogs.WillConfirm();
        Click("cmdRoll");
        EXPECT_EQ(dialogs.TakeLog(), Log{"warning: Type mismatch"}) << box;
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
    EXPECT_EQ(Report(), "Script " + path + "\r\nstarted NOW\r\n" + kDashes +
                            "\r\nValue None Roll x\r\n" + kDashes +
                            "\r\n rolled 3 times in N seconds\r\n"
                            "Result\tOutcome\t% of Total\t\t% to get\r\n" +
                            kDashes + "\r\n" + kDashes + "\r\n" + kDashes +
                            "\r\nScript ended NOW with 3 rolls in N seconds");
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
    window.EnableAbort();
    Click("btnSaveResultTofile");
    Click("btnRollCfg");
    window.DisableAbort();
    EXPECT_TRUE(dialogs.TakeLog().empty()) << "no dialogs during a run";
    dialogs.WillGive(folder.Path("missing/report.txt"));
    dialogs.WillConfirm();
    Click("btnSaveResultTofile");
    EXPECT_NE(dialogs.TakeLog().back().find(folder.Path("missing")), std::string::npos);
}

}  // namespace
}  // namespace quenloft
