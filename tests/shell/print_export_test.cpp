#include "shell/print_export.h"

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
    const std::pair<std::vector<const char*>, bool> groups[] = {
        {{form::kEdit, form::kEditTable, form::kScript, form::kLists, form::kSingleList,
          form::kProbability, form::kShadowrunProbability, form::kDice, form::kExplorer},
         true},
        {{form::kDrovemark, form::kReadme, form::kAbout, form::kEditReference, form::kImportTable},
         false}};
    for (const auto& [formNames, print] : groups) {
        for (const char* formName : formNames) {
            RecordingWindow child(window, formName);
            child.exported = formName;
            printer.printed.clear();
            PrintWindow(&child, Services());
            EXPECT_EQ(printer.printed, print ? Log{formName} : Log()) << formName;
        }
    }
    PrintWindow(nullptr, Services());
    ExportWindow(nullptr, Services());
}

TEST_F(PrintExportTest, TheAuthorAreaPrintsItselfAndIsNeverExported) {
    RecordingWindow child(window, form::kAuthor);
    PrintWindow(&child, Services());
    EXPECT_EQ(child.asked, Log{"print content"});
    dialogs.WillConfirm();
    ExportWindow(&child, Services());
    EXPECT_EQ(
        dialogs.TakeLog(),
        Log{"information: Exporting this data would likely lose data! No export implemented."});
}

TEST_F(PrintExportTest, CancelledPrintingIsSilentAndFailedPrintingIsNot) {
    RecordingWindow child(window, form::kScript);
    printer.failure = "The printer burns.";
    printer.accepts = false;
    PrintWindow(&child, Services());
    printer.accepts = true;
    dialogs.WillConfirm();
    PrintWindow(&child, Services());
    EXPECT_EQ(printer.printed.size(), 1U);
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: The printer burns."});
}

TEST_F(PrintExportTest, ExportReplacesTheChosenFileInItsCodePage) {
    RecordingWindow child(window, form::kScript);
    child.exported = "Caf\xC3\xA9\r\n\xC2\xA7";
    const std::string path = folder.Write("out.txt", "a longer text that was there before");
    dialogs.WillGive(path);
    ExportWindow(&child, Services());
    EXPECT_EQ(folder.Read("out.txt"), "Caf\xE9\r\n\xA7");
    EXPECT_EQ(dialogs.TakeLog(), Log{saveQuestion});
}

TEST_F(PrintExportTest, TextThatTheCodePageLacksIsSavedAsUtf8OnlyWhenAllowed) {
    RecordingWindow child(window, form::kScript);
    child.exported = "\xE2\x99\x9E";
    const std::string path = folder.Path("out.txt");
    const std::string question = "yes or no: The text for " + path +
                                 " holds characters that Windows-1252 lacks. Save it as UTF-8?";
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        EXPECT_FALSE(std::filesystem::exists(path));
        dialogs.WillGive(path);
        dialogs.WillAnswer(answer);
        ExportWindow(&child, Services());
        EXPECT_EQ(dialogs.TakeLog(), (Log{saveQuestion, question}));
    }
    EXPECT_EQ(folder.Read("out.txt"), child.exported);
}

TEST_F(PrintExportTest, ExportSaysWhyNothingWasWritten) {
    RecordingWindow child(window, form::kScript);
    const std::pair<std::string, std::string> cases[] = {
        {"", "warning: No filename given!"},
        {folder.Path("missing/out.txt"),
         "warning: Path not found: " + folder.Path("missing/out.txt") + "."},
    };
    for (const auto& [path, warning] : cases) {
        dialogs.WillGive(path);
        dialogs.WillConfirm();
        ExportWindow(&child, Services());
        EXPECT_EQ(dialogs.TakeLog(), (Log{saveQuestion, warning}));
    }
    dialogs.WillCancel();
    ExportWindow(&child, Services());
}

}  // namespace
}  // namespace quenloft
