
#include "tests/dice/dice_windows.h"

namespace quenloft {
namespace {

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
    EXPECT_EQ(Find<ResultList>("lstResults")->model()->rowCount(), 1);
    QTest::keyClick(Find<QLineEdit>("txtAdd"), Qt::Key_F5);
    EXPECT_EQ(Find<ResultList>("lstResults")->model()->rowCount(), 2);
}

TEST_F(DiceWindow, ShowsAFailureAndStaysUsable) {
    Type("txtDiceType", "1");
    Check("chkOpenEnded");
    dialogs.WillConfirm();
    Click("btnRoll");
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: Overflow"});
    EXPECT_FALSE(QApplication::overrideCursor());
    EXPECT_EQ(child->Export(), "");
    Type("txtDiceType", "0");
    Click("btnRoll");
    EXPECT_EQ(child->Export(), "1D0~ = 0");
}

TEST_F(DiceWindow, DoesNotRollWhileARunGoesOn) {
    window.EnableAbort();
    Click("btnRoll");
    EXPECT_EQ(child->Export(), "");
    window.DisableAbort();
}

TEST_F(DiceWindow, ShowsAHundredThousandLines) {
    auto* list = Find<ResultList>("lstResults");
    Type("txtRolls", "100000");
    Click("btnRoll");
    QApplication::processEvents();
    list->scrollToBottom();
    list->grab();
    EXPECT_EQ(list->model()->rowCount(), 100'000);
}

}  // namespace
}  // namespace quenloft
