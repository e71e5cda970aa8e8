// The dice windows inside a main window, and what a user does in them.
#include "dice/dice_window.h"

#include <QCheckBox>
#include <regex>

#include "dice/drovemark_window.h"
#include "dice/probability_window.h"
#include "dice/result_list.h"
#include "dice/shadowrun_window.h"
#include "dice/simulation_on.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class DiceWindowsFixture : public WindowsFixture {
  protected:
    /// Shows the window called `formName`.
    void Open(const char* formName) {
        ShowMainWindow(window);
        child = window.Open(formName);
    }
    template <typename Control>
    Control* Find(const char* name) {
        auto* control = child->findChild<Control*>(name);
        EXPECT_TRUE(control) << name;
        return control;
    }
    void Type(const char* name, const QString& text) {
        auto* box = Find<QLineEdit>(name);
        box->selectAll();
        QTest::keyClicks(box, text);
    }
    void Click(const char* name) {
        QTest::mouseClick(Find<QWidget>(name), Qt::LeftButton, {},
                          Find<QWidget>(name)->rect().center());
    }
    void Check(const char* name) { Find<QAbstractButton>(name)->setChecked(true); }
    QString Text(const char* name) { return Find<QLineEdit>(name)->text(); }
    std::string Caption(const char* name) {
        const auto* button = Find<QAbstractButton>(name);
        return button->text().toStdString() + (button->isEnabled() ? "" : " (disabled)");
    }
    /// What the window exports, with "N" for seconds and "NOW" for times.
    std::string Report() {
        const std::string text =
            std::regex_replace(child->Export(), std::regex(R"(in \d+ seconds)"), "in N seconds");
        return std::regex_replace(text, std::regex(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d)"), "NOW");
    }

    SimulationOn<SystemRandomSource> simulation{random};
    template <typename Window, typename Odds>
    static WindowKind KindOf(const char* formName, Odds& odds) {
        return {formName, Instances::Many,
                [&odds](Workspace& workspace) { return new Window(workspace, odds); }};
    }
    frmMain window{Services(),
                   {KindOf<frmDice>(form::kDice, random),
                    KindOf<frmProbability>(form::kProbability, simulation),
                    KindOf<frmShadowrunProbability>(form::kShadowrunProbability, simulation),
                    KindOf<frmDrovemark>(form::kDrovemark, simulation)}};
    ChildWindow* child = nullptr;
};

constexpr char kScriptFilter[] =
    "KS script (*.scr)|*.scr|Text files(*.txt)|*.txt|All files(*.*)|*.*";

class DiceWindow : public DiceWindowsFixture {
  protected:
    DiceWindow() { Open(form::kDice); }
};

TEST_F(DiceWindow, PutsTheNewestResultOnTop) {
    Type("txtDiceType", "1");
    Click("btnRoll");
    Type("txtAdd", "4");
    Type("txtRolls", "2");
    Click("btnRoll");
    EXPECT_EQ(Text("txtResult"), "5");
    EXPECT_EQ(child->Export(), "1D1+4  = 5\r\n1D1+4  = 5\r\n1D1  = 1");
    Click("btnClear");
    EXPECT_EQ(child->Export(), "");
    EXPECT_EQ(Text("txtAdd") + Text("txtResult"), "45");
}

TEST_F(DiceWindow, RollsByEnterAndByF5) {
    QTest::keyClick(Find<QLineEdit>("txtAdd"), Qt::Key_Return);
    QTest::keyClick(Find<QLineEdit>("txtAdd"), Qt::Key_F5);
    EXPECT_EQ(Find<ResultList>("lstResults")->model()->rowCount(), 2);
}

TEST_F(DiceWindow, ShowsAFailureAndStaysUsable) {
    Type("txtDiceType", "1");
    Check("chkOpenEnded");
    dialogs.WillConfirm();
    Click("btnRoll");
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: Overflow"});
    Type("txtDiceType", "0");
    Click("btnRoll");
    EXPECT_EQ(child->Export(), "1D0~ = 0");
}

TEST_F(DiceWindow, EndsRollsOfMillionsOfDiceWhenAborted) {
    Type("txtNrDice", "2000000000");
    Type("txtDiceType", "1");
    QTimer::singleShot(0, [this] { window.AbortRun(); });
    Click("btnRoll");
    EXPECT_EQ(child->Export() + Text("txtResult").toStdString(), "0") << "half a roll is none";
    EXPECT_FALSE(QApplication::overrideCursor() || window.IsRunning());
}

const std::string kShortDashes(59, '-');

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
    const std::string report = kShortDashes +
                               "\r\n rolled 50 times in N seconds\r\n"
                               "Result\tOutcome\t% of Total\t\t% to get\r\n"
                               "50 results were below 3\r\nLowest roll result: 0\r\n" +
                               kShortDashes;
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

