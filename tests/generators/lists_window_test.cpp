
#include "shell/elided_widgets.h"
#include "tests/generators/generators_fixture.h"

namespace quenloft {
namespace {

class ListsTest : public GeneratorsFixture {
  protected:
    void Open() {
        ShowMainWindow(window);
        Choose(window, "mnuView_ListPage");
        lists = window.Open(form::kLists);
    }
    template <typename Control = QAbstractButton>
    Control* Find(const char* name, int index) {
        return lists->findChild<Control*>(QString("%1_%2").arg(name).arg(index));
    }
    void Click(const char* name, int index) { Find(name, index)->click(); }
    std::string Out(int box) { return Find<TextBox>("txtOut", box)->Text(); }
    std::string Title(int slot) { return Find("btnGenerate", slot)->text().toStdString(); }
    void Load(int slot, const std::string& name) {
        dialogs.WillGive(folder.Path(name));
        Click("btnLoad", slot);
    }
    /// What each output box shows, as "title: text".
    std::string Boxes() {
        std::string boxes;
        for (int box = 0; box < 6; ++box) {
            boxes +=
                "[" + Find<QLabel>("lblResult", box)->text().toStdString() + ": " + Out(box) + "]";
        }
        return boxes;
    }
    std::string MarkedSlots() {
        std::string marked;
        for (int slot = 0; slot < 18; ++slot) {
            if (Find<TitleButton>("btnGenerate", slot)->IsMarked()) {
                marked += std::to_string(slot) + " ";
            }
        }
        return marked;
    }

