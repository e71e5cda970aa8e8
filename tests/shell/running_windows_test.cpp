// What must hold in every window in which something runs.
#include <QTreeView>

#include "explorer/library_model.h"
#include "shell/window_kinds.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class RunningWindows : public WindowsFixture {
  protected:
    RunningWindows() {
        folder.Write("lib/endless.spt", "LABEL:a\r\nGOTO:a\r\n");
        folder.WriteTable("lib/endless.tbl", "Endless", "#endless.spt#");
        folder.Write("quenloft.INI", "[Settings]\r\nLibpath=" + folder.Path("lib") + "\r\n");
        ShowMainWindow(window);
    }

    /// Opens a window of each kind, ready for a run that never ends of itself.
    void OpenAll() {
        ChildWindow* page = Open(form::kLists, "btnGenerate_0");
        dialogs.WillGive(folder.Path("lib/endless.tbl"));
        Click(*page, "btnLoad_0");
        Open(form::kSingleList, "btnGenerate")->Load(folder.Path("lib/endless.tbl"));
        Open(form::kScript, "btnRun")->Load(folder.Path("lib/endless.spt"));
        auto* tree = Open(form::kExplorer, "btnRun")->findChild<QTreeView*>();
        const auto* model = qobject_cast<LibraryModel*>(tree->model());
        ASSERT_TRUE(QTest::qWaitFor([model] { return !model->IsReading(); }));
        tree->setCurrentIndex(model->index(0, 0, model->index(0, 0, {})));
        Open(form::kDrovemark, "btnRoll")->findChild<QLineEdit*>("txtRolls")->setText("2000000000");
        Open(form::kDice, "btnRoll")->findChild<QLineEdit*>("txtNrDice")->setText("2000000000");
        dialogs.TakeLog();
    }
    ChildWindow* Open(const char* formName, const char* button) {
        runners.emplace_back(window.Open(formName), button);
        return runners.back().first;
    }
    /// Runs in each window, `act` happening meanwhile.
    template <typename Act>
    void RunEach(Act act) {
        OpenAll();
        for (const auto& [child, button] : runners) {
            SCOPED_TRACE(child->FormName());
            bool hasRun = false;
            QTimer::singleShot(0, [&, &runner = child] {
                hasRun = window.IsRunning();
                QTimer second;  // Has its turn within a second run only.
                QObject::connect(&second, &QTimer::timeout, [this] {
                    ADD_FAILURE() << "a second run began";
                    window.AbortRun();
                });
                second.start(0);
                for (const auto& [other, start] : runners) {
                    if (other) {
                        Click(*other, start);
                    }
                }
                second.stop();
                act(*runner);
                EXPECT_TRUE(runner) << "deleted under its own run";
            });
            Click(*child, button);
            EXPECT_TRUE(hasRun);
            EXPECT_FALSE(window.IsRunning() || QApplication::overrideCursor());
            LetWindowsClose();
        }
    }

    frmMain window{Services(), MakeWindowKinds(random)};
    std::vector<std::pair<QPointer<ChildWindow>, const char*>> runners;
};

TEST_F(RunningWindows, KeepOthersOutAndStopOnAbort) {
    RunEach([this](ChildWindow&) { Choose(window, "mnuAbort"); });
    for (const auto& [child, button] : runners) {
        EXPECT_TRUE(child) << button;
    }
}

TEST_F(RunningWindows, EndTheirRunAndCloseWhenTheyAreClosed) {
    RunEach([](ChildWindow& child) { child.CloseWindow(); });
    for (const auto& [child, button] : runners) {
        EXPECT_FALSE(child) << button;
    }
    EXPECT_EQ(Setting("ListPage", "Table0"), folder.Path("lib/endless.tbl"));
    EXPECT_TRUE(window.isVisible());
}

}  // namespace
}  // namespace quenloft
