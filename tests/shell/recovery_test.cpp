// From typing to the window of the next start, for each editor.
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTextEdit>
#include <QTreeWidget>

#include "shell/child_window.h"
#include "shell/form_names.h"
#include "shell/text_box.h"
#include "tests/support/left_state.h"

namespace quenloft {
namespace {

class RecoveryTest : public WindowsFixture {
  protected:
    Start First() { return {Services(), random, state}; }
    /// The next one after a kill.
    Start Next() { return {Services(), random, StateAfterKill(state, folder.Path("next"))}; }

    static void Type(ChildWindow& editor, const char* box, const QString& text) {
        auto* widget = editor.findChild<QWidget*>(box);
        ASSERT_TRUE(widget) << box;
        QTest::keyClicks(widget, text);
    }
    static void Press(ChildWindow& editor, const char* button) {
        QTest::mouseClick(editor.findChild<QPushButton*>(button), Qt::LeftButton);
    }
    /// Waits until the only kept text is this one.
    bool WaitForText(const std::string& kept) {
        return QTest::qWaitFor([&] {
            const auto files = KeptFiles(state);
            return files.size() == 1 &&
                   folder.Read(files[0].substr(folder.Path().size() + 1)).find(kept) !=
                       std::string::npos;
        });
    }
    static ChildWindow* RestoreOnly(Start& start) {
        EXPECT_EQ(start.recovery.Left().size(), 1U);
        const std::string form = start.recovery.Left().at(0).kept.form;
        start.recovery.Restore(start.recovery.Left().at(0), start.window);
        return start.window.findChild<ChildWindow*>(QString::fromStdString(form));
    }

