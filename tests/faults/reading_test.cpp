// A disk that fails while something is read: all of it comes, or a sentence; never a part.
#include <chrono>
#include <filesystem>

#include "platform/linux/file_stamp.h"
#include "shell/child_window.h"
#include "shell/form_names.h"
#include "shell/window_kinds.h"
#include "tests/faults/faulty_disk.h"
#include "tests/support/engine_fixture.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

using enum DiskCall;

const Fault kBroken{"the disk is broken", {Look, Open, Read, Close}, EIO};
const Fault kSlow{"the disk gives a little at a time", {Read}, 0, true};
const Fault kInterrupted{"reading is interrupted", {Read}, EINTR};
constexpr int kMostCalls = 100;

using EngineOnFaultyDisk = EngineFixture;

TEST_F(EngineOnFaultyDisk, GivesAWholeResultOrSaysWhatFailed) {
    const std::string whole(100'000, 'x');
    WriteTable("inner.tbl", whole);
    WriteTable("outer.tbl", "#inner#");
    folder.Write("run.spt", "#outer#\r\n");
    for (const Fault* fault : {&kBroken, &kSlow, &kInterrupted}) {
        bool hasStruck = true;
        for (int number = 1; hasStruck; ++number) {
            SCOPED_TRACE(std::string(fault->name) + ", at call " + std::to_string(number));
            ASSERT_LT(number, kMostCalls);
            LinuxFileSystem freshFiles;
            Engine fresh(freshFiles, random, host);
            std::string result;
            {
                const FaultyDisk disk(folder.Path(), *fault, number);
                result = fresh.RunScript(folder.LibraryPath("run.spt"), true);
                hasStruck = disk.HasStruck();
            }
            if (fault != &kBroken) {
                EXPECT_EQ(result, whole);
            } else if (result != whole) {
                // The path of the folder may hold some.
                EXPECT_EQ(result.find("xxxxxxxxxx"), std::string::npos) << "a part of the table";
                EXPECT_NE(result.find(".tbl") == std::string::npos,
                          result.find(".spt") == std::string::npos)
                    << result;
            }
            freshFiles.LookAgain();
            fresh.ResetGeneration();
            EXPECT_EQ(fresh.RunScript(folder.LibraryPath("run.spt"), true), whole);
        }
    }
}

TEST_F(EngineOnFaultyDisk, TakesNoOldTableForTheNewOneAfterAFailure) {
    const auto settled = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    const auto write = [&](const char* entry) {
        WriteTable("t.tbl", entry);
        std::filesystem::last_write_time(folder.Path("t.tbl"), settled);
        // The time of the inode's change cannot be set; it has to lie back as well.
        ASSERT_TRUE(QTest::qWaitFor([&] { return StampOf(folder.Path("t.tbl")).isSettled; }));
        files.LookAgain();
    };
    write("old");
    EXPECT_EQ(Roll("t.tbl"), "old");
    write("new one");
    {
        const FaultyDisk disk(folder.Path(), {"", {Read}, EIO}, 1);
        Roll("t.tbl");
        EXPECT_TRUE(disk.HasStruck());
    }
    files.LookAgain();
    EXPECT_EQ(Roll("t.tbl"), "new one");
}

TEST_F(EngineOnFaultyDisk, ListsAWholeFolderOrNone) {
    for (const char* name : {"a.tbl", "b.tbl", "c.tbl"}) {
        folder.Write(name, "");
    }
    bool hasStruck = true;
    for (int number = 1; hasStruck; ++number) {
        ASSERT_LT(number, kMostCalls);
        LinuxFileSystem fresh;
        const FaultyDisk disk(folder.Path(), kBroken, number);
        try {
            EXPECT_EQ(fresh.ListFolder(folder.Path()).size(), 3U) << number;
        } catch (const FileError&) {
        }
        hasStruck = disk.HasStruck();
    }
}

class EditorsOnFaultyDisk : public WindowsFixture {
  protected:
    EditorsOnFaultyDisk() {
        dialogs.WillConfirmEveryMessage();
        ShowMainWindow(window);
    }
    frmMain window{Services(), MakeWindowKinds(random)};
};

TEST_F(EditorsOnFaultyDisk, KeepWhatTheyShowWhereAFileCannotBeRead) {
    const struct {
        const char* form;
        const char* box;
        const char* shown;           ///< The property of the box.
        std::string before, behind;  ///< The text in the file.
    } cases[] = {
        {form::kEdit, "txtOut", "plainText", "", ""},
        {form::kEditTable, "txtTitle", "text", "", InCodePage("¤1\r\n")},
        {form::kImportTable, "txtOut", "plainText", "", ""},
        {form::kAuthor, "rtfAuthor", "plainText", "{\\rtf1 ", "}"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.form);
        folder.Write("old.txt", c.before + "old" + c.behind);
        folder.Write("new.txt", c.before + "new" + c.behind);
        ChildWindow* child = window.Open(c.form);
        const auto shown = [&, box = child->findChild<QWidget*>(c.box)] {
            return box->property(c.shown).toString().trimmed();
        };
        bool hasStruck = true;
        for (int number = 1; hasStruck; ++number) {
            SCOPED_TRACE(number);
            ASSERT_LT(number, kMostCalls);
            child->Load(folder.Path("old.txt"));
            ASSERT_EQ(shown(), "old");
            dialogs.TakeLog();
            {
                const FaultyDisk disk(folder.Path(), kBroken, number);
                child->Load(folder.Path("new.txt"));
                hasStruck = disk.HasStruck();
            }
            const auto log = dialogs.TakeLog();
            EXPECT_EQ(shown(), log.empty() ? "new" : "old");
            EXPECT_FALSE(child->isWindowModified());
            if (!log.empty()) {
                EXPECT_EQ(log.size(), 1U);
                EXPECT_NE(log[0].find(folder.Path("new.txt: Input/output error.")),
                          std::string::npos)
                    << log[0];
            }
        }
    }
}

}  // namespace
}  // namespace quenloft
