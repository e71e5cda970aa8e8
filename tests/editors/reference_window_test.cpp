// The reference browser as an editor uses it.
#include <QCheckBox>
#include <QDialog>
#include <QRadioButton>
#include <QTreeView>

#include "editors/reference/choose_reference.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class ReferenceWindowTest : public WindowsFixture {
  protected:
    ReferenceWindowTest() {
        folder.WriteTable("lib/Tables/orcs.tbl", "Orcs", "x");
        folder.WriteTable("lib/Tables/elves.tbl", "Folk of the woods", "x");
        folder.Write("lib/Tables/Deep/x.spt", "");
        folder.WriteTable("lib/Monsters/orcs.tbl", "Orcs", "x");
        folder.WriteTable("lib/Monsters/~hidden.tbl", "Hidden", "x");
        ShowMainWindow(window);
    }

    /// What the browser returns after the user has done `steps`.
    std::string Choose(const std::function<void()>& steps,
                       const std::string& begin = "lib/Tables") {
        QTimer::singleShot(0, &window, [this, &steps] {
            dialog = window.findChild<QDialog*>("frmReference");
            steps();
        });
        return ChooseReference(window, folder.Path(begin), &window);
    }
    template <typename Widget>
    Widget* Get(const char* name) {
        return dialog->findChild<Widget*>(name);
    }
    void Click(const char* name) { Get<QAbstractButton>(name)->click(); }
    void Key(const char* name, int key) {
        QTest::keyClick(Get<QWidget>(name), static_cast<Qt::Key>(key));
    }
    QTreeView* List() { return Get<QTreeView>("lvwReference"); }
    std::string Current() { return List()->currentIndex().data().toString().toStdString(); }

    frmMain window{Services(), {}};
    QDialog* dialog = nullptr;
};

TEST_F(ReferenceWindowTest, ReturnsTheReferenceToAFileInAnotherFolder) {
    const std::string result = Choose([this] {
        EXPECT_EQ(Current(), "Deep");
        Click("btnUpDirectory");
        EXPECT_EQ(Current(), "Tables") << "where one came from";
        Key("txtFilter", Qt::Key_Up);
        EXPECT_EQ(Current(), "Monsters");
        Key("txtFilter", Qt::Key_Return);
        EXPECT_EQ(Current(), "Orcs");
        Click("optCaseUpper");
        Get<QLineEdit>("txtRepeat")->setText("3");
        Click("btnOK");
    });
    EXPECT_EQ(result, "#..\\Monsters\\ORCS.TBL{^}3#");
    EXPECT_EQ(Choose([this] {
                  EXPECT_EQ(Get<QLabel>("lblRelative")->text(), "");
                  EXPECT_EQ(Get<QLineEdit>("txtRepeat")->text(), "1");
                  QTest::keyClicks(Get<QWidget>("txtFilter"), "woods");
                  EXPECT_EQ(List()->model()->rowCount(), 1);
                  Key("txtFilter", Qt::Key_Return);
              }),
              "#ELVES.TBL#")
        << "the capitals chosen last hold on";
}

TEST_F(ReferenceWindowTest, AFilterDoesNotDecideWhereOneStandsInTheNextFolder) {
    folder.Write("lib/Tables/Deep/Away/y.spt", "");
    folder.Write("lib/Tables/Deep/Deep/z.spt", "");
    Choose([this] {
        QTest::keyClicks(Get<QWidget>("txtFilter"), "woods");
        Click("btnUpDirectory");
        EXPECT_EQ(Current(), "Tables") << "where one came from";
        Key("txtFilter", Qt::Key_Return);
        QTest::keyClicks(Get<QWidget>("txtFilter"), "deep");
        Key("txtFilter", Qt::Key_Return);
        EXPECT_EQ(Current(), "Away") << "the first";
        Click("btnCancel");
    });
}

TEST_F(ReferenceWindowTest, EveryOtherWayOutReturnsNoReference) {
    EXPECT_EQ(Choose([this] { Click("btnSign"); }), "#");
    EXPECT_EQ(Choose([this] { Click("btnCancel"); }), "");
    EXPECT_EQ(Choose([this] { Key("txtFilter", Qt::Key_Escape); }), "");
    folder.Write("lib/Empty/notes.txt", "");
    EXPECT_EQ(Choose([this] { Click("btnOK"); }, "lib/Empty"), "");
}

TEST_F(ReferenceWindowTest, EnterChoosesNothingWhereTheFilterFindsNothing) {
    EXPECT_EQ(Choose([this] {
                  QTest::keyClicks(Get<QWidget>("txtFilter"), "dragons");
                  EXPECT_FALSE(Get<QPushButton>("btnOK")->isEnabled());
                  Key("txtFilter", Qt::Key_Return);
                  EXPECT_TRUE(dialog->isVisible());
                  EXPECT_EQ(Get<QLabel>("lblHint")->text(),
                            "No title and no name here holds this text.");
                  Get<QLineEdit>("txtFilter")->clear();
                  List()->setCurrentIndex(List()->model()->index(1, 0));
                  Click("btnOK");
              }),
              "#elves.tbl#");
}

TEST_F(ReferenceWindowTest, ListsHiddenNamesOnWishAndKeepsTheCurrentOne) {
    const auto steps = [this] {
        Click("chkDisplayHiddenFiles");
        EXPECT_EQ(List()->model()->rowCount(), 2);
        EXPECT_EQ(Current(), "Orcs");
        Key("lvwReference", Qt::Key_End);
        Click("optEveryWord");
        Key("lvwReference", Qt::Key_Return);
    };
    EXPECT_EQ(Choose(steps, "lib/Monsters"), "#~HiddeN.tbl#");
}

TEST_F(ReferenceWindowTest, StaysOnItsDrive) {
    dialogs.WillConfirm();
    const auto steps = [this] {
        Key("lvwReference", Qt::Key_Backspace);
        EXPECT_EQ(Get<QLabel>("lblRelative")->text(), "");
        Click("btnCancel");
    };
    EXPECT_EQ(Choose(steps, "../../../.."), "");
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: To keep reference integrity is not browsing for "
                                     "reference on other drives allowed!"});
}

TEST_F(ReferenceWindowTest, SaysThatAFolderAboveCannotBeShown) {
    dialogs.WillConfirm();
    const auto steps = [this] {
        EXPECT_EQ(Get<QLabel>("lblHint")->text().toStdString(),
                  "The folder cannot be shown: Path not found: " + folder.Path("gone/sub") + ".");
        Click("btnUpDirectory");
        Click("btnUpDirectory");
        EXPECT_EQ(Current(), "lib");
        Click("btnCancel");
    };
    EXPECT_EQ(Choose(steps, "gone/sub"), "");
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: Failure in displaying folder content!"});
}

}  // namespace
}  // namespace quenloft