    const std::string state = folder.Path("state");
    const std::string text = folder.Write("a.spt", "one\r\n");
};

TEST_F(RecoveryTest, EveryEditorGetsItsUnsavedTextBackAndSavesItIntoItsFile) {
    const std::string table = InCodePage("A¤3\r\n\r\n1§one\r\n3§two\r\n");
    const struct {
        const char* form;
        const char* box;
        std::string file;
        std::string bytes;
        std::string saved;  ///< Stands in the file then.
    } cases[] = {
        {form::kEdit, "txtOut", "b.spt", "one\r\n\xB0\r\n", "XYone\r\n\xB0\r\n"},
        {form::kEditTable, "txtTitle", "b.tbl", table, "AXY" + table.substr(1)},
        {form::kImportTable, "txtOut", "b.txt", "one\r\ntwo\r\n",
         InCodePage("T¤3\r\n\r\n1§XYone\r\n2§two")},
        {form::kAuthor, "rtfAuthor", "b.rtf", "{\\rtf1 \\b one}", "XYone"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.form);
        const std::string path = folder.Write(c.file, c.bytes);
        Start first = First();
        ChildWindow* editor = first.window.Open(c.form);
        editor->Load(path);
        EXPECT_FALSE(editor->Unsaved());
        Type(*editor, c.box, "X");
        ASSERT_TRUE(WaitForKept(state, 1));
        Type(*editor, c.box, "Y");
        const std::string kept = editor->Unsaved()->snapshot()();
        ASSERT_TRUE(WaitForText(kept));
        Start next = Next();
        ChildWindow* restored = RestoreOnly(next);
        ASSERT_TRUE(restored);
        EXPECT_TRUE(restored->isWindowModified());
        EXPECT_EQ(restored->Unsaved()->snapshot()(), kept);
        EXPECT_EQ(restored->Unsaved()->path, path);
        if (c.form == form::kImportTable) {
            dialogs.WillGive("T");
        }
        Press(*restored, "btnSave");
        EXPECT_FALSE(restored->isWindowModified());
        EXPECT_NE(folder.Read(c.file).find(c.saved), std::string::npos) << folder.Read(c.file);
        EXPECT_TRUE(WaitForKept(folder.Path("next"), 0));
        dialogs.TakeLog();
        std::filesystem::remove_all(folder.Path("next"));
    }
}

TEST_F(RecoveryTest, CellsOutliveTheirFaultsAndEvenTheirEditing) {
    Start first = First();
    ChildWindow* editor = first.window.Open(form::kEditTable);
    Type(*editor, "txtTitle", "T");
    Press(*editor, "btnInsert");
    Type(*editor, "tbFgEdit", "many\t");
    Type(*editor, "tbFgEdit", "half an ent");
    const std::string cells = "T\n\nmany\nhalf an ent\n";
    ASSERT_EQ(editor->Unsaved()->snapshot()(), cells);
    ASSERT_TRUE(WaitForText(cells));
    Start next = Next();
    EXPECT_EQ(RestoreOnly(next)->Unsaved()->snapshot()(), cells);
}

TEST_F(RecoveryTest, AFileChangedSinceIsAskedAboutBeforeItIsSavedOver) {
    Start first = First();
    ChildWindow* editor = first.window.Open(form::kEdit);
    editor->Load(text);
    Type(*editor, "txtOut", "X");
    ASSERT_TRUE(WaitForKept(state, 1));
    Start next = Next();
    folder.Write("a.spt", "other\r\n");
    ChildWindow* restored = RestoreOnly(next);
    dialogs.WillAnswer(Answer::No);
    Press(*restored, "btnSave");
    EXPECT_EQ(dialogs.TakeLog(), Log{"yes or no: The file " + text +
                                     " was changed by another program since it was read. Save over "
                                     "these changes?"});
    std::filesystem::remove(text);
    Press(*restored, "btnSave");
    EXPECT_EQ(folder.Read("a.spt"), "Xone\r\n");
}

TEST_F(RecoveryTest, NothingIsKeptOfWhatWasSavedUndoneOrClosed) {
    const std::function<void(ChildWindow&)> ends[] = {
        [](ChildWindow& editor) { Press(editor, "btnSave"); },
        [](ChildWindow& editor) {
            QTest::keyClick(editor.findChild<QWidget*>("txtOut"), Qt::Key_Z, Qt::ControlModifier);
        },
        [this](ChildWindow& editor) {
            dialogs.WillAnswer(Answer::No);
            editor.CloseWindow();
        }};
    for (const auto& end : ends) {
        Start first = First();
        ChildWindow* editor = first.window.Open(form::kEdit);
        editor->Load(text);
        Type(*editor, "txtOut", "X");
        ASSERT_TRUE(WaitForKept(state, 1));
        dialogs.WillAnswer(Answer::Cancel);
        editor->CloseWindow();
        first.recovery.Wait();
        EXPECT_EQ(KeptFiles(state).size(), 1U) << "nothing was decided";
        end(*editor);
        EXPECT_TRUE(WaitForKept(state, 0));
    }
    dialogs.TakeLog();
}

TEST_F(RecoveryTest, TheFormerTextGoesOnlyWhenTheRestoredOneIsKept) {
    {
        Start first = First();
        Type(*first.window.Open(form::kEdit), "txtOut", "new");
        ASSERT_TRUE(WaitForKept(state, 1));
        StateAfterKill(state, folder.Path("next"));
    }
    Recovery recovery(folder.Path("next"), dialogs);
    frmMain window(Services(), MakeWindowKinds(random, &recovery));
    recovery.Restore(recovery.Left()[0], window);  // Nothing watches yet.
    EXPECT_EQ(KeptFiles(folder.Path("next")).size(), 1U);
    EXPECT_TRUE(recovery.Left().empty());
}

TEST_F(RecoveryTest, TellsOnceThatNothingCanBeKept) {
    folder.Write("state", "a file in the way");
    Start first = First();
    dialogs.WillConfirm();
    ChildWindow* editor = first.window.Open(form::kEdit);
    Type(*editor, "txtOut", "a");
    Log log;
    ASSERT_TRUE(QTest::qWaitFor([&] {
        log = dialogs.TakeLog();
        return !log.empty();
    }));
    EXPECT_EQ(log, Log{"warning: Unsaved texts cannot be kept for the time after a crash. " +
                       folder.Path("state/unsaved") +
                       " could not be saved: Not a directory.\r\nSave often until that is mended; "
                       "this is not told again."});
    Type(*editor, "txtOut", "b");
    first.recovery.Wait();
    QCoreApplication::processEvents();
    EXPECT_EQ(dialogs.TakeLog(), Log{});
    std::filesystem::remove(folder.Path("state"));
    EXPECT_TRUE(WaitForKept(folder.Path("state"), 1)) << "without another letter";
}

class RecoveryWindowTest : public RecoveryTest {
  protected:
    /// Two texts are left: of a.spt, and one that was never saved.
    RecoveryWindowTest() {
        Start first = First();
        Type(*first.window.Open(form::kEdit), "txtOut", "never");
        EXPECT_TRUE(WaitForKept(state, 1));
        ChildWindow* editor = first.window.Open(form::kEdit);
        editor->Load(text);
        Type(*editor, "txtOut", "X");
        EXPECT_TRUE(WaitForKept(state, 2));
        next.emplace(Services(), random, StateAfterKill(state, folder.Path("next")));
        form = next->window.Open(form::kRecovery);
        list = form->findChild<QTreeWidget*>("lvwTexts");
        for (int row = 0; row < list->topLevelItemCount(); ++row) {
            if (list->topLevelItem(row)->text(0) == "a.spt") {
                list->setCurrentItem(list->topLevelItem(row));
            }
        }
    }
    std::size_t Editors() { return next->window.findChildren<ChildWindow*>("frmEdit").size(); }