TEST_F(ProbabilityWindow, RollsTheDiceOfItsBoxes) {
    const int faces[] = {2, 4, 6, 8, 10, 12, 20};
    for (const int count : {1, 2, 3, 4, 5, 6, 7}) {
        Type(qPrintable(QString("txt%1").arg(faces[count - 1])), QString::number(count));
    }
    Type("txtRolls", "1");
    Click("cmdRoll");
    EXPECT_EQ(Report().find("1D2+2D4+3D6+4D8+5D10+6D12+7D20 rolled 1 times"), 61U) << Report();
}

TEST_F(ProbabilityWindow, RefusesTextThatIsNoNumberAndStaysUsable) {
    for (const char* box : {"txt6", "txt20", "txtRolls"}) {
        Find<QLineEdit>(box)->setText("12x");
        dialogs.WillConfirm();
        Click("cmdRoll");
        EXPECT_EQ(dialogs.TakeLog(), Log{"warning: Type mismatch"}) << box;
        EXPECT_EQ(child->Export() + Caption("cmdRoll"), "Roll");
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
    dialogs.WillGive(
        folder.Write("dice.scr", "[Autorun]\nOpenEnded=1\nRolls=3\n[Values]\nNone=x\n"));
    Click("btnRollCfg");
    EXPECT_EQ(dialogs.TakeLog(),
              Log{std::string("open: ") + kScriptFilter + " in " + folder.Path()});
    EXPECT_TRUE(Find<QCheckBox>("chkOpenEnded")->isChecked());
    EXPECT_NE(
        Report().find("\r\nValue None Roll x\r\n" + kShortDashes + "\r\n rolled 3 times in N"),
        std::string::npos)
        << Report();
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
}

const std::string kDashes(92, '-');
constexpr char kHeader[] = "\r\nSuccesses\tOutcome\t% of Total\t\t% to get\r\n";

using ShadowrunWindow = DiceWindowsFixture;

TEST_F(ShadowrunWindow, AddsUpItsRuns) {
    Open(form::kShadowrunProbability);
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
    Open(form::kShadowrunProbability);
    Type("txtNrofDice", "301");
    Type("txtDieFaces", "1");
    Type("txtRolls", "2");
    Check("chkShowRolls");
    dialogs.WillConfirm();
    Click("cmdRoll");
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: Subscript out of range"});
    EXPECT_EQ(child->Export().size(), 602U) << "301 dice, each with a comma";
}

using DrovemarkWindow = DiceWindowsFixture;

TEST_F(DrovemarkWindow, StepsItsBoxesAndTakesAnyText) {
    Open(form::kDrovemark);
    QTest::keyClick(Find<QLineEdit>("txtWhite"), Qt::Key_Up);
    QTest::keyClick(Find<QLineEdit>("txtWhite"), Qt::Key_Up);
    QTest::keyClick(Find<QLineEdit>("txtBlack"), Qt::Key_Down);
    Type("txtRed", "1 or so");
    Type("txtRolls", "1");
    Click("btnRoll");
    EXPECT_EQ(Text("txtWhite") + Text("txtRed") + Text("txtBlack"), "21 or so0");
    EXPECT_TRUE(Report().starts_with(kDashes + "\r\nWWR rolled 1 times in N seconds" + kHeader));
}

TEST_F(DrovemarkWindow, IsCancelledDuringARun) {
    Open(form::kDrovemark);
    Type("txtRolls", "2000000000");
    QTimer::singleShot(0, [this] {
        EXPECT_EQ(Caption("btnRoll") + Caption("btnCancel"), "Roll (disabled)Cancel");
        EXPECT_TRUE(QApplication::overrideCursor());
        QTest::keyClick(child, Qt::Key_F5);
        Click("btnCancel");
        Click("btnRoll");
    });
    Click("btnRoll");
    EXPECT_TRUE(Report().starts_with(kDashes + "\r\n rolled 2000000000 times in N seconds\r\n"));
    EXPECT_EQ(Caption("btnRoll") + Caption("btnCancel"), "RollCancel (disabled)");
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(DrovemarkWindow, KeepsRollDisabledAfterAFailureUntilCancelled) {
    Open(form::kDrovemark);
    Type("txtRolls", "2147483648");
    dialogs.WillConfirm();
    Click("btnRoll");
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: Overflow"});
    EXPECT_EQ(Caption("btnRoll") + Caption("btnCancel"), "Roll (disabled)Cancel");
    EXPECT_FALSE(QApplication::overrideCursor() || window.IsRunning());
    Click("btnCancel");
    EXPECT_EQ(Caption("btnRoll") + Caption("btnCancel"), "RollCancel (disabled)");
}

}  // namespace
}  // namespace quenloft
