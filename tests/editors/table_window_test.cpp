// The table editor as its user meets it: the grid's keys, the questions, and what stands on disk.
#include "editors/table/table_window.h"

#include <QHeaderView>

#include "editors/table/table_grid.h"
#include "tests/support/recording_window.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class TableWindowTest : public WindowsFixture {
  protected:
    TableWindowTest() {
        folder.Write("orcs.tbl", kOrcs);
        ShowMainWindow(window);
        editor = static_cast<frmEdit_Table*>(window.Open(form::kEditTable));
        grid = editor->findChild<TableGrid*>("grdTable");
        box = editor->findChild<QLineEdit*>("tbFgEdit");
    }

    std::vector<WindowKind> Kinds() {
        return {{form::kEditTable, Instances::Many,
                 [this](Workspace& workspace) {
                     return new frmEdit_Table(
                         workspace, [this](Workspace&, const std::string& from, QWidget*) {
                             referenceFolder = from;
                             return reference;
                         });
                 }},
                Recorder(form::kSingleList, list)};
    }
    void LoadOrcs() { editor->Load(folder.Path("orcs.tbl")); }
    void GoTo(int row, int column) {
        grid->setFocus();
        grid->GoTo(row, column);
    }
    void Click(const char* button) { editor->findChild<QPushButton*>(button)->click(); }
    QLineEdit* Field(const char* name) { return editor->findChild<QLineEdit*>(name); }
    /// To whatever has the focus, as from the keyboard.
    static void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    static void Type(const char* text) {
        for (const char letter : std::string(text)) {
            QTest::keyClick(QApplication::focusWidget(), letter);
        }
    }
    std::string Rows() {
        std::string text;
        for (int row = 0; row < grid->model()->rowCount(); ++row) {
            for (int column = 0; column < 2; ++column) {
                text +=
                    grid->model()->index(row, column).data(Qt::EditRole).toString().toStdString();
                text += column == 0 ? "|" : "\n";
            }
        }
        return text;
    }
    std::string Header(int row) {
        return grid->model()->headerData(row, Qt::Vertical).toString().toStdString();
    }
    std::string CurrentCell() {
        return std::to_string(grid->currentIndex().row()) + "," +
               std::to_string(grid->currentIndex().column());
    }

    const std::string kOrcs = InCodePage("Orcs¤20??X??\r\n\r\n5§A\r\n15§B\r\nmore\r\n20§C\r\n");

    std::string reference;
    std::string referenceFolder;
    QPointer<RecordingWindow> list;
    frmMain window{Services(), Kinds()};
    frmEdit_Table* editor = nullptr;
    TableGrid* grid = nullptr;
    QLineEdit* box = nullptr;
};

TEST_F(TableWindowTest, ShowsWeightsAndWritesBounds) {
    LoadOrcs();
    EXPECT_EQ(Rows(), "5|A\n10|B\n|more\n5|C\n");
    EXPECT_EQ(Header(1), "6-15  50 %");
    EXPECT_EQ(editor->windowTitle(), "Table Editor (..\\orcs.tbl)[*]");
    EXPECT_FALSE(editor->isWindowModified());
    Click("btnSave");
    EXPECT_EQ(folder.Read("orcs.tbl"), kOrcs);
    EXPECT_FALSE(files.FileExists(folder.Path("orcs.tbl~")));
}