    std::optional<Start> next;
    QPointer<ChildWindow> form;
    QTreeWidget* list = nullptr;
};

TEST_F(RecoveryWindowTest, ListsComparesAndRestores) {
    const QTreeWidgetItem& item = *list->currentItem();
    EXPECT_EQ(item.text(1), "Text");
    EXPECT_EQ(item.text(3), "unchanged");
    EXPECT_EQ(item.text(4), "Xone");
    EXPECT_EQ(item.text(5).toStdString(), folder.Path());
    auto* box = form->findChild<TextBox*>("txtDifference");
    EXPECT_TRUE(box->isHidden());
    Press(*form, "btnCompare");
    EXPECT_FALSE(box->isHidden());
    EXPECT_EQ(box->Text(), "- only in the file " + text +
                               "\r\n+ only in the unsaved text\r\n\r\n- one\r\n+ Xone");
    Press(*form, "btnRestore");
    EXPECT_EQ(list->topLevelItemCount(), 1);
    EXPECT_EQ(list->topLevelItem(0)->text(0), "(never saved)");
    Press(*form, "btnRestoreAll");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(form) << "it has nothing more to offer";
    EXPECT_EQ(Editors(), 2U);
    next->recovery.Wait();
    EXPECT_EQ(KeptFiles(folder.Path("next")).size(), 2U);
}

TEST_F(RecoveryWindowTest, DiscardsWhenToldTwiceAndKeepsTheRest) {
    dialogs.WillAnswer(Answer::No);
    Press(*form, "btnDiscard");
    EXPECT_EQ(list->topLevelItemCount(), 2);
    dialogs.WillAnswer(Answer::Yes);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(list->topLevelItemCount(), 1);
    const std::string question = dialogs.TakeLog().back();
    EXPECT_TRUE(question.starts_with("yes or no: Do You want to discard the unsaved text of " +
                                     text + ", kept "));
    form->CloseWindow();
    EXPECT_EQ(KeptFiles(folder.Path("next")).size(), 1U);
    EXPECT_EQ(Editors(), 0U);
}

}  // namespace
}  // namespace quenloft
