// The table editor with tables of 100,000 rows: opening one beside reading and splitting its file,
// saving one beside writing its bytes safely, and a key typed into a weight.
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <benchmark/benchmark.h>

#include "editors/table/table_grid.h"
#include "editors/table/table_window.h"
#include "platform/text_encoding.h"
#include "shell/form_names.h"
#include "shell/main_window.h"
#include "tests/support/temp_program.h"

namespace quenloft {
namespace {

constexpr int kRows = 100000;

std::string TableBytes() {
    std::string bytes = "Title\xA4" + std::to_string(3 * kRows) + "\r\n\r\n";
    for (int i = 1; i <= kRows; ++i) {
        bytes += std::to_string(3 * i) + "\xA7" + "Entry " + std::to_string(i) +
                 " with the text that an entry has\r\n";
    }
    return bytes;
}

/// The editor in a main window, as the program shows it.
class Editor {
  public:
    Editor() {
        path = program.folder.Write("big.tbl", TableBytes());
        window.resize(1280, 800);
        window.show();
        editor = window.Open(form::kEditTable);
        QCoreApplication::processEvents();
    }
    void LoadAndPaint() {
        editor->Load(path);
        window.repaint();
    }

    TempProgram program;
    std::string path;
    frmMain window{program.Services(),
                   {{form::kEditTable, Instances::Many,
                     [](Workspace& workspace) { return new frmEdit_Table(workspace); }}}};
    ChildWindow* editor = nullptr;
};

void ReadAndSplit(benchmark::State& state) {
    const TempFolder folder;
    const std::string path = folder.Write("big.tbl", TableBytes());
    LinuxFileSystem files;
    for (auto _ : state) {
        const std::string bytes = files.ReadBytes(path);
        std::vector<std::string> lines;
        for (std::size_t begin = 0; begin < bytes.size();) {
            const std::size_t end = bytes.find("\r\n", begin);
            lines.push_back(DecodeText(std::string_view(bytes).substr(begin, end - begin)));
            begin = end + 2;
        }
        benchmark::DoNotOptimize(lines.data());
    }
}
BENCHMARK(ReadAndSplit)->Unit(benchmark::kMillisecond)->UseRealTime();

void OpenAndPaint(benchmark::State& state) {
    Editor editor;
    for (auto _ : state) {
        editor.LoadAndPaint();
    }
}
BENCHMARK(OpenAndPaint)->Unit(benchmark::kMillisecond)->UseRealTime();

void WriteSafely(benchmark::State& state) {
    const TempFolder folder;
    const std::string bytes = TableBytes();
    LinuxFileSystem files;
    for (auto _ : state) {
        files.WriteBytes(folder.Path("big.tbl"), bytes);
    }
}
BENCHMARK(WriteSafely)->Unit(benchmark::kMillisecond)->UseRealTime();

void Save(benchmark::State& state) {
    Editor editor;
    editor.LoadAndPaint();
    auto* save = editor.editor->findChild<QPushButton*>("btnSave");
    for (auto _ : state) {
        save->click();
    }
}
BENCHMARK(Save)->Unit(benchmark::kMillisecond)->UseRealTime();

/// A key in the weight of the first row, until all shares on the screen are new. No more than 16 ms
/// keep up with the screen.
void TypeWeight(benchmark::State& state) {
    Editor editor;
    editor.LoadAndPaint();
    editor.editor->findChild<TableGrid*>("grdTable")->InsertRow();
    auto* box = editor.editor->findChild<QLineEdit*>("tbFgEdit");
    for (auto _ : state) {
        QTest::keyClick(box, '1');
        editor.window.repaint();
        state.PauseTiming();
        box->clear();
        state.ResumeTiming();
    }
}
BENCHMARK(TypeWeight)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace quenloft
