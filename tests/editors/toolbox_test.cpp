// The insert toolbox: its marks, where they go, and its memory.
#include <QContextMenuEvent>
#include <QTableWidget>
#include <QTextEdit>

#include "editors/toolbox/toolbox_text.h"
#include "editors/toolbox/toolbox_window.h"
#include "engine/failure.h"
#include "shell/elided_widgets.h"
#include "tests/support/recording_window.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

TEST(ToolboxText, WritesMarksToTheLetter) {
    EXPECT_EQ(DiceMark({"3", "6", "-1", true}), "@3d6-1~@");
    EXPECT_EQ(DiceMark({"2", "10", "0", false}), "@2d10@");
    EXPECT_EQ(DiceMark({" 2 dice", "", "2.5", false}), "@2d0+2@");
    EXPECT_THROW(DiceMark({"1", "1", "3000000000", false}), Failure);
    EXPECT_EQ(ReferenceMark("Loot", NameCase::Upper, "4"), "#LOOT^4#");
    for (const char* repeat : {"1", "0", "-3", "many", ""}) {
        EXPECT_EQ(ReferenceMark("\xC3\x89lan VITAL", NameCase::First, repeat),
                  "#\xC3\x89lan vital#");
    }
}

class ToolboxTest : public WindowsFixture {
  protected:
    ToolboxTest() {
        folder.WriteTable("lib/deep/er/loot.tbl", "Loot!", "x");
        folder.WriteTable("lib/deep/Orcs.v2.tbl", "Orcs!", "x");
        folder.Write("quenloft.INI", "[Settings]\r\nLibpath=" + folder.Path("lib") + "\r\n");
        ShowMainWindow(window);
        window.Open(form::kEdit);
        toolbox = window.Open(form::kEditReference);
    }
    template <typename Widget>
    Widget* Get(const std::string& name) {
        return toolbox->findChild<Widget*>(QString::fromStdString(name));
    }
    /// With the focus, as after a click of the mouse.
    void Click(const char* name) {
        auto* button = Get<QAbstractButton>(name);
        button->setFocus();
        button->click();
    }
    static void AskForMenu(QWidget& button, QContextMenuEvent::Reason reason) {
        const QPoint place = button.rect().center();
        QContextMenuEvent event(reason, place, button.mapToGlobal(place));
        QCoreApplication::sendEvent(&button, &event);
    }
    std::string CaptionOf(int index) {
        return Get<TitleButton>("btnQuicklList_" + std::to_string(index))->text().toStdString();
    }
    void Bind(int index, const std::string& file) {
        dialogs.WillGive(folder.Path(file));
        AskForMenu(*Get<TitleButton>("btnQuicklList_" + std::to_string(index)),
                   QContextMenuEvent::Keyboard);
    }

    QPointer<RecordingWindow> editor;
    frmMain window{Services(),
                   {{form::kEditReference, Instances::One, Make<frmEdit_Reference>},
                    Recorder(form::kEdit, editor)}};
    ChildWindow* toolbox = nullptr;
};

TEST_F(ToolboxTest, WritesIntoTheTextThatHadTheFocusAndGivesItBack) {
    TextBox& box = *editor->txtOut;
    Click("btnLinebreak");
    EXPECT_EQ(box.Text(), "") << "no target yet";
    box.SetText("a gem");
    box.moveCursor(QTextCursor::End);
    box.moveCursor(QTextCursor::StartOfWord, QTextCursor::KeepAnchor);
    window.SetInsertionTarget(&box);
    Get<QLineEdit>("txtAdd")->setText("-1");
    Click("chkOpenEnded");
    Click("btnDice");
    EXPECT_EQ(QApplication::focusWidget(), &box);
    QTest::keyClicks(QApplication::focusWidget(), "!");
    box.setReadOnly(true);
    Click("btnLinebreak");
    EXPECT_EQ(box.Text(), "a @1d6-1~@!");
    editor->CloseUnasked();
    LetWindowsClose();
    Click("btnLinebreak");
}

TEST_F(ToolboxTest, KnowsEveryKindOfTarget) {
    auto* rich = new QTextEdit(editor);
    auto* line = new QLineEdit("ab", editor);
    line->setCursorPosition(1);
    auto* grid = new QTableWidget(1, 2, editor);
    grid->setItem(0, 0, new QTableWidgetItem("whole text"));
    grid->setItem(0, 1, new QTableWidgetItem("fixed"));
    grid->item(0, 1)->setFlags(Qt::ItemIsEnabled);
    for (const int column : {0, 1}) {
        grid->setCurrentCell(0, column);
        window.SetInsertionTarget(grid);
        Click("btnLinebreak");
    }
    for (QWidget* target : std::initializer_list<QWidget*>{rich, line, editor->button}) {
        window.SetInsertionTarget(target);
        Click("btnLinebreak");
    }
    EXPECT_EQ(rich->toPlainText(), "|");
    EXPECT_EQ(line->text(), "a|b");
    EXPECT_EQ(grid->item(0, 0)->text() + grid->item(0, 1)->text(), "|fixed");
}

TEST_F(ToolboxTest, WritesATypedOrChosenReference) {
    window.SetInsertionTarget(editor->txtOut);
    dialogs.WillGive(folder.Path("lib/deep/Orcs.v2.tbl"));
    Click("btnLoad");
    Get<QLineEdit>("txtRepeat")->setText("3");
    Click("btnSendReference");
    Get<QLineEdit>("txtRepeat")->setText("9999999999");
    dialogs.WillConfirm();
    Click("btnSendReference");
    EXPECT_EQ(editor->txtOut->Text(), "#orcs^3#");
    EXPECT_EQ(dialogs.TakeLog().back(), "warning: Overflow");
}

TEST_F(ToolboxTest, RemembersItsQuickTables) {
    EXPECT_EQ(CaptionOf(9), "Right click the button  to select a table");
    Click("btnQuicklList_9");
    Bind(0, "lib/deep/er/loot.tbl");
    Bind(9, "lib/deep/Orcs.v2.tbl");
    folder.WriteTable("elsewhere/gems.tbl", "Gems", "x");
    Bind(4, "elsewhere/gems.tbl");
    EXPECT_EQ(CaptionOf(4), "Gems");
    toolbox->CloseWindow();
    LetWindowsClose();
    toolbox = window.Open(form::kEditReference);
    EXPECT_EQ(CaptionOf(0), "Loot!");
    EXPECT_EQ(CaptionOf(4), "gems") << "nobody knows where";
    EXPECT_EQ(CaptionOf(9), "Orcs!");
    EXPECT_EQ(folder.Read("quenloft.INI"),
              "[Settings]\r\nLibpath=" + folder.Path("lib") +
                  "\r\n[Toolbox]\r\nQuickTable0=loot\r\nQuickTable4=gems\r\nQuickTable9=Orcs\r\n");
    window.SetInsertionTarget(editor->txtOut);
    Click("optCaseFirst");
    Click("btnQuicklList_9");
    EXPECT_EQ(editor->txtOut->Text(), "#Orcs#");
    dialogs.WillCancel();
    AskForMenu(*Get<TitleButton>("btnQuicklList_9"), QContextMenuEvent::Mouse);
    EXPECT_EQ(CaptionOf(9), "Orcs!");
}

}  // namespace
}  // namespace quenloft
