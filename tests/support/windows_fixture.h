// The whole program around a temporary library: real engine, disk and profile; dialogs, clipboard,
// printer and trash are fakes.
#pragma once

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

#include "engine/engine.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_profile_file.h"
#include "platform/linux/system_random_source.h"
#include "shell/main_window.h"
#include "shell/qt_engine_host.h"
#include "tests/support/fake_devices.h"
#include "tests/support/fake_dialogs.h"
#include "tests/support/temp_folder.h"

namespace quenloft {

class WindowsFixture : public testing::Test {
  protected:
    WindowsFixture() { files.ChangeDirectory(folder.Path()); }

    ServiceSet Services() {
        return {engine, host, files, profile, dialogs, clipboard, printer, desktop};
    }
    /// A main window as after start-up, in a size that does not depend on the screen.
    void ShowMainWindow(frmMain& window) {
        window.resize(1024, 768);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        QApplication::setActiveWindow(&window);
    }

    TempFolder folder;
    LinuxFileSystem files;
    LinuxProfileFile profile{files, folder.Path() + "/quenloft", folder.Path() + "/config"};
    SystemRandomSource random;
    FakeDialogs dialogs;
    FakeClipboard clipboard;
    FakePrinter printer;
    FakeDesktop desktop;
    QtEngineHost host{dialogs};
    Engine engine{files, random, host};
};

/// The menu command called `name`, as the user chooses it.
inline void Choose(frmMain& window, const char* name) {
    auto* action = window.findChild<QAction*>(name);
    ASSERT_TRUE(action) << name;
    ASSERT_TRUE(action->isEnabled()) << name;
    action->trigger();
}

}  // namespace quenloft
