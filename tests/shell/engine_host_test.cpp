#include <QMetaObject>

#include "shell/qt_engine_host.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

TEST_F(WindowsFixture, AnEndlessRunSeesTheAbortCommand) {
    folder.Write("endless.spt", "LABEL:again\r\nGOTO:again\r\n");
    // The event loop has its turn inside the run, or this never comes.
    QMetaObject::invokeMethod(
        qApp, [this] { engine.SetAbortFlag(); }, Qt::QueuedConnection);
    EXPECT_EQ(engine.RunScript(folder.LibraryPath("endless.spt"), true), "Process Aborted!");
}

TEST_F(WindowsFixture, TheHostAsksThroughTheDialogs) {
    dialogs.WillConfirm();
    dialogs.WillGive("Ada");
    dialogs.WillCancel();
    host.ShowMessage("Hello");
    EXPECT_EQ(host.AskForText("Name?"), "Ada");
    EXPECT_EQ(host.AskForText("Name?"), "");
    EXPECT_EQ(dialogs.TakeLog(),
              (std::vector<std::string>{"message: Hello", "text: Name? []", "text: Name? []"}));
}

}  // namespace
}  // namespace quenloft
