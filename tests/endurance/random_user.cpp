#include "tests/endurance/random_user.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QTest>
#include <QUrl>
#include <filesystem>
#include <fstream>

#include "tests/support/windows_fixture.h"

namespace quenloft {

RandomUser::RandomUser(unsigned seed, std::string folder)
    : random_(seed), folder_(std::move(folder)) {
    constexpr int kMilliseconds = 3;
    QObject::connect(&attendant_, &QTimer::timeout, [this] { Attend(); });
    attendant_.start(kMilliseconds);
}

void RandomUser::Act(frmMain& window) {
    // How often each is done, out of a hundred.
    const std::pair<int, std::function<void()>> deeds[] = {
        {15, [&] { ChooseFromMenu(window); }},
        {40, [&] { Click(AnyControl(window)); }},
        {20, [&] { Type(AnyControl(window)); }},
        {19, [&] { PressKey(AnyControl(window)); }},
        {2, [&] { CloseAWindow(window); }},
        {1, [&] { DropAFile(window, AnyControl(window)); }},
        {3, [&] { ChangeAFile(); }},
    };
    // Nobody keeps more open, and each one more makes all actions slower.
    constexpr int kMostWindows = 25;
    if (window.findChild<QMdiArea*>()->subWindowList().size() > kMostWindows) {
        CloseAWindow(window);
    }
    int left = Pick(100);
    for (const auto& [share, act] : deeds) {
        if (left >= 0 && left < share) {
            act();
        }
        left -= share;
    }
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::string RandomUser::Diary() const {
    std::string text;
    for (const auto& [what, times] : diary_) {
        text += std::to_string(times) + " " + what + "\n";
    }
    return text;
}

void RandomUser::ShowMessage(const std::string&, MessageIcon) { Note("message"); }

Answer RandomUser::AskYesNo(const std::string&) {
    Note("question");
    return OneIn(2) ? Answer::Yes : Answer::No;
}

Answer RandomUser::AskYesNoCancel(const std::string&) {
    Note("question to save");
    const Answer answers[] = {Answer::Yes, Answer::No, Answer::Cancel};
    return answers[Pick(3)];
}

std::optional<std::string> RandomUser::AskText(const std::string&, const std::string&,
                                               const std::string&) {
    return OneIn(3) ? std::nullopt : std::optional(AnyText());
}

std::optional<std::string> RandomUser::ChooseFileToOpen(const std::string&, const std::string&) {
    Note("file to open");
    return OneIn(4) ? std::nullopt : std::optional(AnyFile());
}

std::optional<std::string> RandomUser::ChooseFileToSave(const std::string&, const std::string&,
                                                        int) {
    Note("file to save");
    const char* names[] = {"new.tbl", "new.spt", "new.rtf", "new.txt", "missing/new.tbl", ""};
    if (OneIn(4)) {
        return std::nullopt;
    }
    return OneIn(3) ? AnyFile() : folder_ + "/" + names[Pick(6)];
}

std::optional<std::string> RandomUser::ChooseFolder(const std::string&, const std::string&) {
    return OneIn(2) ? std::nullopt : std::optional(folder_);
}

std::optional<FontChoice> RandomUser::ChooseFont(const FontChoice& initial) {
    return OneIn(2) ? std::nullopt : std::optional(initial);
}

int RandomUser::Pick(int count) {
    return static_cast<int>(random_() % static_cast<unsigned>(std::max(count, 1)));
}

std::string RandomUser::AnyFile() {
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_)) {
        paths.push_back(entry.path().string());
    }
    std::sort(paths.begin(), paths.end());
    return paths.empty() ? folder_ + "/none.tbl"
                         : paths[static_cast<std::size_t>(Pick(static_cast<int>(paths.size())))];
}

std::string RandomUser::AnyText() {
    const char* texts[] = {"1",   "3",     "0",   "-2", "12",   "2.5",      "abc",
                           "#b#", "@2d6@", ";",   "??", "|",    "\xC2\xA7", "\xC2\xA4",
                           " ",   "#",     "x=3", "IF", "END:", "^"};
    return texts[Pick(static_cast<int>(std::size(texts)))];
}

QWidget* RandomUser::AnyControl(frmMain& window) {
    const auto* area = window.findChild<QMdiArea*>();
    QMdiSubWindow* frame = area->currentSubWindow();
    if (!frame) {
        return nullptr;
    }
    Note("action in " + frame->widget()->objectName().toStdString());
    QList<QWidget*> controls;
    for (QWidget* widget : frame->findChildren<QWidget*>()) {
        constexpr int kVisible = 8;  // Pixels; less can hardly be hit.
        if (widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus &&
            std::min(widget->width(), widget->height()) >= kVisible) {
            controls << widget;
        }
    }
    return controls.isEmpty() ? nullptr : controls[Pick(static_cast<int>(controls.size()))];
}

