// The whole program around a temporary library.
#pragma once

#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

#include "engine/program_title.h"
#include "engine/value.h"
#include "shell/child_window.h"
#include "shell/form_names.h"
#include "shell/main_window.h"
#include "shell/text_box.h"
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
    /// How the main window makes a `Window` that needs nothing but its workspace.
    template <typename Window>
    static ChildWindow* Make(Workspace& workspace) {
        return new Window(workspace);
    }
    static void Click(const QWidget& window, const char* button) {
        window.findChild<QAbstractButton*>(button)->click();
    }
    /// With the mark of change as a star.
    static std::string TitleOf(const QWidget& window) {
        const QString mark = window.isWindowModified() ? "*" : "";
        return window.windowTitle().replace("[*]", mark).toStdString();
    }
    /// Lets what was put off until the event loop's next turn happen, closing among it.
    static void LetWindowsClose() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QUrl UrlOf(const std::string& name) const {
        return QUrl::fromLocalFile(QString::fromStdString(folder.Path(name)));
    }
    std::string Setting(const char* section, const char* key) {
        return profile.ReadProfileString(section, key, "", profile.GetProfileFileName());
    }
};

/// The last line of what windows export today, without the time of day ...
inline std::string FooterOfToday() {
    return "\r\nPrinted by " + ProgramTitle() + " " + DateTimeText().substr(0, 10);
}
/// ... which this takes away.
inline std::string WithoutTime(const std::string& exported) {
    return exported.substr(0, exported.size() - std::string(" 20:15:00").size());
}

/// A file manager's drop in the middle of `target`; whether it was taken.
inline bool Drop(QWidget& target, const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    const QPoint place = target.rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&target, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "a move would delete the file";
    return drop.isAccepted();
}

/// The menu command called `name`, as the user chooses it.
inline void Choose(frmMain& window, const char* name) {
    auto* action = window.findChild<QAction*>(name);
    ASSERT_TRUE(action) << name;
    ASSERT_TRUE(action->isEnabled()) << name;
    action->trigger();
}

}  // namespace quenloft
