// The table importer: from lines to a table, and the way of the file.
#include <QPushButton>

#include "editors/importer/import_text.h"
#include "editors/importer/importer_window.h"
#include "shell/form_names.h"
#include "shell/text_box.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

TEST(TableOfLines, KeepsTheRulesOfTheTablesThatItMadeBefore) {
    const struct {
        const char* text;
        const char* table;
    } cases[] = {
        {"", "T¤1\r\n"},
        {"one line", "T¤1\r\n"},
        {"a\r\nbb", "T¤2\r\n\r\n1§a\r\n2§bb"},
        {"a\r\nb", "T¤2\r\n\r\n1§a"},
        {"a\r\n\xC3\xA9", "T¤2\r\n\r\n1§a"},
        {"a\r\n\xC3\xA9!", "T¤2\r\n\r\n1§a\r\n2§\xC3\xA9!"},
        {"a\r\nb\r\n", "T¤3\r\n\r\n1§a\r\n2§b"},
        {"\r\n\r\nc\r\n", "T¤4\r\n\r\n1§\r\n2§\r\n3§c"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(TableOfLines("T", c.text), c.table) << c.text;
    }
}

class ImporterTest : public WindowsFixture {
  protected:
    ImporterTest() {
        ShowMainWindow(window);
        importer = window.Open(form::kImportTable);
        text = importer->findChild<TextBox*>("txtOut");
    }
    static std::vector<WindowKind> Kinds() {
        return {{form::kImportTable, Instances::Many,
                 [](Workspace& workspace) { return new frmImportTable(workspace); }}};
    }
    void Click(const char* name) { importer->findChild<QPushButton*>(name)->click(); }
    void Type(const QString& lines) {
        text->moveCursor(QTextCursor::End);
        text->insertPlainText(lines);
    }
    /// The caption, with the mark of change as a star.
    std::string Caption() const {
        return importer->windowTitle()
            .replace("[*]", importer->isWindowModified() ? "*" : "")
            .toStdString();
    }

    frmMain window{Services(), Kinds()};
    ChildWindow* importer = nullptr;
    TextBox* text = nullptr;
};

const std::string kFilter = "Table,Scripts (*.tbl,*.spt)|*.tbl;*.spt|All files (*.*)|*.*";

TEST_F(ImporterTest, ATypedListBecomesATable) {
    EXPECT_EQ(Caption(), "Table Importer");
    EXPECT_EQ(window.InsertionTarget(), text);
    Type("sword\nshield\n");
    EXPECT_EQ(Caption(), "Table Importer*");
    dialogs.WillGive(folder.Path("loot.tbl"));
    dialogs.WillGive("Loot");
    Click("btnSave");
    EXPECT_EQ(dialogs.TakeLog(),
              (std::vector<std::string>{"save: " + kFilter + " at " + folder.Path(),
                                        "text: Enter table name [] titled Table Import"}));
    EXPECT_EQ(folder.Read("loot.tbl"),
              "Loot\xA4"
              "3\r\n\r\n1\xA7sword\r\n2\xA7shield");
    EXPECT_EQ(Caption(), "Table Importer ..\\loot.tbl");
    Type("bow\n");
    EXPECT_EQ(Caption(), "Table Importer ..\\loot.tbl*");
    text->undo();
    EXPECT_EQ(Caption(), "Table Importer ..\\loot.tbl");
    dialogs.WillCancel();
    Click("btnSave");
    EXPECT_EQ(folder.Read("loot.tbl"),
              "\xA4"
              "3\r\n\r\n1\xA7sword\r\n2\xA7shield");
}

TEST_F(ImporterTest, AnOpenedFileStaysBesideItsTable) {
    folder.Write("list[*].txt", "sw\xF6rd\n\nbow");
    dialogs.WillGive(folder.Path("list[*].txt"));
    Click("btnOpen");
    EXPECT_EQ(text->Text(), "sw\xC3\xB6rd\r\n\r\nbow\r\n");
    EXPECT_EQ(importer->windowTitle(), "Table Importer ..\\list[*][*].txt[*]");
    EXPECT_FALSE(importer->isWindowModified());
    for (const char* title : {"Arms", "Weapons"}) {
        dialogs.WillGive(title);
        Click("btnSave");
        EXPECT_EQ(folder.Read("list[*].txt"),
                  title + std::string("\xA4"
                                      "4\r\n\r\n1\xA7sw\xF6rd\r\n2\xA7\r\n3\xA7"
                                      "bow"));
    }
    EXPECT_EQ(folder.Read("list[*].txt~"), "sw\xF6rd\n\nbow")
        << "what was opened, not the first try";
}

TEST_F(ImporterTest, NothingLeavesUnasked) {
    Type("sword\n");
    dialogs.WillAnswer(Answer::Cancel);
    importer->CloseWindow();
    dialogs.WillAnswer(Answer::Cancel);
    Click("btnNew");
    dialogs.WillAnswer(Answer::Cancel);
    Click("btnOpen");
    dialogs.WillAnswer(Answer::Yes);
    dialogs.WillCancel();
    importer->CloseWindow();
    EXPECT_EQ(text->Text(), "sword\r\n");
    EXPECT_EQ(Caption(), "Table Importer*");
    EXPECT_TRUE(importer->isVisible());
    EXPECT_EQ(dialogs.TakeLog().front(),
              "yes, no or cancel: Do You want to save the text as a table ?");
}

TEST_F(ImporterTest, NewAsksAboutTheFileAndCanBeUndone) {
    const std::string path = folder.Write("a.txt", "a\nb\n");
    importer->Load(path);
    dialogs.WillAnswer(Answer::Cancel);
    Click("btnNew");
    EXPECT_EQ(dialogs.TakeLog().size(), 1U);
    EXPECT_EQ(text->Text(), "a\r\nb\r\n") << "the question was dismissed";
    dialogs.WillAnswer(Answer::No);
    Click("btnNew");
    EXPECT_EQ(dialogs.TakeLog(),
              std::vector<std::string>{"yes or no: Do You want to save file " + path + " ?"});
    EXPECT_EQ(text->Text(), "");
    EXPECT_EQ(Caption(), "Table Importer");
    text->undo();
    EXPECT_EQ(text->Text(), "a\r\nb\r\n");
    EXPECT_EQ(Caption(), "Table Importer*");
    EXPECT_EQ(folder.Read("a.txt"), "a\nb\n");
    dialogs.WillAnswer(Answer::No);
    EXPECT_TRUE(importer->AskToSave());
}

TEST_F(ImporterTest, AFileThatCannotBeReadOrWrittenChangesNothing) {
    Type("sword\n");
    dialogs.WillConfirm();
    importer->Load(folder.Path("missing.txt"));
    dialogs.WillGive(folder.Path("missing/loot.tbl"));
    dialogs.WillGive("Loot");
    dialogs.WillConfirm();
    Click("btnSaveAs");
    EXPECT_EQ(Caption(), "Table Importer*");
    EXPECT_EQ(text->Text(), "sword\r\n");
    const auto log = dialogs.TakeLog();
    EXPECT_EQ(log.front(), "warning: Errors in table " + folder.Path("missing.txt") +
                               "\r\nFile not found: " + folder.Path("missing.txt") + ".");
    EXPECT_EQ(log.back(), "warning: Path not found: " + folder.Path("missing/loot.tbl") + ".");
}

TEST_F(ImporterTest, SaysWhichLastLineBecomesNoEntry) {
    const auto* hint = importer->findChild<QLabel*>("lblHint");
    const std::string longLine(10'000, 'x');
    const struct {
        std::string text;
        const char* hint;
    } cases[] = {
        {"", ""},
        {"sword", "A single line becomes an entry when Enter ends it."},
        {longLine, "A single line becomes an entry when Enter ends it."},
        {"sword\n", ""},
        {"sword\nb", "A last line of one character becomes an entry when Enter ends it."},
        {"sword\nbow", ""},
        {"sword\n" + longLine, ""},
    };
    for (const auto& c : cases) {
        text->SetText(c.text);
        EXPECT_EQ(hint->text(), c.hint) << c.text.substr(0, 20);
    }
}

}  // namespace
}  // namespace quenloft