TEST_F(TableWindowTest, MovesFromCellToCellAndStoresOnTheWay) {
    LoadOrcs();
    const struct {
        int row, column;
        Qt::Key key;
        const char *rows, *cell;
    } cases[] = {
        {0, 0, Qt::Key_Return, "7|A\n10|B\n|more\n5|C\n", "0,1"},
        {3, 1, Qt::Key_Tab, "5|A\n10|B\n|more\n5|7\n", "0,0"},
        {1, 0, Qt::Key_Backtab, "5|A\n7|B\n|more\n5|C\n", "0,1"},
        {3, 0, Qt::Key_Down, "5|A\n10|B\n|more\n7|C\n", "0,1"},
        {0, 0, Qt::Key_Up, "7|A\n10|B\n|more\n5|C\n", "3,1"},
        {1, 1, Qt::Key_Escape, "5|A\n10|B\n|more\n5|C\n", "1,1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.key);
        GoTo(c.row, c.column);
        Type("7");
        EXPECT_EQ(QApplication::focusWidget(), box);
        Press(c.key);
        EXPECT_EQ(Rows(), c.rows);
        EXPECT_EQ(CurrentCell(), c.cell);
        EXPECT_EQ(box->isVisible(), c.key != Qt::Key_Escape);
        if (box->isVisible()) {
            Press(Qt::Key_Escape);
            Press(Qt::Key_Z, Qt::ControlModifier);
        }
        EXPECT_FALSE(editor->isWindowModified()) << "undone to what was loaded";
    }
}

TEST_F(TableWindowTest, BeginsTheFirstRowWithAnyWayIntoACell) {
    grid->setFocus();
    Press(Qt::Key_3, Qt::AltModifier);
    EXPECT_EQ(Rows(), "") << "a command";
    Type("3");
    Press(Qt::Key_Return);
    EXPECT_EQ(Rows(), "3|\n");
    Press(Qt::Key_Escape);
    Press(Qt::Key_Delete, Qt::ControlModifier);
    Press(Qt::Key_Return);
    EXPECT_TRUE(box->isVisible());
    Press(Qt::Key_Escape);
    Press(Qt::Key_Delete, Qt::ControlModifier);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton);
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(Rows(), "|\n");
}

TEST_F(TableWindowTest, InsertsClearsRemovesAndMovesRows) {
    LoadOrcs();
    GoTo(1, 1);
    Press(Qt::Key_Insert);
    Type("2");
    Press(Qt::Key_Return);
    Type("new");
    Press(Qt::Key_Return, Qt::ControlModifier);
    Type("3");
    Click("btnSave");
    EXPECT_EQ(Rows(), "5|A\n2|new\n3|\n10|B\n|more\n5|C\n") << "saving stores the cell first";
    Press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Rows(), "5|A\n3|\n2|new\n10|B\n|more\n5|C\n");
    Press(Qt::Key_Delete, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Rows(), "5|A\n|new\n10|B\n|more\n5|C\n");
    grid->verticalHeader()->moveSection(4, 0);
    EXPECT_EQ(Rows(), "5|C\n5|A\n|new\n10|B\n|more\n");
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(editor->isWindowModified());
        Press(Qt::Key_Z, Qt::ControlModifier);
    }
    EXPECT_FALSE(editor->isWindowModified());
    EXPECT_EQ(Rows(), "5|A\n2|new\n3|\n10|B\n|more\n5|C\n");
}

TEST_F(TableWindowTest, ExchangesCellsWithSpreadsheets) {
    LoadOrcs();
    GoTo(1, 0);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    Choose(window, "mnuEdit_Cut");
    EXPECT_EQ(clipboard.text, "10\tB");
    EXPECT_EQ(Rows(), "5|A\n|\n|more\n5|C\n");
    clipboard.text = "3\tx\r\n4\t\"y\r\nz\"\r\n";
    GoTo(3, 0);
    Choose(window, "mnuEdit_Paste");
    EXPECT_EQ(Rows(), "5|A\n|\n|more\n3|x\n4|y\n|z\n");
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Rows(), "5|A\n|\n|more\n5|C\n");
    editor->CopyGridData();
    EXPECT_EQ(clipboard.text, "5\tA\r\n\t\r\n\tmore\r\n5\tC\r\n");
}

TEST_F(TableWindowTest, TakesAMillionLettersAndLineEndsIntoACell) {
    LoadOrcs();
    const auto cell = [this](int row) {
        return grid->model()->index(row, 1).data(Qt::EditRole).toString();
    };
    GoTo(0, 1);
    Press(Qt::Key_F2);
    box->selectAll();
    clipboard.text = std::string(1000000, 'x') + "\r\n\ty";
    Choose(window, "mnuEdit_Paste");
    QCoreApplication::processEvents();
    EXPECT_FALSE(box->isVisible()) << "what grows too long is stored";
    EXPECT_EQ(cell(0).size(), 1000003);
    EXPECT_EQ(cell(0).right(4), "x \ty");
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_X}) {
        GoTo(0, 1);
        Press(key);
        dialogs.WillConfirm();
        QCoreApplication::processEvents();
        EXPECT_EQ(dialogs.TakeLog(), Log{"information: This entry has more than 20000 letters. The "
                                         "text editor can edit it."});
    }
}

