// How fast the engine is, each figure beside a floor measured in the same run: the same work coded
// by hand over vectors in memory. `items_per_second` of a benchmark over that of its floor is the
// ratio.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "engine/engine.h"
#include "engine/expression.h"
#include "engine/text_helpers.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/stack_left.h"
#include "platform/linux/system_random_source.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

class SilentHost : public EngineHost {
  public:
    bool Yield() override { return false; }
    void ShowMessage(const std::string&) override {}
    std::string AskForText(const std::string&) override { return {}; }
    std::size_t StackBytesLeft() override { return quenloft::StackBytesLeft(); }
};

struct Parts {
    TempFolder folder;
    LinuxFileSystem files;
    SystemRandomSource random;
    SilentHost host;
    Engine engine{files, random, host};
    VariableStore variables;
};

// --- Nested generation -------------------------------------------------------------------------
//
// Twelve tables of 60 to 500 entries. An entry of the first refers to 5 of the next three, an entry
// of those to 5 of the last eight: 31 rolls and about 280 characters a result.

constexpr int kTables = 12;
constexpr int kReferences = 5;

/// An entry: text, a reference, text, a reference, ..., text.
struct Entry {
    int weight = 1;
    std::vector<std::string> texts;
    std::vector<int> tables;
};

std::string TableName(int table) {
    return "names" + std::string(1, static_cast<char>('a' + table));
}

std::vector<std::vector<Entry>> MakeContent() {
    std::vector<std::vector<Entry>> content(kTables);
    for (int t = 0; t < kTables; ++t) {
        const int size = 60 + 40 * t;
        for (int e = 0; e < size; ++e) {
            Entry entry;
            entry.weight = 1 + e % 7;
            if (t >= 4) {
                entry.texts = {"entry " + std::to_string(e * 37 % 1000)};
            } else {
                for (int r = 0; r < kReferences; ++r) {
                    entry.texts.push_back(r == 0 ? "" : ", ");
                    entry.tables.push_back(t == 0 ? 1 + (e + r) % 3 : 4 + (e + r + t) % 8);
                }
                entry.texts.push_back(".");
            }
            content[static_cast<std::size_t>(t)].push_back(std::move(entry));
        }
    }
    return content;
}

void WriteTable(const TempFolder& folder, const std::string& name,
                const std::vector<Entry>& entries) {
    std::string body;
    int bound = 0;
    for (const Entry& entry : entries) {
        bound += entry.weight;
        body += std::to_string(bound) + "\xA7";
        for (std::size_t i = 0; i < entry.texts.size(); ++i) {
            body += entry.texts[i];
            if (i < entry.tables.size()) {
                body += "#" + TableName(entry.tables[i]) + "#";
            }
        }
        body += "\r\n";
    }
    folder.Write(name + ".tbl", "Title\xA4" + std::to_string(bound) + "\r\n\r\n" + body);
}

void NestedGeneration(benchmark::State& state) {
    Parts parts;
    const auto content = MakeContent();
    for (int t = 0; t < kTables; ++t) {
        WriteTable(parts.folder, TableName(t), content[static_cast<std::size_t>(t)]);
    }
    const std::string path = parts.folder.LibraryPath(TableName(0) + ".tbl");
    std::size_t characters = 0;
    for (auto _ : state) {
        parts.engine.ResetGeneration();
        characters += parts.engine.RollTable(path).size();
    }
    state.SetItemsProcessed(state.iterations());
    state.counters["characters"] =
        static_cast<double>(characters) / static_cast<double>(state.iterations());
}
BENCHMARK(NestedGeneration);

class HandCoded {
  public:
    explicit HandCoded(std::vector<std::vector<Entry>> content) : content_(std::move(content)) {
        for (const auto& entries : content_) {
            int bound = 0;
            bounds_.emplace_back();
            for (const Entry& entry : entries) {
                bounds_.back().push_back(bound += entry.weight);
            }
        }
    }
    void Roll(int table, std::string& text) {
        const auto& bounds = bounds_[static_cast<std::size_t>(table)];
        const int roll = static_cast<int>(random_.Next() * bounds.back()) + 1;
        const auto place = std::lower_bound(bounds.begin(), bounds.end(), roll) - bounds.begin();
        const Entry& entry =
            content_[static_cast<std::size_t>(table)][static_cast<std::size_t>(place)];
        for (std::size_t i = 0; i < entry.texts.size(); ++i) {
            text += entry.texts[i];
            if (i < entry.tables.size()) {
                Roll(entry.tables[i], text);
            }
        }
    }

  private:
    std::vector<std::vector<Entry>> content_;
    std::vector<std::vector<int>> bounds_;
    SystemRandomSource random_;
};

