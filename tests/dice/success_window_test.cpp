
#include "tests/dice/dice_windows.h"

namespace quenloft {
namespace {

const std::string kDashes(92, '-');
constexpr char kHeader[] = "\r\nSuccesses\tOutcome\t% of Total\t\t% to get\r\n";

class ShadowrunWindow : public DiceWindowsFixture {
  protected:
    ShadowrunWindow() { Open(form::kShadowrunProbability); }
};

TEST_F(ShadowrunWindow, AddsUpItsRuns) {
    Click("cmdRoll");
    EXPECT_EQ(child->Export(), "") << "no rolls";
    Type("txtTargetNumber", "7");
    Type("txtRolls", "1000");
    Click("cmdRoll");
    Click("btnClear");
    Click("cmdRoll");
    EXPECT_EQ(Report(), kDashes + "\r\n1D6 rolled 1000 times against Target No 7 in N seconds" +
                            kHeader + "0\t\t2000\t200.000 %\t\t100.000 %");
}

TEST_F(ShadowrunWindow, ListsTheRollsThatAFailedRunHasMade) {
    Type("txtNrofDice", "301");
    Type("txtDieFaces", "1");
    Type("txtRolls", "2");
    Check("chkShowRolls");
    dialogs.WillConfirm();
    Click("cmdRoll");
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: Subscript out of range"});
    EXPECT_EQ(Caption("cmdRoll"), "Rolling... (disabled)");
    EXPECT_EQ(child->Export().size(), 602U) << "301 dice, each with a comma";
}

TEST_F(ShadowrunWindow, RunsAScriptOfPools) {
    const std::string path = folder.Write(
        "pools.scr", "[Autorun]\nOpenEnded=0\nRolls=2\nDieFaces=1\n[Values]\nDice1=2\nTarget=1\n");
    dialogs.WillGive(path);
    Click("btnRollCfg");
    EXPECT_EQ(Report(), "Script " + path + "\r\nstarted NOW\r\n" + kDashes + "\r\n" + kDashes +
                            "\r\n2D1 rolled 2 times against Target No 1 in N seconds" + kHeader +
                            "0\t\t0\t00.000 %\t\t100.000 %\r\n1\t\t0\t00.000 %\t\t100.000 %\r\n"
                            "2\t\t2\t100.000 %\t\t100.000 %\r\n" +
                            kDashes + "\r\nScript ended NOW with 2 rolls in N seconds");
}

TEST_F(ShadowrunWindow, EndsAFailedScriptWithoutAWordAndKeepsItsLines) {
    const std::string path = folder.Write(
        "many.scr", "[Autorun]\nRolls=1\nDieFaces=6\nOpenEnded=0\n[Values]\nDice=301\nT=1\n");
    dialogs.WillGive(path);
    Click("btnRollCfg");
    EXPECT_EQ(dialogs.TakeLog().size(), 1U) << "the choice of the script";
    EXPECT_EQ(Caption("cmdRoll"), "Rolling... (disabled)");
    EXPECT_TRUE(child->Export().starts_with("Script " + path + "\r\nstarted "));
    EXPECT_TRUE(child->Export().ends_with("\r\n" + kDashes));
}

class DrovemarkWindow : public DiceWindowsFixture {
  protected:
    DrovemarkWindow() { Open(form::kDrovemark); }
    /// Rolls for ever, `act` happening during it.
    template <typename Act>
    void RollWhile(Act act) {
        Type("txtRolls", "2000000000");
        QTimer::singleShot(0, act);
        Click("btnRoll");
    }
};

TEST_F(DrovemarkWindow, StepsItsBoxesAndTakesAnyText) {
    QTest::keyClick(Find<QLineEdit>("txtWhite"), Qt::Key_Up);
    QTest::keyClick(Find<QLineEdit>("txtWhite"), Qt::Key_Up);
    QTest::keyClick(Find<QLineEdit>("txtBlack"), Qt::Key_Down);
    Type("txtRed", "1 or so");
    EXPECT_EQ(Text("txtWhite") + Text("txtRed") + Text("txtBlack"), "21 or so0");
    Type("txtRolls", "1");
    Click("btnRoll");
    EXPECT_TRUE(Report().starts_with(kDashes + "\r\nWWR rolled 1 times in N seconds" + kHeader));
}

TEST_F(DrovemarkWindow, RollsWithoutDiceToo) {
    EXPECT_EQ(Caption("btnCancel"), "Cancel (disabled)");
    Click("btnRoll");
    EXPECT_EQ(Report(), kDashes + "\r\n rolled 100000 times in N seconds" + kHeader +
                            "0\t\t100000\t100.000 %\t\t100.000 %");
    EXPECT_EQ(Caption("btnRoll") + Caption("btnCancel"), "RollCancel (disabled)");
}

TEST_F(DrovemarkWindow, IsCancelledDuringARun) {
    RollWhile([this] {
        EXPECT_EQ(Caption("btnRoll") + Caption("btnCancel"), "Roll (disabled)Cancel");
        EXPECT_TRUE(QApplication::overrideCursor());
        QTest::keyClick(child, Qt::Key_F5);
        Click("btnCancel");
        Click("btnRoll");
    });
    EXPECT_TRUE(Report().starts_with(kDashes + "\r\n rolled 2000000000 times in N seconds\r\n"));
    EXPECT_EQ(Caption("btnRoll") + Caption("btnCancel"), "RollCancel (disabled)");
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(DrovemarkWindow, EndsItsRunAndClosesWhenItIsClosed) {
    QPointer<ChildWindow> closed = child;
    RollWhile([this] { child->CloseWindow(); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !closed; }));
    EXPECT_FALSE(window.IsRunning());
}

TEST_F(DrovemarkWindow, KeepsRollDisabledAfterAFailureUntilCancelled) {
    Type("txtRolls", "2147483648");
    dialogs.WillConfirm();
    Click("btnRoll");
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: Overflow"});
    EXPECT_EQ(Caption("btnRoll") + Caption("btnCancel"), "Roll (disabled)Cancel");
    EXPECT_FALSE(QApplication::overrideCursor());
    EXPECT_FALSE(window.IsRunning());
    Click("btnCancel");
    EXPECT_EQ(Caption("btnRoll") + Caption("btnCancel"), "RollCancel (disabled)");
}

}  // namespace
}  // namespace quenloft
