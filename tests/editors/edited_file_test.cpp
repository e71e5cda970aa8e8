// Reading and writing the files behind the editors: no byte that the user did not change may
// change.
#include "editors/shared/edited_file.h"

#include "editors/shared/text_form.h"
#include "platform/linux/linux_file_system.h"
#include "tests/support/fake_dialogs.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

TEST(TextForm, GivesUnchangedTextItsBytesBack) {
    for (const std::string bytes :
         {"", "a", "a\n", "a\r\nb", "a\r\nb\r\n", "\r\n\r\n", "a\rb\nc\r\nd\r",
          "\xEF\xBB\xBF"
          "a\n",
          "5\xA7Text\r\n6\xC2\xA7Text\r\n",
          "\xA0no\xA0"
          "break\x81\x8D\n",
          "a\n\n\n\nb\n\n", "\n\r\n\r"}) {
        EXPECT_EQ(BytesOfText(TextOfBytes(bytes), bytes, DetectEncoding(bytes)), bytes);
        EXPECT_EQ(TextOfBytes(Utf8BytesOfText(TextOfBytes(bytes), bytes)), TextOfBytes(bytes));
    }
}

TEST(TextForm, ChangesOnlyTheLinesThatWereChanged) {
    struct {
        const char* former;
        const char* text;
        const char* expected;
    } cases[] = {
        {"", "a\nb", "a\r\nb"},                                   // New files: CR LF.
        {"a\nb\n", "a\nx\nb\n", "a\nx\nb\n"},                     // LF stays LF.
        {"a\r\nb\nc\r\n", "a\nb\nx\nc\n", "a\r\nb\nx\r\nc\r\n"},  // What is mixed stays mixed.
        {"a\rb\rc\rd\n\ne", "a\nb\nc\nd\nx\n\ne", "a\rb\rc\rd\nx\r\r\ne"},  // Two ends, not one.
        {"a\nb", "a\nb\n", "a\nb\n"},  // The last line gets an end,
        {"a\nb\n", "a\nb", "a\nb"},    // and loses it.
        {"\xC2\xA7\n\xA7\nz", "\xC2\xA7\n\xC2\xA7\nz\xC2\xA7", "\xC2\xA7\n\xA7\nz\xA7"},
        {"a\na\na\n", "a\na\n", "a\na\n"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(BytesOfText(c.text, c.former, TextEncoding::Windows1252), c.expected) << c.former;
    }
}

TEST(TextForm, RefusesWhatWouldBeReadAsOtherCharacters) {
    EXPECT_EQ(EncodeText("price 5 \xE2\x82\xAC\r\n", TextEncoding::Windows1252),
              "price 5 \x80\r\n");
    EXPECT_EQ(EncodeText("\xD0\xB6", TextEncoding::Windows1252), std::nullopt);
    EXPECT_EQ(EncodeText("a\n\xC3\x83\xC2\xA4", TextEncoding::Windows1252), std::nullopt);
    EXPECT_EQ(EncodeText("\xD0\xB6", TextEncoding::Utf8), "\xD0\xB6");
}

class EditedFileTest : public testing::Test {
  protected:
    EditedFileTest() { files.ChangeDirectory(folder.Path()); }

    TempFolder folder;
    LinuxFileSystem files;
    FakeDialogs dialogs;
    EditedFile file{files, dialogs};
};

TEST_F(EditedFileTest, AsksBeforeItWritesOverWhatAnotherProgramWrote) {
    folder.Write("a.spt", "mine");
    EXPECT_EQ(file.Read("a.spt"), "mine");
    folder.Write("a.spt", "theirs");
    dialogs.WillAnswer(Answer::No);
    EXPECT_FALSE(file.SaveLines(file.Path(), "more"));
    EXPECT_EQ(folder.Read("a.spt"), "theirs");
    dialogs.WillAnswer(Answer::Yes);
    EXPECT_TRUE(file.SaveLines(file.Path(), "more"));
    EXPECT_TRUE(file.SaveLines(file.Path(), "even more"));
    EXPECT_EQ(folder.Read("a.spt"), "even more");
    files.DeleteFile("a.spt");
    EXPECT_TRUE(file.SaveLines(file.Path(), "more")) << "nothing to write over";
    EXPECT_EQ(dialogs.TakeLog().front(),
              "yes or no: The file " + folder.Path("a.spt") +
                  " was changed by another program since it was read. Save over these changes?");
}

TEST_F(EditedFileTest, AsksBeforeAFileBecomesUtf8) {
    folder.Write("a.tbl", "\xA7\r\n");
    file.Read("a.tbl");
    dialogs.WillAnswer(Answer::No);
    EXPECT_FALSE(file.SaveLines(file.Path(), "\xC2\xA7\n\xD0\xB6"));
    EXPECT_EQ(folder.Read("a.tbl"), "\xA7\r\n");
    dialogs.WillAnswer(Answer::Yes);
    EXPECT_TRUE(file.SaveLines(file.Path(), "\xC2\xA7\n\xD0\xB6"));
    EXPECT_TRUE(file.SaveLines(file.Path(), "\xC2\xA7\n\xD0\xB6\xD0\xB6"));
    EXPECT_EQ(folder.Read("a.tbl"), "\xC2\xA7\r\n\xD0\xB6\xD0\xB6");
    dialogs.TakeLog();
}

TEST_F(EditedFileTest, KeepsTheFormerFileBesideTheNewOne) {
    folder.Write("a.tbl", "old");
    file.Read("a.tbl");
    EXPECT_TRUE(file.SaveWhole(file.Path(), "new\r\n", Former::Keep));
    EXPECT_EQ(folder.Read("a.tbl"), "new\r\n");
    EXPECT_TRUE(file.SaveWhole(file.Path(), "newer\r\n", Former::Keep));
    EXPECT_EQ(folder.Read("a.tbl~"), "old");
    EXPECT_EQ(folder.Read("a.tbl~2"), "new\r\n");
}

TEST_F(EditedFileTest, AsksBeforeItReplacesAFileWithAnotherSpelling) {
    folder.Write("orcs.tbl", "precious");
    dialogs.WillAnswer(Answer::Cancel);
    EXPECT_FALSE(file.SaveWhole(folder.Path("ORCS.TBL"), "new", Former::Replace));
    EXPECT_EQ(folder.Read("orcs.tbl"), "precious");
    EXPECT_EQ(dialogs.TakeLog(), Log{"yes or no: The file " + folder.Path("orcs.tbl") +
                                     " exists already. Replace it?"});
}

}  // namespace
}  // namespace quenloft
