// The frame: its windows, its runs, how it starts and ends.
#include "shell/main_window.h"

#include <QMenu>
#include <QMetaObject>

#include "shell/generation_run.h"
#include "tests/support/recording_window.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class MainWindowTest : public WindowsFixture {
  protected:
    MainWindowTest() { ShowMainWindow(window); }

    WindowKind Kind(const char* formName, Instances instances) {
        return {formName, instances, [this, formName](Workspace& workspace) {
                    auto* child = new RecordingWindow(workspace, formName,
                                                      QString("W&%1").arg(made.size() + 1));
                    made.emplace_back(child);
                    return child;
                }};
    }
    std::vector<QMdiSubWindow*> Frames() {
        const auto frames = window.findChild<QMdiArea*>()->subWindowList();
        return {frames.begin(), frames.end()};
    }
    /// The window list as it reads when the Window menu opens.
    QStringList WindowList() {
        auto* menu = window.findChild<QMenu*>("mnuWindow");
        emit menu->aboutToShow();
        QStringList lines;
        for (const QAction* action : menu->actions()) {
            if (action->isCheckable()) {
                lines << (action->isChecked() ? "*" : "") + action->text();
            }
        }
        return lines;
    }

    std::vector<QPointer<RecordingWindow>> made;
    frmMain window{Services(),
                   {Kind(form::kExplorer, Instances::One), Kind(form::kScript, Instances::Many),
                    Kind(form::kEdit, Instances::Many)}};
};

TEST_F(MainWindowTest, SingleWindowsAreShownAgainAndOthersOpenAnew) {
    Choose(window, "mnuView_Explorer");
    Frames()[0]->showMinimized();
    Choose(window, "mnuView_Explorer");
    EXPECT_FALSE(Frames()[0]->isMinimized());
    Choose(window, "mnuFile_OpenScript");
    Choose(window, "mnuFile_NewScript");
    ASSERT_EQ(made.size(), 3u);
    EXPECT_EQ(made[1]->asked, Log{"open file"});
    EXPECT_EQ(made[2]->asked, Log{"new file"});
}

TEST_F(MainWindowTest, TheWindowListNumbersTheWindowsAndChecksTheActiveOne) {
    EXPECT_EQ(WindowList(), QStringList());
    for (int i = 0; i < 10; ++i) {
        window.Open(form::kScript);
    }
    window.findChild<QMdiArea*>()->setActiveSubWindow(Frames()[1]);
    made[4]->CloseUnasked();
    LetWindowsClose();
    EXPECT_EQ(WindowList().join(", "),
              "&1 W&&1, *&2 W&&2, &3 W&&3, &4 W&&4, &5 W&&6, &6 W&&7, &7 W&&8, &8 W&&9, &9 W&&10");
    window.Open(form::kScript);
    EXPECT_EQ(WindowList().last(), "*10 W&&11");
}

TEST_F(MainWindowTest, ClosingAWindowLeadsBackToTheOneBefore) {
    for (int i = 0; i < 3; ++i) {
        window.Open(form::kScript);
    }
    window.findChild<QMdiArea*>()->setActiveSubWindow(Frames()[1]);
    window.Open(form::kEdit)->CloseUnasked();
    LetWindowsClose();
    EXPECT_EQ(window.findChild<QMdiArea*>()->activeSubWindow(), Frames()[1]);
}

TEST_F(MainWindowTest, ArrangeBringsMinimisedAndMaximisedWindowsBackToTheirPlaces) {
    for (int i = 0; i < 3; ++i) {
        window.Open(form::kScript);
    }
    Frames()[0]->showMinimized();
    Frames()[1]->showMaximized();
    Frames()[2]->move(400, 300);
    Choose(window, "mnuWindow_Arrange");
    for (const QMdiSubWindow* frame : Frames()) {
        EXPECT_FALSE(frame->isMinimized() || frame->isMaximized());
        EXPECT_EQ(frame->pos(), QPoint(100, 200));
    }
}