TEST_F(TableWindowTest, NeverLetsKeysPassTheOpenTextBox) {
    LoadOrcs();
    const QList<std::pair<QWidget*, QPoint>> places = {
        {grid->viewport(), {50, grid->viewport()->height() - 5}},
        {grid->verticalHeader()->viewport(), {5, 5}},
        {grid->horizontalHeader()->viewport(), {5, 5}}};
    for (const auto& [where, at] : places) {
        GoTo(0, 0);
        Type("8");
        QTest::mouseClick(where, Qt::LeftButton, {}, at);
        EXPECT_FALSE(box->isVisible());
        EXPECT_EQ(Rows().substr(0, 4), "8|A\n");
        EXPECT_EQ(QApplication::focusWidget(), grid);
        Press(Qt::Key_Z, Qt::ControlModifier);
    }
    GoTo(0, 0);
    Type("8");
    Press(Qt::Key_F, Qt::ControlModifier);
    Press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), box);
    Type("1");
    Press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Rows(), "10|B\n81|A\n|more\n5|C\n");
    EXPECT_FALSE(box->isVisible());
    for (int i = 0; i < 2; ++i) {
        Press(Qt::Key_F2);
        Press(Qt::Key_Z, Qt::ControlModifier);
    }
    EXPECT_EQ(Rows(), "5|A\n10|B\n|more\n5|C\n") << "nothing was typed that the box could undo";
    Press(Qt::Key_F2);
    Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Rows().substr(0, 5), "81|A\n");
}

TEST_F(TableWindowTest, PutsAReferenceWhereANumberSignIsTyped) {
    GoTo(0, 0);
    Click("btnInsert");
    dialogs.WillConfirm();
    Type("#");
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: In order to display the full reference list, the "
                                     "table must be saved first!"});
    EXPECT_EQ(box->text(), "#");
    dialogs.WillAnswer(Answer::No);
    LoadOrcs();
    dialogs.TakeLog();
    GoTo(0, 1);
    Press(Qt::Key_F2);
    Press(Qt::Key_Home);
    Type("#");
    EXPECT_EQ(box->text(), "A") << "nothing chosen, nothing changed";
    reference = "#sub\\Names{^}3#";
    Type("#");
    EXPECT_EQ(box->text(), "#sub\\Names^3#A");
    EXPECT_EQ(referenceFolder, folder.Path() + "/");
    window.EnableAbort();
    Type("#");
    window.DisableAbort();
    EXPECT_EQ(box->text(), "#sub\\Names^3##A") << "the browser would hold the run up";
}

TEST_F(TableWindowTest, KeepsTheCellOpenWhileAnotherWindowHasTheFocus) {
    LoadOrcs();
    GoTo(0, 1);
    EXPECT_EQ(window.InsertionTarget(), grid);
    Type("xy");
    box->setSelection(2, -1);
    window.Open(form::kSingleList)->findChild<QPushButton*>()->setFocus();
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(box->selectedText(), "y");
    editor->parentWidget()->showMinimized();
    ASSERT_EQ(window.InsertionTarget(), box) << "hidden with its window only";
    box->insert("@1d6@");
    editor->parentWidget()->showNormal();
    editor->Export();
    EXPECT_EQ(Rows().substr(0, 9), "5|x@1d6@\n");
    EXPECT_EQ(window.InsertionTarget(), grid) << "the text box has gone";
    grid->model()->setData(grid->currentIndex(), "a\nb");
    EXPECT_EQ(Rows().substr(0, 6), "5|a b\n");
    EXPECT_TRUE(editor->isWindowModified());
}