void RandomUser::ChooseFromMenu(frmMain& window) {
    QList<QAction*> actions;
    for (QAction* action : window.menuBar()->findChildren<QAction*>()) {
        const bool ends = action->objectName() == QLatin1String("mnuFile_Exit");
        const bool isCommand = !action->menu() && !action->isSeparator();
        if (isCommand && action->isEnabled() && !ends) {
            actions << action;
        }
    }
    QAction* action = actions[Pick(static_cast<int>(actions.size()))];
    Note("menu " + action->objectName().toStdString());
    action->trigger();
}

void RandomUser::Click(QWidget* control) {
    if (!control) {
        return;
    }
    const QPoint place(Pick(control->width()), Pick(control->height()));
    const auto button = OneIn(6) ? Qt::RightButton : Qt::LeftButton;
    QWidget* target = control;
    if (auto* view = qobject_cast<QAbstractScrollArea*>(control)) {
        target = view->viewport();
    }
    const QPointer<QWidget> stillThere = target;
    QTest::mouseClick(target, button, OneIn(9) ? Qt::ShiftModifier : Qt::NoModifier, place);
    if (stillThere && OneIn(5)) {
        QTest::mouseDClick(target, Qt::LeftButton, {}, place);
    }
}

void RandomUser::Type(QWidget* control) {
    if (!control) {
        return;
    }
    control->setFocus();
    for (const QChar letter : QString::fromStdString(AnyText())) {
        if (QWidget* focus = QApplication::focusWidget()) {
            QTest::sendKeyEvent(QTest::Click, focus, Qt::Key_unknown, letter, Qt::NoModifier);
        }
    }
}

void RandomUser::PressKey(QWidget* control) {
    const char* keys[] = {"Return",     "Tab",      "Esc",       "F5",       "F2",     "Ins",
                          "Del",        "Ctrl+Del", "Alt+Up",    "Alt+Down", "Up",     "Down",
                          "Shift+Down", "PgDown",   "Ctrl+Home", "Ctrl+End", "Ctrl+A", "Ctrl+C",
                          "Ctrl+X",     "Ctrl+V",   "Ctrl+Z",    "Ctrl+S",   "Ctrl+F", "Ctrl+H",
                          "Ctrl+B",     "F3",       "Backspace", "Ctrl+W"};
    if (control) {
        control->setFocus();
        const QKeySequence key(QLatin1String(keys[Pick(static_cast<int>(std::size(keys)))]));
        if (QWidget* focus = QApplication::focusWidget()) {
            QTest::keySequence(focus, key);
        }
    }
}

void RandomUser::CloseAWindow(frmMain& window) {
    const auto frames = window.findChild<QMdiArea*>()->subWindowList();
    if (frames.isEmpty()) {
        return;
    }
    QMdiSubWindow* frame = frames[Pick(static_cast<int>(frames.size()))];
    if (OneIn(3)) {
        frame->showMaximized();
    } else {
        frame->close();
    }
}

void RandomUser::ChangeAFile() {
    const std::string path = AnyFile();
    std::error_code ignored;
    if (OneIn(8)) {
        std::filesystem::remove(path, ignored);
    } else if (std::filesystem::is_regular_file(path, ignored)) {
        std::ofstream(path, std::ios::app) << AnyText() << "\r\n";
    }
}

void RandomUser::DropAFile(frmMain& window, QWidget* control) {
    QWidget* target = control && OneIn(2) ? control : &window;
    Note(target == &window ? "drop on the main window" : "drop on a control");
    Drop(*target, {QUrl::fromLocalFile(QString::fromStdString(AnyFile()))});
}

void RandomUser::Attend() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        QTest::keyClick(popup, OneIn(3) ? Qt::Key_Down : Qt::Key_Escape);
        return;
    }
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        if (OneIn(3)) {
            Note("dialog " + dialog->objectName().toStdString());
            OneIn(2) ? dialog->accept() : dialog->reject();
        } else if (QWidget* focus = dialog->focusWidget()) {
            QTest::keyClick(focus, OneIn(2) ? Qt::Key_Return : Qt::Key_Down);
        }
        return;
    }
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<frmMain*>(widget);
        // A run that is going on: leave it alone, close its window, or end it.
        if (window && window->IsRunning() && OneIn(4)) {
            Note("run interrupted");
            OneIn(3) ? CloseAWindow(*window) : window->AbortRun();
        }
    }
}

}  // namespace quenloft
