// Makes every part of the program once and hands it down.
#include <QApplication>
#include <QFile>
#include <QPalette>
#include <QStandardPaths>
#include <clocale>
#include <csignal>
#include <filesystem>
#include <iostream>

#include "engine/engine.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_profile_file.h"
#include "platform/linux/path_translation.h"
#include "platform/linux/program_folders.h"
#include "platform/linux/system_random_source.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_printer.h"
#include "shell/main_window.h"
#include "shell/profile_failure.h"
#include "shell/program_icon.h"
#include "shell/qt_engine_host.h"
#include "shell/recovery/offer_recovery.h"
#include "shell/recovery/recovery.h"
#include "shell/sample_library.h"
#include "shell/window_kinds.h"

namespace {

std::string ConfigurationFolder() {
    const QString home = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QFile::encodeName(home + QStringLiteral("/quenloft")).toStdString();
}

/// The library path of a file that was handed over, whatever the bytes of its name.
std::string DocumentPath(const char* argument) {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(argument, error);
    return error ? std::string(argument) : quenloft::ShownLibraryPath(path.string());
}

/// Past a limit on file sizes, and where nobody reads what a toolkit has to say, the system would
/// end the program with all that is unsaved. The calls that wrote tell of it instead.
void OutliveFailedWrites() {
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

/// Dark themes that bring no colour for the hints in empty boxes leave them black.
void MakeHintsReadable() {
    constexpr int kHalf = 128;  // What the toolkit makes of a text's colour for hints.
    QColor hint = QApplication::palette().color(QPalette::Text);
    const bool isTextLight = hint.lightness() > kHalf;
    if (isTextLight !=
        (QApplication::palette().color(QPalette::PlaceholderText).lightness() > kHalf)) {
        hint.setAlpha(kHalf);
        QPalette mended;
        mended.setColor(QPalette::PlaceholderText, hint);
        QApplication::setPalette(mended);
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    using namespace quenloft;
    OutliveFailedWrites();
    QApplication application(argc, argv);  // Takes its own arguments away.
    if (argc > 2) {
        std::cerr << "usage: quenloft [FILE]\n";
        return 2;
    }
    // The toolkit takes the user's locale for numbers too; tables know only the full stop.
    std::setlocale(LC_NUMERIC, "C");
    MakeHintsReadable();
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setDesktopFileName(QStringLiteral("quenloft"));

    // Before start-up makes the library the current folder.
    const std::string document = argc > 1 ? DocumentPath(argv[1]) : std::string();
    const std::string executable =
        QFile::encodeName(QApplication::applicationFilePath()).toStdString();

    LinuxFileSystem files;
    QtDialogs dialogs;
    ProfileFailure profileFailure(dialogs);
    LinuxProfileFile profile(
        files, executable, ConfigurationFolder(),
        [&profileFailure](const std::string& sentence) { profileFailure.Tell(sentence); });
    SystemRandomSource random;
    QtClipboard clipboard;
    QtPrinter printer;
    QtDesktop desktop;
    QtEngineHost host(dialogs);
    Engine engine(files, random, host);
    host.CloseBoxesWhen([&engine] { return engine.IsAborted(); });

    const ServiceSet services{engine, host, files, profile, dialogs, clipboard, printer, desktop};

    Recovery recovery(StateFolder(), dialogs);
    frmMain mainWindow(services, MakeWindowKinds(random, &recovery));
    OfferSampleLibrary(services, SharedFolder(executable));
    mainWindow.StartUp();
    OfferRecovery(mainWindow, recovery);
    if (!document.empty()) {
        mainWindow.OpenDocument(document);
    }
    return QApplication::exec();
}