void NestedGenerationFloor(benchmark::State& state) {
    HandCoded generator(MakeContent());
    for (auto _ : state) {
        std::string text;
        generator.Roll(0, text);
        benchmark::DoNotOptimize(text);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(NestedGenerationFloor);

// --- Long tables ---------------------------------------------------------------------------------

void LongTable(benchmark::State& state) {
    Parts parts;
    std::vector<Entry> entries(static_cast<std::size_t>(state.range(0)));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i].texts = {"entry " + std::to_string(i)};
    }
    WriteTable(parts.folder, "long", entries);
    const std::string path = parts.folder.LibraryPath("long.tbl");
    parts.engine.RollTable(path);
    for (auto _ : state) {
        benchmark::DoNotOptimize(parts.engine.RollTable(path));
    }
}
BENCHMARK(LongTable)->Arg(100)->Arg(1000000);

// --- Scripts: a loop of IF, a counter and GOTO: in a script of 1,000 lines
// -------------------------

void ScriptLoop(benchmark::State& state) {
    Parts parts;
    constexpr int kRounds = 20000;
    constexpr int kLinesOfARound = 4;
    std::string script;
    for (int i = 0; i < 990; ++i) {
        script += ";line " + std::to_string(i) + "\r\n";
    }
    const std::string mark(2, '?');  // Written out, "??<" would be a trigraph.
    script += "LABEL:again\r\n" + mark + "n=INC1" + mark + "\r\n";
    script += "IF " + mark + "n" + mark + "<" + std::to_string(kRounds) + "\r\n";
    script += "GOTO:again\r\nEND IF\r\nLABEL:end\r\n";
    parts.folder.Write("loop.spt", script);
    const std::string path = parts.folder.LibraryPath("loop.spt");
    for (auto _ : state) {
        parts.engine.ResetGeneration();
        benchmark::DoNotOptimize(parts.engine.RunScript(path, true));
    }
    state.SetItemsProcessed(state.iterations() * kRounds * kLinesOfARound);
}
BENCHMARK(ScriptLoop)->Unit(benchmark::kMillisecond);

// --- Expressions
// -----------------------------------------------------------------------------------

void EvaluateText(benchmark::State& state, const std::string& text) {
    Parts parts;
    parts.variables.SetVariable("x", Value::OfNumber(4), VariableStore::Operation::Set);
    for (auto _ : state) {
        benchmark::DoNotOptimize(EvaluateExpr(text, parts.variables, parts.host));
    }
    state.SetItemsProcessed(state.iterations());
}

std::string Sum(int operators) {
    std::string text = "1";
    for (int i = 0; i < operators; ++i) {
        text += "+1";
    }
    return text;
}

void EverydaySum(benchmark::State& state) { EvaluateText(state, "(3+x)*2"); }
BENCHMARK(EverydaySum);
void EverydayFunction(benchmark::State& state) { EvaluateText(state, "SIN(30)*2"); }
BENCHMARK(EverydayFunction);
void TwentyThousandOperators(benchmark::State& state) { EvaluateText(state, Sum(20000)); }
BENCHMARK(TwentyThousandOperators)->Unit(benchmark::kMillisecond);
void TwentyThousandParentheses(benchmark::State& state) {
    EvaluateText(state, std::string(20000, '(') + "1" + std::string(20000, ')'));
}
BENCHMARK(TwentyThousandParentheses)->Unit(benchmark::kMillisecond);

// --- Library: the titles of 10,000 tables in 500 folders
// ------------------------------------------

constexpr int kFolders = 500;
constexpr int kTablesInFolder = 20;

void WriteLibrary(const TempFolder& folder) {
    for (int f = 0; f < kFolders; ++f) {
        for (int t = 0; t < kTablesInFolder; ++t) {
            folder.Write("folder" + std::to_string(f) + "/table" + std::to_string(t) + ".tbl",
                         "Title\xA4"
                         "2\r\n\r\n1\xA7one\r\n2\xA7two\r\n");
        }
    }
}

void LibraryTitles(benchmark::State& state) {
    Parts parts;
    WriteLibrary(parts.folder);
    const std::string root = parts.folder.LibraryPath("");
    for (auto _ : state) {
        parts.files.LookAgain();
        for (const FolderEntry& folder : parts.files.ListFolder(root)) {
            const std::string path = root + "\\" + folder.name;
            for (const FolderEntry& file : parts.files.ListFolder(path)) {
                benchmark::DoNotOptimize(parts.engine.ReadTableTitle(path + "\\" + file.name));
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * kFolders * kTablesInFolder);
}
BENCHMARK(LibraryTitles)->Unit(benchmark::kMillisecond);

void LibraryTitlesFloor(benchmark::State& state) {
    TempFolder library;
    WriteLibrary(library);
    for (auto _ : state) {
        for (const auto& folder : std::filesystem::directory_iterator(library.Path())) {
            for (const auto& file : std::filesystem::directory_iterator(folder.path())) {
                std::ifstream in(file.path());
                std::string line;
                std::getline(in, line);
                benchmark::DoNotOptimize(line);
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * kFolders * kTablesInFolder);
}
BENCHMARK(LibraryTitlesFloor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quenloft
