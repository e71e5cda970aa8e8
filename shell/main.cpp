// Makes every part of the program once and hands it down.
#include <QApplication>
#include <QFile>
#include <QStandardPaths>
#include <clocale>

#include "engine/engine.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_profile_file.h"
#include "platform/linux/system_random_source.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_printer.h"
#include "shell/main_window.h"
#include "shell/program_icon.h"
#include "shell/qt_engine_host.h"
#include "shell/window_kinds.h"

namespace {

std::string ConfigurationFolder() {
    const QString home = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QFile::encodeName(home + QStringLiteral("/quenloft")).toStdString();
}

}  // namespace

int main(int argc, char* argv[]) {
    using namespace quenloft;
    QApplication application(argc, argv);
    // The toolkit takes the user's locale for numbers too; tables know only the full stop.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setDesktopFileName(QStringLiteral("quenloft"));

    LinuxFileSystem files;
    LinuxProfileFile profile(files,
                             QFile::encodeName(QApplication::applicationFilePath()).toStdString(),
                             ConfigurationFolder());
    SystemRandomSource random;
    QtDialogs dialogs;
    QtClipboard clipboard;
    QtPrinter printer;
    QtDesktop desktop;
    QtEngineHost host(dialogs);
    Engine engine(files, random, host);

    frmMain mainWindow({engine, host, files, profile, dialogs, clipboard, printer, desktop},
                       MakeWindowKinds(random));
    mainWindow.StartUp();
    return QApplication::exec();
}
