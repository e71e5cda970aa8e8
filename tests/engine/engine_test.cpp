// Runs that would never end, runs that are aborted, files that change or are broken.
#include "engine/engine.h"

#include "tests/support/engine_fixture.h"

namespace quenloft {
namespace {

using EngineRuns = EngineFixture;

TEST_F(EngineRuns, EndlessRecursionEndsWithTheNamesOfTheRing) {
    WriteTable("self.tbl", "x #self#");
    EXPECT_EQ(Roll("self.tbl").substr(0, 72),
              "The run was stopped: its files refer to each other in a ring (self.tbl >");
    WriteTable("a.tbl", "#b#");
    WriteTable("b.tbl", "#c.spt#");
    folder.Write("c.spt", "#a.tbl#\n");
    const std::string ring = Roll("a.tbl");
    EXPECT_TRUE(ring.find("(a.tbl > b.tbl > c.spt > a.tbl, ") != std::string::npos ||
                ring.find("(b.tbl > c.spt > a.tbl > b.tbl, ") != std::string::npos ||
                ring.find("(c.spt > a.tbl > b.tbl > c.spt, ") != std::string::npos)
        << ring;
    WriteTable("a.tbl", "mended");
    EXPECT_EQ(Roll("a.tbl"), "mended");
}

#ifdef __SANITIZE_ADDRESS__
constexpr int kNestedTables = 400;  // The sanitizer's frames are several times as large.
#else
constexpr int kNestedTables = 1000;
#endif

TEST_F(EngineRuns, ManyNestedTablesAreNoRecursion) {
    for (int i = 0; i < kNestedTables; ++i) {
        WriteTable("t" + std::to_string(i) + ".tbl", "x#t" + std::to_string(i + 1) + "#");
    }
    WriteTable("t" + std::to_string(kNestedTables) + ".tbl", "end");
    EXPECT_EQ(Roll("t0.tbl"), std::string(kNestedTables, 'x') + "end");
}

TEST_F(EngineRuns, TextThatFeedsItselfEndsAtSixteenMebibytes) {
    const std::string stopped = "The run was stopped: its text grew past 16 MiB.";
    WriteTable("x.tbl", "0123456789012345678901234567890123456789");
    WriteTable("many.tbl", "??DUPLICATESACCEPTED=1??#x^1000000000#");
    EXPECT_EQ(Roll("many.tbl"), stopped);
    folder.Write("jump.spt",
                 "LABEL:a\nsome output that is long enough to come to the end soon\nGOTO:a\n");
    EXPECT_EQ(Run("jump.spt"), stopped);
    WriteTable("log.tbl", std::string(17U << 20U, 'x'));
    EXPECT_EQ(Roll("log.tbl"), stopped);
    folder.Write("grow.spt", "??v=INCabcdefghijklmnop??\nLABEL:a\n??v=v+v??\nGOTO:a\n");
    EXPECT_EQ(Run("grow.spt"), stopped);
    // A diagnostic is text like any other: the marks in it are expanded by the level above.
    WriteTable("feed.tbl", "#bad#");
    WriteTable("bad.tbl", "price @ 5 #bad#");
    EXPECT_EQ(Roll("feed.tbl"), stopped);
}

TEST_F(EngineRuns, AbortEndsEveryKindOfLoop) {
    WriteTable("x.tbl", "x");
    WriteTable("repeat.tbl", "??DUPLICATESACCEPTED=1??#x^_100000000#");
    WriteTable("never.tbl", "??DUPLICATESACCEPTED=0??#x^2# after");
    WriteTable("dice.tbl", "@400000000d1@ gold @400000000d1@ more");
    folder.Write("silent.spt", "LABEL:a\nGOTO:a\n");
    folder.Write("asking.spt", "IF ??x=#empty.tbl#??1??y??\nEND IF\n");
    folder.Write("nested.spt", "before\n#silent.spt# and\nnever\n");
    WriteTable("nothing.tbl", "");
    WriteTable("empty.tbl", "#nothing^_1000000000#");
    WriteTable("loud.tbl", "#EMPTY# and #EMPTY#");
    const std::pair<const char*, const char*> cases[] = {
        {"never.tbl", "x\r\nProcess Aborted! after"},
        {"dice.tbl", "Process Aborted! gold "},
        {"silent.spt", "Process Aborted!"},
        {"empty.tbl", "Process Aborted!"},
        {"loud.tbl", "PROCESS ABORTED! and "},
        {"asking.spt", "Process Aborted!"},
        {"nested.spt", "before\r\nProcess Aborted! and"},
    };
    for (const auto& [file, result] : cases) {
        host.onYield = [&, turns = 0]() mutable {
            if (++turns == 1000) {
                engine.SetAbortFlag();
            }
            return false;
        };
        engine.ClearAbortFlag();
        EXPECT_EQ(std::string_view(file).ends_with(".spt") ? Run(file) : Roll(file), result);
        EXPECT_TRUE(engine.IsAborted());
    }
    host.onYield = nullptr;
    engine.SetAbortFlag();
    EXPECT_EQ(Roll("x.tbl"), "Process Aborted!");
    EXPECT_EQ(Roll("repeat.tbl"), "Process Aborted!");
}

TEST_F(EngineRuns, OneRunAtATime) {
    WriteTable("x.tbl", "x");
    std::string inner = "not called";
    host.onYield = [&] {
        EXPECT_TRUE(engine.IsRunning());
        inner = engine.RollTable(folder.LibraryPath("x.tbl"));
        return false;
    };
    EXPECT_EQ(Roll("x.tbl"), "x");
    EXPECT_EQ(inner, "");
    EXPECT_FALSE(engine.IsRunning());
}

TEST_F(EngineRuns, AFileChangedOnDiskIsRolledAnew) {
    WriteTable("x.tbl", "#y#");
    WriteTable("y.tbl", "old");
    EXPECT_EQ(Roll("x.tbl"), "old");
    WriteTable("y.tbl", "new");  // The same size, within the same tick of the clock.
    EXPECT_EQ(Roll("x.tbl"), "new");
    WriteTable("y.tbl", "broken @ here");
    EXPECT_NE(Roll("x.tbl").find("no partner"), std::string::npos);
    std::filesystem::remove(folder.Path("y.tbl"));
    EXPECT_NE(Roll("x.tbl").find("File not found"), std::string::npos);
    folder.Write("y.spt", "a script now\n");
    EXPECT_EQ(Roll("x.tbl"), "a script now");

    // Within a run a change is seen once other programs had a turn.
    host.onYield = [&] {
        folder.Write("y.spt", "changed\n");
        return true;
    };
    EXPECT_EQ(Roll("x.tbl"), "changed");
}

TEST_F(EngineRuns, ATableOfTheSameNameInAnotherFolderIsAnotherTable) {
    WriteTable("one/main.tbl", "#name#");
    WriteTable("one/name.tbl", "broken @ here");
    WriteTable("two/main.tbl", "#name#");
    WriteTable("two/name.tbl", "two");
    EXPECT_NE(Roll("one/main.tbl").find("no partner"), std::string::npos);
    EXPECT_EQ(Roll("two/main.tbl"), "two");
}

TEST_F(EngineRuns, BrokenFilesGiveTextNotCrashes) {
    const struct {
        const char* name;
        std::string bytes;
        const char* expected;  // Stands in the result.
    } cases[] = {
        {"windows.tbl", InCodePage("T¤1\r\n\r\n1§") + "caf\xE9 \x80\r\n", "café €"},
        {"negative.tbl", "T¤-5\n-5§minus five\n", "minus five"},
        {"text.tbl", "T¤lots\n1§one\n", "one"},
        {"nosign.tbl", "just a line\nand another", "and another"},
        {"falling.tbl", "T¤1\n9§nine\n1§one\n", "nine"},
        {"long.tbl", "T¤1\n1§" + std::string(5 << 20, 'x') + "\n", "xxxxxxxx"},
        {"feeds.tbl", "T¤1\n1§??a=??a????\n", ""},
    };
    for (const auto& c : cases) {
        folder.Write(c.name, c.bytes);
        EXPECT_NE(Roll(c.name).find(c.expected), std::string::npos) << c.name;
    }
    std::filesystem::create_directory(folder.Path("folder.tbl"));
    EXPECT_EQ(Roll("folder.tbl").substr(0, 27), "?Invalid file reference in ");
    EXPECT_EQ(engine.ReadTableTitle(folder.LibraryPath("folder.tbl")), "!Invalid fileheader!");
    EXPECT_EQ(engine.RollTable("Z:\\no such folder\\x.tbl"),
              "Failure to get data from Z:\\no such folder\\x.tbl");
    EXPECT_EQ(engine.RollTable(folder.Path("windows.tbl")), "café €");  // A native path.
}

TEST_F(EngineRuns, TitlesAreReadWithoutRolling) {
    const std::pair<std::string, const char*> cases[] = {
        {"; comment\r\n\r\n  \r\nTitle¤10\r\n", "Title"},
        {" ;indented comment\nDragons ¤ 12\n", "Dragons "},
        {InCodePage("Caf\xE9¤3\r\n"), "Café"},
        {"¤3\n", ""},
        {"no header\n", "!Invalid fileheader!"},
        {"", "!Invalid fileheader!"},
        {std::string(2U << 20U, 'x') + "¤3\n", "!Invalid fileheader!"},  // No text file.
        {";only\n\n", "!Invalid fileheader!"},
    };
    for (const auto& [bytes, title] : cases) {
        folder.Write("t.tbl", bytes);
        EXPECT_EQ(engine.ReadTableTitle(folder.LibraryPath("t.tbl")), title);
    }
    EXPECT_EQ(engine.ReadTableTitle(folder.LibraryPath("gone.tbl")), "!Invalid fileheader!");
}

}  // namespace
}  // namespace quenloft
