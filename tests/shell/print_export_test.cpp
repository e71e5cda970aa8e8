#include "shell/print_export.h"

#include "shell/form_names.h"
#include "tests/support/recording_window.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class PrintExportTest : public WindowsFixture {
  protected:
    frmMain window{Services(), {}};
    std::string saveQuestion = "save: Text(*.txt)|*.txt|All files(*.*)|*.* at " + folder.Path();
};

TEST_F(PrintExportTest, TextWindowsPrintWhatTheyExport) {
    for (const char* formName :
         {form::kEdit, form::kEditTable, form::kScript, form::kLists, form::kSingleList,
          form::kProbability, form::kShadowrunProbability, form::kDice, form::kExplorer}) {
        RecordingWindow child(window, formName);
        child.exported = formName;
        PrintWindow(&child, Services());
        ASSERT_FALSE(printer.printed.empty()) << formName;
        EXPECT_EQ(printer.printed.back(), formName);
        EXPECT_TRUE(child.asked.empty());
    }
}

TEST_F(PrintExportTest, OtherWindowsAndNoneDoNothing) {
    for (const char* formName : {form::kDrovemark, form::kReadme, form::kAbout,
                                 form::kEditReference, form::kImportTable}) {
        RecordingWindow child(window, formName);
        PrintWindow(&child, Services());
        ExportWindow(&child, Services());
    }
    PrintWindow(nullptr, Services());
    ExportWindow(nullptr, Services());
    EXPECT_TRUE(printer.printed.empty());
    EXPECT_TRUE(dialogs.TakeLog().empty());
}

TEST_F(PrintExportTest, TheAuthorAreaPrintsItselfAndIsNeverExported) {
    RecordingWindow child(window, form::kAuthor);
    PrintWindow(&child, Services());
    EXPECT_EQ(child.asked, std::vector<std::string>{"print content"});
    dialogs.WillConfirm();
    ExportWindow(&child, Services());
    EXPECT_EQ(dialogs.TakeLog(),
              std::vector<std::string>{"information: Exporting this data would likely lose data! "
                                       "No export implemented."});
}

TEST_F(PrintExportTest, CancelledPrintingIsSilentAndFailedPrintingIsNot) {
    RecordingWindow child(window, form::kScript);
    printer.accepts = false;
    PrintWindow(&child, Services());
    EXPECT_TRUE(printer.printed.empty());

    printer.accepts = true;
    printer.failure = "The printer burns.";
    dialogs.WillConfirm();
    PrintWindow(&child, Services());
    EXPECT_EQ(dialogs.TakeLog(), std::vector<std::string>{"warning: The printer burns."});
}

TEST_F(PrintExportTest, ExportReplacesTheChosenFileInItsCodePage) {
    RecordingWindow child(window, form::kScript);
    child.exported = "Caf\xC3\xA9\r\n\xC2\xA7";
    const std::string path = folder.Write("out.txt", "a longer text that was there before");
    dialogs.WillGive(path);
    ExportWindow(&child, Services());
    EXPECT_EQ(folder.Read("out.txt"), "Caf\xE9\r\n\xA7");
    EXPECT_EQ(dialogs.TakeLog(), std::vector<std::string>{saveQuestion});
}

TEST_F(PrintExportTest, TextThatTheCodePageLacksIsSavedAsUtf8OnlyWhenAllowed) {
    RecordingWindow child(window, form::kScript);
    child.exported = "\xE2\x99\x9E";
    const std::string path = folder.Path("out.txt");
    const std::string question = "yes or no: The text for " + path +
                                 " holds characters that Windows-1252 lacks. Save it as UTF-8?";
    dialogs.WillGive(path);
    dialogs.WillAnswer(Answer::No);
    ExportWindow(&child, Services());
    EXPECT_EQ(dialogs.TakeLog(), (std::vector<std::string>{saveQuestion, question}));
    EXPECT_FALSE(std::filesystem::exists(path));

    dialogs.WillGive(path);
    dialogs.WillAnswer(Answer::Yes);
    ExportWindow(&child, Services());
    EXPECT_EQ(folder.Read("out.txt"), "\xE2\x99\x9E");
}

TEST_F(PrintExportTest, ExportSaysWhyNothingWasWritten) {
    RecordingWindow child(window, form::kScript);
    dialogs.WillCancel();
    ExportWindow(&child, Services());
    EXPECT_EQ(dialogs.TakeLog(), std::vector<std::string>{saveQuestion});

    dialogs.WillGive("");
    dialogs.WillConfirm();
    ExportWindow(&child, Services());
    EXPECT_EQ(dialogs.TakeLog(),
              (std::vector<std::string>{saveQuestion, "warning: No filename given!"}));

    dialogs.WillGive(folder.Path("missing/out.txt"));
    dialogs.WillConfirm();
    ExportWindow(&child, Services());
    EXPECT_EQ(dialogs.TakeLog()[1],
              "warning: Path not found: " + folder.Path("missing/out.txt") + ".");
}

}  // namespace
}  // namespace quenloft