TEST_F(MainWindowTest, CloseAllAsksEveryWindowBeforeItClosesAny) {
    for (int i = 0; i < 3; ++i) {
        window.Open(form::kScript);
    }
    made[1]->maySave = false;
    Choose(window, "mnuWindow_CloseAll");
    EXPECT_EQ(Frames().size(), 3u);
    EXPECT_EQ(made[0]->asked, Log{"ask to save"});
    EXPECT_EQ(made[2]->asked, Log()) << "asked after a Cancel";

    made[1]->maySave = true;
    Log asked;
    made[1]->onDestroyed = [&asked, child = made[1].data()] { asked = child->asked; };
    Choose(window, "mnuWindow_CloseAll");
    LetWindowsClose();
    EXPECT_TRUE(Frames().empty());
    EXPECT_EQ(asked, (Log{"ask to save", "ask to save", "save state"}));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(MainWindowTest, ClosingTheProgramStopsAtCancel) {
    window.Open(form::kScript);
    window.Open(form::kEdit);
    made[1]->maySave = false;
    EXPECT_FALSE(window.close());
    EXPECT_EQ(Frames().size(), 2u);

    made[1]->maySave = true;
    window.SetInsertionTarget(made[0]->button);
    EXPECT_TRUE(window.close());
    EXPECT_EQ(window.InsertionTarget(), nullptr);
}

TEST_F(MainWindowTest, TheAbortCommandIsThereDuringARunOnly) {
    auto* abort = window.findChild<QAction*>("mnuAbort");
    window.Open(form::kScript);
    EXPECT_FALSE(abort->isVisible() || abort->isEnabled());
    engine.SetAbortFlag();
    {
        const GenerationRun run(window, *made[0]);
        EXPECT_TRUE(run);
        EXPECT_FALSE(engine.IsAborted()) << "left from before";
        EXPECT_FALSE(GenerationRun(window, *made[0])) << "a second run";
        EXPECT_TRUE(window.IsRunning()) << "ended by the one that was refused";
        Choose(window, "mnuAbort");
        EXPECT_TRUE(engine.IsAborted());
    }
    EXPECT_FALSE(abort->isVisible() || abort->isEnabled());
    EXPECT_FALSE(engine.IsAborted() || window.IsRunning());
}

TEST_F(MainWindowTest, ALongRunShowsThatItIsGoingOn) {
    window.Open(form::kScript);
    auto* bar = window.findChild<QWidget*>("barRunning");
    {
        const GenerationRun run(window, *made[0]);
        EXPECT_FALSE(bar->isVisible());
        EXPECT_TRUE(QTest::qWaitFor([&] { return bar->isVisible(); }));
    }
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(MainWindowTest, ClosingDuringARunAbortsItAndWaitsUntilItHasUnwound) {
    const struct {
        const char* what;
        std::function<void(ChildWindow&)> close;
        bool programEnds;
    } cases[] = {
        {"the window", [](ChildWindow& child) { child.CloseWindow(); }, false},
        {"all windows", [this](ChildWindow&) { window.CloseAll(); }, false},
        {"the program", [this](ChildWindow&) { window.close(); }, true},
    };
    for (const auto& [what, close, programEnds] : cases) {
        SCOPED_TRACE(what);
        window.Open(form::kScript);
        const QPointer<RecordingWindow> child = made.back();
        child->onRun = [&, &close = close] {
            const GenerationRun run(window, *child);
            close(*child);
            LetWindowsClose();
            EXPECT_TRUE(engine.IsAborted());
            ASSERT_TRUE(child) << "deleted under its own run";
            EXPECT_TRUE(child->isVisible());
        };
        child->Run();
        LetWindowsClose();
        EXPECT_FALSE(child);
        EXPECT_EQ(window.isVisible(), !programEnds);
    }
}

TEST_F(MainWindowTest, ComesBackWhereItWasAndMaximisedTheFirstTime) {
    window.setGeometry(120, 90, 640, 480);
    window.close();
    frmMain again(Services(), {});
    again.StartUp();
    EXPECT_EQ(again.geometry(), QRect(120, 90, 640, 480));

    profile.WriteProfileString("Window", "Geometry", "", profile.GetProfileFileName());
    frmMain first(Services(), {});
    first.StartUp();
    EXPECT_TRUE(first.isMaximized());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(MainWindowTest, StartUpEntersTheLibraryWhereThereIsOne) {
    folder.Write("lib/x.tbl", "");
    const std::pair<std::string, std::string> cases[] = {
        {folder.Path("lib"), folder.LibraryPath("lib")},
        {folder.LibraryPath("lib"), folder.LibraryPath("lib")},
        {folder.Path("missing"), folder.LibraryPath()},
        {"", folder.LibraryPath()}};
    for (const auto& [path, expected] : cases) {
        files.ChangeDirectory(folder.Path());
        profile.WriteProfileString("Settings", "Libpath", path, profile.GetProfileFileName());
        frmMain started(Services(), {});
        started.StartUp();
        EXPECT_EQ(files.CurrentDirectory(), expected) << path;
    }
}

}  // namespace
}  // namespace quenloft
