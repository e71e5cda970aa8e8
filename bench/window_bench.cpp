// How long the program takes from its start until its main window is painted, with the library
// explorer in it; an empty Qt main window is the floor. The size of the library must not show.
//
// Each measurement is a process of its own: this program starts itself, and ends when it has
// painted.
#include <QApplication>
#include <QMainWindow>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <spawn.h>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

#include "shell/main_window.h"
#include "shell/window_kinds.h"
#include "tests/support/temp_program.h"

namespace quenloft {
namespace {

constexpr std::string_view kEmptyWindow = "--empty-window";
constexpr std::string_view kProgram = "--program";

/// Ends the process at the first paint of a main window.
class EndAtFirstPaint : public QObject {
  public:
    EndAtFirstPaint() { qApp->installEventFilter(this); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->inherits("QMainWindow")) {
            _exit(0);
        }
        return false;
    }
};

int PaintEmptyWindow() {
    const EndAtFirstPaint end;
    QMainWindow window;
    window.showMaximized();
    return QApplication::exec();
}

/// The program over the profile in `folder`.
int PaintProgram(const std::string& folder) {
    FakeDialogs dialogs;
    ProgramParts program(folder, dialogs);
    const EndAtFirstPaint end;
    frmMain window(program.Services(), MakeWindowKinds(program.random));
    window.StartUp();
    return QApplication::exec();
}

void StartAndWait(benchmark::State& state, std::string argument, std::string folder) {
    std::string program = "/proc/self/exe";
    char* arguments[] = {program.data(), argument.data(), folder.data(), nullptr};
    for (auto _ : state) {
        pid_t child = 0;
        int status = 1;
        if (posix_spawn(&child, program.c_str(), nullptr, nullptr, arguments, environ) != 0 ||
            waitpid(child, &status, 0) != child || status != 0) {
            state.SkipWithError("The measured process failed.");
        }
    }
}

void EmptyMainWindow(benchmark::State& state) {
    StartAndWait(state, std::string(kEmptyWindow), "");
}
BENCHMARK(EmptyMainWindow)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(2);

/// Argument: tables in the library, twenty to a folder.
void MainWindow(benchmark::State& state) {
    const TempFolder folder;
    constexpr int kTablesInFolder = 20;
    for (int i = 0; i < state.range(0); ++i) {
        folder.Write("library/folder" + std::to_string(i / kTablesInFolder) + "/table" +
                         std::to_string(i) + ".tbl",
                     "Title\xA4"
                     "1\r\n\r\n1\xA7one\r\n");
    }
    folder.Write("quenloft.INI", "[Settings]\r\nLibpath=" + folder.Path("library") + "\r\n");
    StartAndWait(state, std::string(kProgram), folder.Path());
}
BENCHMARK(MainWindow)
    ->Arg(20)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MinTime(2);

}  // namespace
}  // namespace quenloft

int main(int argc, char** argv) {
    using namespace quenloft;
    if (argc == 3 && (argv[1] == kEmptyWindow || argv[1] == kProgram)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        const QApplication application(argc, argv);
        return argv[1] == kEmptyWindow ? PaintEmptyWindow() : PaintProgram(argv[2]);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