TEST_F(TableWindowTest, SavesANewTableWhereItIsTold) {
    Field("txtTitle")->setText("Elves");
    dialogs.WillGive(folder.Path("elves.tbl"));
    Press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(dialogs.TakeLog(),
              Log{"save: Table (*.tbl)|*.tbl|All files (*.*)|*.* at " + folder.Path()});
    EXPECT_EQ(editor->windowTitle(), "Table Editor (..\\elves.tbl)[*]");
    EXPECT_EQ(folder.Read("elves.tbl"), InCodePage("Elves¤0\r\n\r\n"));
}

TEST_F(TableWindowTest, RefusesToSaveWhatWouldBecomeSomethingElse) {
    LoadOrcs();
    GoTo(1, 0);
    Type("abc");
    dialogs.WillConfirm();
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: The table cannot be saved. Row 2 (\"B\") has a "
                                     "frequency that is no number."});
    EXPECT_EQ(folder.Read("orcs.tbl"), kOrcs);
    EXPECT_TRUE(editor->isWindowModified());
    EXPECT_EQ(CurrentCell(), "1,0");
    EXPECT_TRUE(grid->model()->headerData(1, Qt::Vertical, Qt::DecorationRole).isValid());
}

TEST_F(TableWindowTest, KeepsAFileBesideTheNewOneThatSaysLess) {
    const std::string former = InCodePage(";about\nT¤6\n\n3§A\n3§B\n3§B2\n6§C\n");
    folder.Write("old.tbl", former);
    editor->Load(folder.Path("old.tbl"));
    EXPECT_TRUE(editor->findChild<QLabel*>("lblTotal")
                    ->text()
                    .contains("Saving leaves out: comments above the header; the former file stays "
                              "as old.tbl~."));
    dialogs.WillAnswer(Answer::No);
    Click("btnSave");
    EXPECT_EQ(folder.Read("old.tbl"), former);
    dialogs.WillAnswer(Answer::Yes);
    Click("btnSave");
    EXPECT_EQ(folder.Read("old.tbl"), InCodePage("T¤6\r\n\r\n3§A\r\nB\r\nB2\r\n6§C\r\n"));
    EXPECT_EQ(folder.Read("old.tbl~"), former);
    EXPECT_EQ(dialogs.TakeLog().front(),
              "yes or no: Row 2 (\"B\") and 1 more row were entries that no roll picks. With the "
              "weight 0 they become further lines of the entries above. Save the table so?");
    Click("btnSave");
    EXPECT_EQ(folder.Read("old.tbl~"), former) << "the second time nothing is lost";
}

TEST_F(TableWindowTest, RunsTheSavedTableInTheSameListEachTime) {
    LoadOrcs();
    Click("btnRun");
    const QPointer<RecordingWindow> first = list;
    GoTo(0, 0);
    Type("6");
    dialogs.WillAnswer(Answer::Yes);
    Press(Qt::Key_F5);
    const std::string load = "load " + folder.Path("orcs.tbl");
    EXPECT_EQ(first->asked, (Log{load, "run", load, "run"}));
    EXPECT_EQ(folder.Read("orcs.tbl").substr(0, 7), InCodePage("Orcs¤21"));
    delete first->parentWidget();
    Click("btnRun");
    EXPECT_EQ(list->asked, (Log{load, "run"}));
    dialogs.TakeLog();
}

TEST_F(TableWindowTest, FindsAndReplacesInCells) {
    LoadOrcs();
    GoTo(0, 0);
    Press(Qt::Key_H, Qt::ControlModifier);
    Type("o");
    Press(Qt::Key_Return);
    EXPECT_EQ(CurrentCell(), "2,1");
    Field("txtReplaceWith")->setText("0");
    Click("btnReplace");
    Field("txtFind")->setText("0");
    Field("txtReplaceWith")->setText("");
    Click("btnReplaceAll");
    EXPECT_EQ(Rows(), "5|A\n1|B\n|mre\n5|C\n");
    Press(Qt::Key_Escape);
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Rows(), "5|A\n10|B\n|m0re\n5|C\n") << "all at once";
}

}  // namespace
}  // namespace quenloft
