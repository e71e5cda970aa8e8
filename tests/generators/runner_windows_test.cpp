// The single list and the script runner.

#include "tests/generators/generators_fixture.h"

namespace quenloft {
namespace {

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

TEST_F(RunnerTest, OpenTableAsksForOneAndGeneratesFromIt) {
    dialogs.WillGive(folder.Path("lib/orcs.tbl"));
    Choose(window, "mnuFile_OpenTable");
    ChildWindow* list = Opened();
    ASSERT_TRUE(list);
    EXPECT_EQ(dialogs.TakeLog(),
              Log{"open: Table (*.tbl)|*.tbl|All files (*.*)|*.* in " + folder.Path()});
    EXPECT_EQ(list->windowTitle(), "Single List Orcs");
    EXPECT_EQ(Out(*list), "");
    list->Run();
    EXPECT_EQ(Out(*list), "An orc.");
    EXPECT_EQ(WithoutTime(list->Export()),
              "Table : Orcs\r\nResult :\r\nAn orc.\r\n\r\nFilename : " +
                  folder.Path("lib/orcs.tbl") + FooterOfToday());
    Click(*list, "btnEdit");
    EXPECT_EQ(editor->asked, Log{"load " + folder.LibraryPath("lib/orcs.tbl")});
}

TEST_F(RunnerTest, AWindowOpenedForAFileGoesWhenTheUserCancels) {
    for (const char* command : {"mnuFile_OpenTable", "mnuFile_OpenScript"}) {
        dialogs.WillCancel();
        Choose(window, command);
        EXPECT_FALSE(Opened()) << command;
    }
    dialogs.WillGive(folder.Path("lib/orcs.tbl"));
    Choose(window, "mnuFile_OpenTable");
    ChildWindow* list = Opened();
    dialogs.WillCancel();
    Click(*list, "btnLoad");
    EXPECT_EQ(Opened(), list) << "it has a table";
    EXPECT_EQ(list->windowTitle(), "Single List Orcs");
}

TEST_F(RunnerTest, ButtonsOfAnEmptyWindowSayWhatIsMissing) {
    ChildWindow* list = window.Open(form::kSingleList);
    dialogs.WillCancel();
    Click(*list, "btnLoad");
    EXPECT_EQ(Opened(), list) << "only what was opened for a file goes again";
    Click(*list, "btnGenerate");
    EXPECT_EQ(Out(*list), "No file loaded!");
    ChildWindow* runner = window.Open(form::kScript);
    EXPECT_FALSE(runner->findChild<QPushButton*>("btnRun")->isEnabled());
    EXPECT_FALSE(runner->findChild<QPushButton*>("btnEdit")->isEnabled());
    runner->Run();
    EXPECT_EQ(Out(*runner), "");
}

TEST_F(RunnerTest, OpenScriptAsksForOneAndRunsIt) {
    dialogs.WillGive(folder.Path("lib/village.spt"));
    Choose(window, "mnuFile_OpenScript");
    ChildWindow* runner = Opened();
    ASSERT_TRUE(runner);
    EXPECT_EQ(dialogs.TakeLog(),
              Log{"open: Scripts (*.spt)|*.spt|All files (*.*)|*.* in " + folder.Path()});
    EXPECT_EQ(runner->windowTitle(), "Script ..\\village.spt");
    Click(*runner, "btnRun");
    EXPECT_EQ(Out(*runner), "A village.");
    EXPECT_EQ(WithoutTime(runner->Export()),
              "A village.\r\n\r\nFilename : village.spt" + FooterOfToday());
    Click(*runner, "btnEdit");
    EXPECT_EQ(editor->asked, Log{"load " + folder.Path("lib/village.spt")});
}

TEST_F(RunnerTest, ATypedPathIsRunAgainstTheFolderOfTheScriptThatWasOpened) {
    folder.Write("lib/sub/inn.spt", "An inn.\r\n");
    ChildWindow* runner = window.Open(form::kScript);
    Type(*runner, "lib/village.spt");
    EXPECT_EQ(Out(*runner), "A village.") << "against the current directory";
    runner->Load(folder.LibraryPath("lib/village.spt"));
    EXPECT_EQ(runner->windowTitle().toStdString(), "Script ..\\" + folder.Path("lib/village.spt"));
    for (const std::string& path : {std::string("SUB\\Inn.spt"), folder.Path("lib/sub/inn.spt")}) {
        runner->findChild<TextBox*>("txtOut")->SetText("");
        Type(*runner, path);
        EXPECT_EQ(Out(*runner), "An inn.") << path;
    }
    Type(*runner, "nowhere.spt");
    EXPECT_NE(Out(*runner).find("Errors in script \r\n" + folder.LibraryPath("lib/nowhere.spt")),
              std::string::npos)
        << Out(*runner);
}

TEST_F(RunnerTest, ARunKeepsOthersOutAndEndsWhenItsWindowIsClosed) {
    ChildWindow* list = window.Open(form::kSingleList);
    list->Load(folder.Path("lib/orcs.tbl"));
    const QPointer<ChildWindow> runner = window.Open(form::kScript);
    runner->Load(folder.Path("lib/endless.spt"));
    QTimer::singleShot(0, [&] {
        EXPECT_TRUE(
            runner->findChild<TextBox*>("txtOut")->placeholderText().startsWith("Running."));
        const std::string before = files.CurrentDirectory();
        folder.Write("other/new.tbl", "");
        dialogs.WillGive(folder.Path("other/new.tbl"));
        Click(*list, "btnLoad");
        EXPECT_EQ(files.CurrentDirectory(), before) << "the run's references lead elsewhere";
        list->Run();
        EXPECT_EQ(Out(*list), "");
        runner->Run();
        runner->CloseWindow();
        EXPECT_TRUE(runner);
    });
    runner->Run();
    LetWindowsClose();
    EXPECT_FALSE(runner);
    EXPECT_FALSE(window.IsRunning());
}

TEST_F(RunnerTest, DroppedFilesAreLoaded) {
    ChildWindow* list = window.Open(form::kSingleList);
    EXPECT_TRUE(Drop(*list, {UrlOf("lib/orcs.tbl")}));
    EXPECT_EQ(list->windowTitle(), "Single List Orcs");
    ChildWindow* runner = window.Open(form::kScript);
    EXPECT_TRUE(Drop(*runner, {UrlOf("lib/village.spt")}));
    EXPECT_EQ(runner->findChild<QLineEdit*>("txtScript")->text().toStdString(),
              folder.Path("lib/village.spt"));
}

}  // namespace
}  // namespace quenloft
