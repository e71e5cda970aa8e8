// How long the reference browser takes to list a folder of tables with their titles. The floor
// lists the same folder and reads the first bytes of each file with nothing but the system's calls.
//
// Argument: tables in the folder.
#include <benchmark/benchmark.h>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include "editors/reference/reference_list.h"
#include "editors/reference/reference_place.h"
#include "engine/engine.h"
#include "engine/host.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/system_random_source.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

// Nothing is rolled here.
class SilentHost : public EngineHost {
  public:
    bool Yield() override { return false; }
    void ShowMessage(const std::string& /*text*/) override {}
    std::string AskForText(const std::string& /*prompt*/) override { return {}; }
    std::size_t StackBytesLeft() override { return 0; }
};

struct TablesFolder {
    explicit TablesFolder(std::int64_t tables) {
        for (std::int64_t i = 0; i < tables; ++i) {
            folder.Write("Table " + std::to_string(i) + ".tbl",
                         "Things found on road " + std::to_string(i) +
                             "\xA4"
                             "2\r\n\r\n1\xA7one\r\n2\xA7two\r\n");
        }
    }
    TempFolder folder;
};

struct Program {
    LinuxFileSystem files;
    SystemRandomSource random;
    SilentHost host;
    Engine engine{files, random, host};
    ReferenceList list{engine};
};

void ReadAllTitles(ReferenceList& list) {
    while (list.ReadOne()) {
    }
    list.Arrange();
}

void Floor(benchmark::State& state) {
    const TablesFolder tables(state.range(0));
    for (auto _ : state) {
        std::vector<std::string> heads;
        const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(tables.folder.Path().c_str()),
                                                         closedir);
        while (const dirent* item = readdir(folder.get())) {
            const int file = open(tables.folder.Path(item->d_name).c_str(), O_RDONLY | O_CLOEXEC);
            char head[4096];
            const ssize_t count = read(file, head, sizeof head);
            heads.emplace_back(head, count > 0 ? static_cast<std::size_t>(count) : 0);
            close(file);
        }
        benchmark::DoNotOptimize(heads);
    }
}
BENCHMARK(Floor)->Arg(5000)->Arg(100000)->Unit(benchmark::kMillisecond);

void ListFirstTime(benchmark::State& state) {
    const TablesFolder tables(state.range(0));
    for (auto _ : state) {
        Program program;
        program.list.Fill(ReferencePlace(tables.folder.LibraryPath()), false);
        ReadAllTitles(program.list);
    }
}
BENCHMARK(ListFirstTime)->Arg(5000)->Arg(100000)->Unit(benchmark::kMillisecond);

// What stands between a click and the list; titles follow between events.
void ListAgain(benchmark::State& state) {
    const TablesFolder tables(state.range(0));
    Program program;
    const ReferencePlace place(tables.folder.LibraryPath());
    program.list.Fill(place, false);
    ReadAllTitles(program.list);
    for (auto _ : state) {
        program.list.Fill(place, false);
    }
}
BENCHMARK(ListAgain)->Arg(5000)->Arg(100000)->Unit(benchmark::kMillisecond);

void TypeInFilter(benchmark::State& state) {
    const TablesFolder tables(state.range(0));
    Program program;
    program.list.Fill(ReferencePlace(tables.folder.LibraryPath()), false);
    ReadAllTitles(program.list);
    for (auto _ : state) {
        program.list.SetFilter("road 77");
    }
}
BENCHMARK(TypeInFilter)->Arg(5000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quenloft
