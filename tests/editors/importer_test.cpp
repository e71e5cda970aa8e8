// The table importer: from lines to a table, and the way of the file.

#include "editors/importer/import_text.h"
#include "editors/importer/importer_window.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

TEST(TableOfLines, KeepsTheRulesOfTheTablesThatItMadeBefore) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "T¤1\r\n"},
        {"one line", "T¤1\r\n"},
        {"a\r\nbb", "T¤2\r\n\r\n1§a\r\n2§bb"},
        {"a\r\nb", "T¤2\r\n\r\n1§a"},
        {"a\r\n\xC3\xA9", "T¤2\r\n\r\n1§a"},
        {"a\r\n\xC3\xA9!", "T¤2\r\n\r\n1§a\r\n2§\xC3\xA9!"},
        {"a\r\nb\r\n", "T¤3\r\n\r\n1§a\r\n2§b"},
        {"\r\n\r\nc\r\n", "T¤4\r\n\r\n1§\r\n2§\r\n3§c"},
    };
    for (const auto& [text, table] : cases) {
        EXPECT_EQ(TableOfLines("T", text), table) << text;
    }
}

class ImporterTest : public WindowsFixture {
  protected:
    ImporterTest() {
        ShowMainWindow(window);
        importer = window.Open(form::kImportTable);
        text = importer->findChild<TextBox*>("txtOut");
    }
    void Click(const char* name) { WindowsFixture::Click(*importer, name); }
    void Type(const QString& lines) {
        text->moveCursor(QTextCursor::End);
        text->insertPlainText(lines);
    }
    std::string Caption() const { return TitleOf(*importer); }

    frmMain window{Services(), {{form::kImportTable, Instances::Many, Make<frmImportTable>}}};
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
    EXPECT_EQ(dialogs.TakeLog(), (Log{"save: " + kFilter + " at " + folder.Path(),
                                      "text: Enter table name [] titled Table Import"}));
    EXPECT_EQ(folder.Read("loot.tbl"), InCodePage("Loot¤3\r\n\r\n1§sword\r\n2§shield"));
    EXPECT_EQ(Caption(), "Table Importer ..\\loot.tbl");
    Type("bow\n");
    EXPECT_EQ(Caption(), "Table Importer ..\\loot.tbl*");
    text->undo();
    EXPECT_EQ(Caption(), "Table Importer ..\\loot.tbl");
    dialogs.WillCancel();
    Click("btnSave");
    EXPECT_EQ(folder.Read("loot.tbl"), InCodePage("¤3\r\n\r\n1§sword\r\n2§shield"));
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
                  InCodePage(title + std::string("¤4\r\n\r\n1§sw\xF6rd\r\n2§\r\n3§bow")));
    }
    EXPECT_EQ(folder.Read("list[*].txt~"), "sw\xF6rd\n\nbow")
        << "what was opened, not the first try";
}

}  // namespace
}  // namespace quenloft
