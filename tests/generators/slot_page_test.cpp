// What slots and the script runner make of paths, and what their runs find.
#include "generators/slot_page.h"

#include "generators/script_place.h"
#include "platform/linux/linux_profile_file.h"
#include "tests/support/engine_fixture.h"

namespace quenloft {
namespace {

class SlotPageTest : public EngineFixture {
  protected:
    void WriteProfile(const std::string& lines) {
        folder.Write("quenloft.INI", "[ListPage]\r\n" + lines);
    }
    std::string Titles() {
        std::string titles;
        for (int i = 0; i < SlotPage::kSlots; ++i) {
            if (!page.At(i).IsEmpty()) {
                titles += std::to_string(i) + "=" + page.At(i).title + " ";
            }
        }
        return titles;
    }
    void WriteTitled(std::string_view name, const std::string& title) {
        folder.WriteTable(name, title, "one");
    }

    LinuxProfileFile profile{files, folder.Path() + "/quenloft", folder.Path() + "/config"};
    SlotPage page;
};

TEST_F(SlotPageTest, PathsOfEitherFormComeBackWithTheirFolder) {
    WriteTitled("lib/orcs.tbl", "Orcs");
    WriteTitled("lib/sub/Elves.tbl", "Elves");
    WriteProfile("Table0=" + folder.Path("lib/orcs.tbl") +
                 "\r\nTable12=" + folder.LibraryPath("LIB/sub/elves.TBL") + "\r\nTable20=" +
                 folder.Path("lib/orcs.tbl") + "\r\nTable21=" + folder.Path("lib/orcs.tbl") +
                 "\r\nTable01=" + folder.Path("lib/orcs.tbl") + "\r\n");
    page.Restore(engine, profile);
    EXPECT_EQ(Titles(), "0=Orcs 12=Elves 20=Orcs ");
    EXPECT_EQ(page.At(12).path, folder.LibraryPath("lib/sub/Elves.tbl"));
    EXPECT_EQ(page.At(12).folder, folder.LibraryPath("lib/sub"));
    EXPECT_EQ(files.CurrentDirectory(), folder.LibraryPath("lib")) << "the last slot's folder";
}

TEST_F(SlotPageTest, WhatIsNoFileComesBackEmptyAndItsKeyStays) {
    WriteTitled("orcs.tbl", "Orcs");
    folder.Write("folder.tbl/inside", "");
    const std::string lines =
        "Table0=" + folder.Path("gone.tbl") + "\r\nTable1=" + folder.Path("folder.tbl") +
        "\r\nTable2=\r\nTable3=C:\\lib\\x.tbl" + "\r\nTable4=" + folder.Path("orcs.tbl") + "\r\n";
    WriteProfile(lines);
    page.Restore(engine, profile);
    EXPECT_EQ(Titles(), "4=Orcs ");
    page.Save(files, profile);
    EXPECT_EQ(folder.Read("quenloft.INI"), "[ListPage]\r\n" + lines);
}

TEST_F(SlotPageTest, SavingWritesEachBoundSlotAsANativePath) {
    WriteTitled("lib/orcs.tbl", "Orcs");
    WriteProfile("; mine\r\nTable0=/old.tbl\r\nTable1=/kept.tbl\r\n");
    const TableSlot orcs = BindTable(engine, folder.LibraryPath("lib/orcs.tbl"));
    page.Bind(0, orcs);
    page.Bind(20, orcs);
    page.Save(files, profile);
    const std::string path = folder.Path("lib/orcs.tbl");
    EXPECT_EQ(folder.Read("quenloft.INI"), "[ListPage]\r\n; mine\r\nTable0=" + path +
                                               "\r\nTable1=/kept.tbl\r\nTable20=" + path + "\r\n");
}

TEST_F(SlotPageTest, AFileNewerThanTheLastLookIsFound) {
    EXPECT_FALSE(files.FileExists(folder.Path("lib/new.tbl")));
    WriteTitled("lib/new.tbl", "New");
    EXPECT_EQ(BindTable(engine, folder.Path("LIB/NEW.tbl")).title, "New");
}

TEST_F(SlotPageTest, RollingForgetsTheVariablesOfOtherRunsAndEntersTheSlotsFolder) {
    WriteTable("lib/a.tbl", "[??gold=1????gold??] #b#");
    WriteTable("lib/b.tbl", "beside");
    WriteTable("reads.tbl", "[??gold??]");
    const TableSlot writes = BindTable(engine, folder.Path("lib/a.tbl"));
    const TableSlot reads = BindTable(engine, folder.Path("reads.tbl"));
    const std::string unset = RollSlot(engine, reads);
    engine.RollTable(writes.path);
    EXPECT_EQ(RollSlot(engine, reads), unset) << "left over from a run before";
    EXPECT_EQ(RollSlot(engine, writes), "[1] beside");
    EXPECT_EQ(engine.RollTable(reads.path), unset) << "left over from this run";
    EXPECT_EQ(RollSlot(engine, TableSlot()), "No file loaded!");
}

TEST_F(SlotPageTest, ATableInTheRootHasTheRootAsItsFolder) {
    EXPECT_EQ(BindTable(engine, "/no_such_table.tbl").folder, "Z:\\");
}

using ScriptPlaceTest = EngineFixture;

TEST_F(ScriptPlaceTest, ATypedPathIsOfEitherFormAndRelativeToTheFolder) {
    folder.Write("lib/Ford.spt", "ford");
    folder.Write("lib/sub/Inn.spt", "inn");
    const std::string lib = folder.LibraryPath("lib");
    const std::string ford = folder.LibraryPath("lib/Ford.spt");
    const std::string inn = folder.LibraryPath("lib/sub/Inn.spt");
    const struct {
        std::string folder, typed, path;
    } cases[] = {
        {lib, "SUB\\inn.spt", inn},
        {lib, "..\\lib\\ford.spt", ford},
        {lib, "./Ford.spt ", ford},
        {lib, folder.Path("lib/sub/Inn.spt"), inn},
        {lib, folder.LibraryPath("lib/sub/inn.spt"), inn},
        {lib, folder.LibraryPath("lib/sub/inn.spt").substr(2), inn},
        {lib, "c:\\lib\\Ford.spt", "C:\\lib\\Ford.spt"},
        {"", "lib/Ford.spt", ford},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ScriptPath(files, c.folder, c.typed), c.path) << c.typed << " in " << c.folder;
    }
}

TEST_F(ScriptPlaceTest, ARunReadsTheFileAnewAndForgetsOtherRuns) {
    folder.Write("lib/a.spt", "[??gold??]\n??gold=1??\n[??gold??] #b#\n");
    WriteTable("lib/b.tbl", "beside");
    const std::string lib = folder.LibraryPath("lib");
    const std::string first = RunScriptAt(engine, lib, "a.spt");
    EXPECT_TRUE(first.ends_with("\r\n[1] beside")) << first;
    EXPECT_EQ(RunScriptAt(engine, lib, "a.spt"), first);
    folder.Write("lib/a.spt", "new form\n");
    EXPECT_EQ(RunScriptAt(engine, lib, "a.spt"), "new form");
}

}  // namespace
}  // namespace quenloft
