// The windows that roll tables and run scripts, with editors that record.
#include "generators/list_single_window.h"
#include "generators/lists_window.h"
#include "generators/script_window.h"
#include "shell/elided_widgets.h"
#include "tests/support/recording_window.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class GeneratorsFixture : public WindowsFixture {
  protected:
    GeneratorsFixture() {
        folder.WriteTable("lib/orcs.tbl", "Orcs", "An orc.");
        folder.WriteTable("lib/elves.tbl", "Elves", "An elf.");
        folder.Write("lib/village.spt", "A village.\r\n");
        folder.Write("lib/endless.spt", "LABEL:a\r\nGOTO:a\r\n");
        folder.WriteTable("lib/endless.tbl", "Endless", "#endless.spt#");
    }

    std::vector<WindowKind> Kinds() {
        return {{form::kLists, Instances::One, Make<frmLists>},
                {form::kSingleList, Instances::Many, Make<frmListSingle>},
                {form::kScript, Instances::Many, Make<frmScript>},
                Recorder(form::kEditTable, editor),
                Recorder(form::kEdit, editor)};
    }

    QPointer<RecordingWindow> editor;
};

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

TEST_F(ListsTest, SlotsComeBackWithTheWindow) {
    Open();
    Load(17, "lib/elves.tbl");
    lists->CloseWindow();
    LetWindowsClose();
    ASSERT_FALSE(lists);
    Open();
    EXPECT_EQ(Title(17), "Elves");
    Load(1, "lib/elves.tbl");
    window.close();
    EXPECT_EQ(Setting("ListPage", "Table1"), folder.Path("lib/elves.tbl"));
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
    EXPECT_EQ(lists->minimumSizeHint(), before) << "a title makes the window wider";
}

TEST_F(ListsTest, CopyAndCutOfASlotsButtonActOnTheBoxThatItFills) {
    Open();
    Load(4, "lib/orcs.tbl");
    Click("btnGenerate", 4);
    clipboard.text = "before";
    Find("btnLoad", 5)->setFocus();
    Choose(window, "mnuEdit_Cut");
    EXPECT_EQ(clipboard.text + Out(1), "An orc.");
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
    EXPECT_TRUE(printer.printed.at(0).starts_with("Table : Orcs\r\nResult :\r\nAn orc.\r\n"));
}

TEST_F(ListsTest, EditOpensTheTablesEditorOrANewTable) {
    Open();
    Load(1, "lib/orcs.tbl");
    Click("btnEdit", 1);
    EXPECT_EQ(editor->asked, Log{"load " + folder.LibraryPath("lib/orcs.tbl")});
    Click("btnEdit", 2);
    EXPECT_EQ(editor->asked, Log{"new file"});
}

