#include "engine/table_file.h"

#include <gtest/gtest.h>
#include <random>

#include "engine/failure.h"
#include "platform/linux/linux_file_system.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

/// A table of random lines: entries with bounds that mostly rise, continuations, comments, blanks.
std::string RandomTable(std::mt19937& generator) {
    const auto draw = [&](int n) {
        return static_cast<int>(generator() % static_cast<unsigned>(n));
    };
    std::string table = draw(4) == 0 ? ";c\nT¤" : "T¤";
    table += std::to_string(draw(25)) + "\n";
    const bool rises = draw(3) != 0;
    int bound = draw(3) - 1;
    for (int line = draw(12); line > 0; --line) {
        switch (draw(7)) {
            case 0:
                table += draw(2) == 0 ? ";c\n" : ";c §\n";
                break;
            case 1:
                table += "\n";
                break;
            case 2:
                table += "more\n";
                break;
            default:
                bound = rises ? bound + draw(5) : draw(25) - 2;
                table += std::to_string(bound) + "§e" + std::to_string(line) + "\n";
        }
    }
    return table;
}

std::string ResultOf(std::string (*read)(FileHandle&, std::int32_t, std::int32_t),
                     const std::shared_ptr<const TextFile>& file, std::int32_t roll) {
    OpenFileCache cache;
    OpenedFile opened(cache, "t", *file);
    TableHeader header;
    ReadHeader(opened.Handle(), header);
    std::string text = read(opened.Handle(), roll, header.total);
    return text + " @" + std::to_string(opened.Handle().Position());
}

TEST(TableFile, BisectionAndPlainScanGiveTheSameEntries) {
    TempFolder folder;
    LinuxFileSystem files;
    std::mt19937 generator(20261121);
    for (int i = 0; i < 400; ++i) {
        const std::string table = RandomTable(generator);
        folder.Write("t.tbl", table);
        files.LookAgain();
        const auto file = files.OpenText(folder.LibraryPath("t.tbl"));
        for (std::int32_t roll = -3; roll < 28; ++roll) {
            ASSERT_EQ(ResultOf(ReadEntry, file, roll), ResultOf(ReadEntryByScan, file, roll))
                << "roll " << roll << " in\n"
                << table;
        }
    }
}

}  // namespace
}  // namespace quenloft
