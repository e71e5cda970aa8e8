// The whole program around a temporary library.
#pragma once

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

#include "shell/main_window.h"
#include "tests/support/temp_program.h"

namespace quenloft {

class WindowsFixture : public testing::Test, protected TempProgram {
  protected:
    WindowsFixture() { files.ChangeDirectory(folder.Path()); }

    /// A main window as after start-up, in a size that does not depend on the screen.
    void ShowMainWindow(frmMain& window) {
        window.resize(1024, 768);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        QApplication::setActiveWindow(&window);
    }
};

/// The menu command called `name`, as the user chooses it.
inline void Choose(frmMain& window, const char* name) {
    auto* action = window.findChild<QAction*>(name);
    ASSERT_TRUE(action) << name;
    ASSERT_TRUE(action->isEnabled()) << name;
    action->trigger();
}

}  // namespace quenloft