    frmMain window{Services(), Kinds()};
    QPointer<ChildWindow> lists;
};

TEST_F(ListsTest, ThreeSlotsShareABoxAndItsTitleAndMarkTellWhose) {
    Open();
    EXPECT_EQ(Title(17), "Click the button on the right to select a table");
    Load(0, "lib/orcs.tbl");
    Load(2, "lib/elves.tbl");
    Load(3, "lib/orcs.tbl");
    Load(17, "lib/elves.tbl");
    EXPECT_EQ(Title(2), "Elves");
    for (const int slot : {0, 2, 3, 17, 6}) {
        Click("btnGenerate", slot);
    }
    EXPECT_EQ(Boxes(),
              "[Elves: An elf.][Orcs: An orc.][: No file loaded!][: ][: ][Elves: An elf.]");
    EXPECT_EQ(MarkedSlots(), "2 3 6 17 ");
    Load(2, "lib/orcs.tbl");
    EXPECT_EQ(Boxes().substr(0, 16), "[Elves: An elf.]") << "the result is still of the elves";
    EXPECT_EQ(MarkedSlots(), "3 6 17 ");
}

TEST_F(ListsTest, TheDialogBeginsAtTheSlotsFolderAndCancellingKeepsTheTable) {
    Open();
    Load(4, "lib/orcs.tbl");
    dialogs.WillCancel();
    Click("btnLoad", 4);
    const std::string open = "open: Table (*.tbl)|*.tbl|All files (*.*)|*.* in ";
    EXPECT_EQ(dialogs.TakeLog(), (Log{open + folder.Path(), open + folder.Path("lib")}));
    EXPECT_EQ(Title(4), "Orcs");
}

TEST_F(ListsTest, SlotsComeBackWithTheWindow) {
    Open();
    Load(0, "lib/orcs.tbl");
    Load(17, "lib/elves.tbl");
    lists->CloseWindow();
    LetWindowsClose();
    ASSERT_FALSE(lists);
    std::filesystem::remove(folder.Path("lib/orcs.tbl"));
    Open();
    EXPECT_EQ(Title(0), "Click the button on the right to select a table");
    EXPECT_EQ(Title(17), "Elves");
    Click("btnGenerate", 17);
    EXPECT_EQ(Out(5), "An elf.");
}

TEST_F(ListsTest, ClosingTheProgramKeepsTheSlots) {
    Open();
    Load(1, "lib/orcs.tbl");
    window.close();
    EXPECT_EQ(Setting("ListPage", "Table1"), folder.Path("lib/orcs.tbl"));
}

TEST_F(ListsTest, OneDroppedFileIsBoundToTheSlotItIsDroppedOn) {
    Open();
    QWidget* row = Find("btnGenerate", 7)->parentWidget();
    EXPECT_FALSE(Drop(*row, {UrlOf("lib")}));
    EXPECT_FALSE(Drop(*row, {QUrl("https://example.org/orcs.tbl")}));
    EXPECT_TRUE(Drop(*row, {UrlOf("lib/elves.tbl")}));
    EXPECT_EQ(Title(7), "Elves");
    EXPECT_EQ(Title(6), "Click the button on the right to select a table");
}

TEST_F(ListsTest, LongTitlesAreElidedAndTheTooltipHasTheWhole) {
    const std::string title = "Orcs & <b>elves</b> " + std::string(2000, 'x');
    folder.WriteTable("lib/long.tbl", title, "one");
    Open();
    const QSize before = lists->minimumSizeHint();
    Load(0, "lib/long.tbl");
    QAbstractButton* button = Find("btnGenerate", 0);
    EXPECT_EQ(button->text().replace("&&", "&").toStdString(), title.substr(0, 200) + "…");
    EXPECT_EQ(button->toolTip(), "<qt>" + QString::fromStdString(title).toHtmlEscaped() + "</qt>");
    Click("btnGenerate", 0);
    QCoreApplication::processEvents();
    EXPECT_LT(button->width(), lists->width() / 2);
    EXPECT_EQ(lists->minimumSizeHint(), before) << "a title makes the window wider";
}

TEST_F(ListsTest, TheBoxesGetTheRoomAndNothingIsCutOffAtAnySize) {
    Open();
    for (const QSize size : {QSize(1280, 800), QSize(500, 400)}) {
        window.resize(size);
        lists->parentWidget()->setGeometry(0, 0, size.width() - 10, size.height() - 80);
        QCoreApplication::processEvents();
        const auto* edit = Find("btnEdit", 17);
        EXPECT_GE(edit->width(), edit->sizeHint().width());
        EXPECT_LE(edit->mapTo(lists, edit->rect().topRight()).x(), lists->width());
        const QSize out = Find<TextBox>("txtOut", 0)->size();
        if (size.width() > 500) {
            EXPECT_GT(6 * out.width() * out.height(), lists->width() * lists->height() / 2);
        }
    }
}

TEST_F(ListsTest, OpensWhollyInsideTheMainWindow) {
    Open();
    const QWidget* frame = lists->parentWidget();
    EXPECT_TRUE(frame->parentWidget()->rect().contains(frame->geometry()));
    Choose(window, "mnuWindow_Arrange");
    EXPECT_EQ(frame->pos(), QPoint(367, 484));
}

TEST_F(ListsTest, CopyAndCutOfASlotsButtonActOnTheBoxThatItFills) {
    Open();
    Load(4, "lib/orcs.tbl");
    Click("btnGenerate", 4);
    for (const char* name : {"btnGenerate", "btnLoad"}) {
        clipboard.text = "before";
        Find(name, 5)->setFocus();
        Choose(window, "mnuEdit_Copy");
        EXPECT_EQ(clipboard.text, "An orc.") << name;
    }
    Find("btnGenerate", 2)->setFocus();
    Choose(window, "mnuEdit_Copy");
    EXPECT_EQ(clipboard.text, "") << "the first box is empty";
}

TEST_F(ListsTest, PrintsTheSlotThatWasGeneratedLast) {
    Open();
    Load(0, "lib/orcs.tbl");
    Load(5, "lib/elves.tbl");
    Click("btnGenerate", 5);
    Click("btnGenerate", 0);
    Choose(window, "mnuFile_Print");
    EXPECT_EQ(WithoutTime(printer.printed.at(0)),
              "Table : Orcs\r\nResult :\r\nAn orc.\r\n\r\nFilename : " +
                  folder.Path("lib/orcs.tbl") + FooterOfToday());
}

TEST_F(ListsTest, EditOpensTheTablesEditorOrANewTable) {
    Open();
    Load(1, "lib/orcs.tbl");
    Click("btnEdit", 1);
    EXPECT_EQ(editor->asked, Log{"load " + folder.LibraryPath("lib/orcs.tbl")});
    Click("btnEdit", 2);
    EXPECT_EQ(editor->asked, Log{"new file"});
}

TEST_F(ListsTest, WithoutATableEditorThereIsNothingToEditWith) {
    frmMain bare(Services(), {{form::kLists, Instances::One, Make<frmLists>}});
    const ChildWindow* page = bare.Open(form::kLists);
    EXPECT_FALSE(page->findChild<QPushButton*>("btnEdit_0")->isEnabled());
}

TEST_F(ListsTest, ARunShowsThatItGoesOnKeepsOthersOutAndStopsOnAbort) {
    Open();
    Load(0, "lib/endless.tbl");
    Load(3, "lib/orcs.tbl");
    bool looked = false;
    QTimer::singleShot(0, [&] {
        looked = true;
        EXPECT_TRUE(Find<TextBox>("txtOut", 0)->placeholderText().startsWith("Running."));
        Click("btnGenerate", 3);
        EXPECT_EQ(Out(1), "");
        Load(0, "lib/elves.tbl");
        Choose(window, "mnuAbort");
    });
    Click("btnGenerate", 0);
    EXPECT_TRUE(looked);
    EXPECT_NE(Out(0).find("Process Aborted!"), std::string::npos) << Out(0);
    EXPECT_EQ(Find<TextBox>("txtOut", 0)->placeholderText(), "");
    Click("btnGenerate", 3);
    EXPECT_EQ(Out(1), "An orc.");
}

TEST_F(ListsTest, ClosingWhileARunGoesOnEndsTheRunFirst) {
    Open();
    Load(0, "lib/endless.tbl");
    bool stillThere = false;
    QTimer::singleShot(0, [&] {
        lists->CloseWindow();
        stillThere = lists;
    });
    Click("btnGenerate", 0);
    EXPECT_TRUE(stillThere);
    LetWindowsClose();
    EXPECT_FALSE(lists);
    EXPECT_EQ(Setting("ListPage", "Table0"), folder.Path("lib/endless.tbl"));
}

TEST_F(ListsTest, TabFollowsTheEye) {
    Open();
    Find("btnGenerate", 0)->setFocus();
    QStringList order;
    for (int i = 0; i < 11; ++i) {
        order << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order.join(" "),
              "btnGenerate_0 btnLoad_0 btnEdit_0 btnGenerate_1 btnLoad_1 btnEdit_1 btnGenerate_2 "
              "btnLoad_2 btnEdit_2 txtOut_0 btnGenerate_3");
}

}  // namespace
}  // namespace quenloft