TEST_F(ListsTest, ARunShowsThatItGoesOnAndTakesAnotherTableMeanwhile) {
    Open();
    Load(0, "lib/endless.tbl");
    QTimer::singleShot(0, [&] {
        EXPECT_TRUE(Find<TextBox>("txtOut", 0)->placeholderText().startsWith("Running."));
        Load(0, "lib/elves.tbl");
        Choose(window, "mnuAbort");
    });
    Click("btnGenerate", 0);
    EXPECT_NE(Out(0).find("Process Aborted!"), std::string::npos) << Out(0);
    EXPECT_EQ(Find<TextBox>("txtOut", 0)->placeholderText(), "");
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

class RunnerTest : public GeneratorsFixture {
  protected:
    RunnerTest() { ShowMainWindow(window); }

    /// The window that a menu command opened; null where it is gone again.
    ChildWindow* Opened() {
        LetWindowsClose();
        const QMdiSubWindow* frame = window.findChild<QMdiArea*>()->currentSubWindow();
        return frame ? qobject_cast<ChildWindow*>(frame->widget()) : nullptr;
    }
    static std::string Out(const ChildWindow& child) {
        return child.findChild<TextBox*>("txtOut")->Text();
    }
    static void Type(const ChildWindow& child, const std::string& path) {
        auto* box = child.findChild<QLineEdit*>("txtScript");
        box->setText(QString::fromStdString(path));
        QTest::keyClick(box, Qt::Key_Return);
    }

    frmMain window{Services(), Kinds()};
};

TEST_F(RunnerTest, TheOpenCommandsAskForAFileAndRunIt) {
    const std::string orcs = folder.Path("lib/orcs.tbl");
    const std::string village = folder.Path("lib/village.spt");
    const struct {
        const char* command;
        std::string file;
        const char *filter, *title, *result;
        std::string exported;
        std::string edited;
    } cases[] = {
        {"mnuFile_OpenTable", orcs, "Table (*.tbl)|*.tbl", "Single List Orcs", "An orc.",
         "Table : Orcs\r\nResult :\r\nAn orc.\r\n\r\nFilename : " + orcs,
         folder.LibraryPath("lib/orcs.tbl")},
        {"mnuFile_OpenScript", village, "Scripts (*.spt)|*.spt", "Script ..\\village.spt",
         "A village.", "A village.\r\n\r\nFilename : village.spt", village},
    };
    for (const auto& c : cases) {
        files.ChangeDirectory(folder.Path());
        dialogs.WillGive(c.file);
        Choose(window, c.command);
        EXPECT_EQ(dialogs.TakeLog(), Log{std::string("open: ") + c.filter +
                                         "|All files (*.*)|*.* in " + folder.Path()});
        ChildWindow* opened = Opened();
        ASSERT_TRUE(opened);
        EXPECT_EQ(opened->windowTitle(), c.title);
        EXPECT_EQ(Out(*opened), "");
        opened->Run();
        EXPECT_EQ(Out(*opened), c.result);
        EXPECT_EQ(WithoutTime(opened->Export()), c.exported + FooterOfToday());
        Click(*opened, "btnEdit");
        EXPECT_EQ(editor->asked, Log{"load " + c.edited});
    }
}

TEST_F(RunnerTest, AWindowOpenedForAFileGoesWhenTheUserCancels) {
    for (const char* command : {"mnuFile_OpenTable", "mnuFile_OpenScript"}) {
        dialogs.WillCancel();
        Choose(window, command);
        EXPECT_FALSE(Opened()) << command;
    }
    ChildWindow* list = window.Open(form::kSingleList);
    dialogs.WillCancel();
    Click(*list, "btnLoad");
    EXPECT_EQ(Opened(), list) << "only what was opened for a file goes again";
}

TEST_F(RunnerTest, ATypedPathIsRunAgainstTheFolderOfTheScriptThatWasOpened) {
    folder.Write("lib/sub/inn.spt", "An inn.\r\n");
    ChildWindow* runner = window.Open(form::kScript);
    Type(*runner, "lib/village.spt");
    EXPECT_EQ(Out(*runner), "A village.") << "against the current directory";
    runner->Load(folder.LibraryPath("lib/village.spt"));
    EXPECT_EQ(runner->windowTitle().toStdString(), "Script ..\\" + folder.Path("lib/village.spt"));
    Type(*runner, "SUB\\Inn.spt");
    EXPECT_EQ(Out(*runner), "An inn.");
    Type(*runner, "nowhere.spt");
    EXPECT_NE(Out(*runner).find("Errors in script \r\n" + folder.LibraryPath("lib/nowhere.spt")),
              std::string::npos);
}

TEST_F(RunnerTest, ATableLoadedDuringARunDoesNotLeadItElsewhere) {
    ChildWindow* list = window.Open(form::kSingleList);
    ChildWindow* runner = window.Open(form::kScript);
    runner->Load(folder.Path("lib/endless.spt"));
    QTimer::singleShot(0, [&] {
        dialogs.WillGive(folder.Write("other/new.tbl", ""));
        Click(*list, "btnLoad");
        EXPECT_EQ(files.CurrentDirectory(), folder.LibraryPath("lib"));
        Choose(window, "mnuAbort");
    });
    runner->Run();
}

}  // namespace
}  // namespace quenloft
