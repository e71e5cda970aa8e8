#include "shell/main_window.h"

#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QSignalSpy>
#include <QStatusBar>

#include "shell/child_window.h"
#include "shell/form_names.h"
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

TEST_F(MainWindowTest, EntriesOfWindowsThatDoNotExistAreThereAndDisabled) {
    for (const char* name : {"mnuView_Explorer", "mnuFile_OpenScript", "mnuFile_NewScript",
                             "mnuFile_Print", "mnuFileSettings", "mnuWindow_Cascade"}) {
        EXPECT_TRUE(window.findChild<QAction*>(name)->isEnabled()) << name;
    }
    for (const char* name : {"mnuFile_OpenTable", "mnuNewTable", "mnuView_Dice", "mnuHelp_About",
                             "mnuView_Probability_Drovemark"}) {
        EXPECT_FALSE(window.findChild<QAction*>(name)->isEnabled()) << name;
    }
}

TEST_F(MainWindowTest, NoShortcutAndNoNameIsGivenTwice) {
    QStringList names;
    QStringList keys;
    for (const QAction* action : window.findChildren<QAction*>(QRegularExpression("^mnu"))) {
        names << action->objectName();
        if (!action->shortcut().isEmpty()) {
            keys << action->shortcut().toString();
        }
    }
    EXPECT_EQ(names.removeDuplicates(), 0);
    EXPECT_EQ(keys.removeDuplicates(), 0);
    EXPECT_FALSE(keys.contains("Ctrl+W") || keys.contains("Ctrl+F4"))
        << "the child windows' own Close has these";
}

TEST_F(MainWindowTest, SingleWindowsAreShownAgainAndOthersOpenAnew) {
    Choose(window, "mnuView_Explorer");
    Frames()[0]->showMinimized();
    Choose(window, "mnuView_Explorer");
    EXPECT_EQ(made.size(), 1u);
    EXPECT_FALSE(Frames()[0]->isMinimized());

    Choose(window, "mnuFile_OpenScript");
    Choose(window, "mnuFile_OpenScript");
    Choose(window, "mnuFile_NewScript");
    ASSERT_EQ(made.size(), 4u);
    EXPECT_EQ(made[1]->asked, std::vector<std::string>{"open file"});
    EXPECT_EQ(made[3]->asked, std::vector<std::string>{"new file"});
}

TEST_F(MainWindowTest, TheWindowListNumbersTheWindowsAndChecksTheActiveOne) {
    EXPECT_EQ(WindowList(), QStringList());
    for (int i = 0; i < 10; ++i) {
        window.Open(form::kScript);
    }
    window.findChild<QMdiArea*>()->setActiveSubWindow(Frames()[1]);
    const QStringList list = WindowList();
    ASSERT_EQ(list.size(), 10);
    EXPECT_EQ(list[0], "&1 W&&1");
    EXPECT_EQ(list[1], "*&2 W&&2");
    EXPECT_EQ(list[9], "10 W&&10");

    made[4]->CloseUnasked();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(WindowList().size(), 9);
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
    EXPECT_EQ(made[0]->asked, std::vector<std::string>{"ask to save"});
    EXPECT_EQ(made[2]->asked, std::vector<std::string>{}) << "asked after a Cancel";

    made[1]->maySave = true;
    made[1]->asked.clear();
    std::vector<std::string> asked;
    made[1]->onDestroyed = [&asked, child = made[1].data()] { asked = child->asked; };
    Choose(window, "mnuWindow_CloseAll");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(Frames().empty());
    EXPECT_EQ(asked, (std::vector<std::string>{"ask to save", "save state"}));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(MainWindowTest, ClosingTheProgramStopsAtCancel) {
    window.Open(form::kScript);
    window.Open(form::kEdit);
    made[1]->maySave = false;
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(Frames().size(), 2u);

    made[1]->maySave = true;
    auto* target = new QLineEdit(&window);
    window.SetInsertionTarget(target);
    EXPECT_TRUE(window.close());
    EXPECT_EQ(window.InsertionTarget(), nullptr);
}

TEST_F(MainWindowTest, TheInsertionTargetGoesAwayWithItsWindow) {
    auto* target = new QLineEdit(&window);
    window.SetInsertionTarget(target);
    EXPECT_EQ(window.InsertionTarget(), target);
    delete target;
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
        EXPECT_TRUE(abort->isVisible() && abort->isEnabled());
        EXPECT_FALSE(engine.IsAborted()) << "left from before";
        EXPECT_FALSE(GenerationRun(window, *made[0])) << "a second run";
        EXPECT_TRUE(window.IsRunning()) << "ended by the one that was refused";
        abort->trigger();
        EXPECT_TRUE(engine.IsAborted());
    }
    EXPECT_FALSE(abort->isVisible() || abort->isEnabled());
    EXPECT_FALSE(engine.IsAborted());
    EXPECT_FALSE(window.IsRunning());
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

struct PutOff {
    const char* how;
    void (*close)(frmMain&, RecordingWindow&);
    bool programEnds;
};

class ClosingDuringARun : public MainWindowTest, public testing::WithParamInterface<PutOff> {};

TEST_P(ClosingDuringARun, AbortsAndClosesWhenTheRunHasUnwound) {
    window.Open(form::kScript);
    const QPointer<RecordingWindow> child = made[0];
    child->onRun = [&] {
        const GenerationRun run(window, *child);
        GetParam().close(window, *child);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(engine.IsAborted());
        ASSERT_TRUE(child) << "deleted under its own run";
        EXPECT_TRUE(child->isVisible());
    };
    child->Run();
    QTest::qWait(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(child);
    EXPECT_EQ(window.isVisible(), !GetParam().programEnds);
}

INSTANTIATE_TEST_SUITE_P(
    , ClosingDuringARun,
    testing::Values(
        PutOff{"TheWindow", [](frmMain&, RecordingWindow& child) { child.CloseWindow(); }, false},
        PutOff{"AllWindows", [](frmMain& window, RecordingWindow&) { window.CloseAll(); }, false},
        PutOff{"TheProgram", [](frmMain& window, RecordingWindow&) { window.close(); }, true}),
    [](const auto& test) { return std::string(test.param.how); });

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
    const struct {
        std::string path;
        std::string expected;
    } cases[] = {{folder.Path("lib"), folder.LibraryPath("lib")},
                 {folder.LibraryPath("lib"), folder.LibraryPath("lib")},
                 {folder.Path("missing"), folder.LibraryPath()},
                 {"", folder.LibraryPath()}};
    for (const auto& c : cases) {
        files.ChangeDirectory(folder.Path());
        profile.WriteProfileString("Settings", "Libpath", c.path, profile.GetProfileFileName());
        frmMain started(Services(), {});
        started.StartUp();
        EXPECT_EQ(files.CurrentDirectory(), c.expected) << c.path;
    }
}

}  // namespace
}  // namespace quenloft
