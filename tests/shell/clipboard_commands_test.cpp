#include "shell/clipboard_commands.h"

#include "tests/support/recording_window.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class ClipboardCommandsTest : public WindowsFixture {
  protected:
    ClipboardCommandsTest() { ShowMainWindow(window); }

    RecordingWindow& Open(const char* formName) {
        next = formName;
        auto* child = static_cast<RecordingWindow*>(window.Open(form::kScript));
        child->setObjectName(formName);
        return *child;
    }
    /// `text` with "[" and "]" around the selection.
    static void Fill(QPlainTextEdit& box, QString text) {
        const auto from = static_cast<int>(text.indexOf('['));
        const auto to = static_cast<int>(text.indexOf(']')) - 1;
        box.setPlainText(text.remove('[').remove(']'));
        QTextCursor cursor = box.textCursor();
        cursor.setPosition(qMax(0, from));
        cursor.setPosition(qMax(0, to), QTextCursor::KeepAnchor);
        box.setTextCursor(cursor);
        box.setFocus();
    }

    const char* next = "";
    frmMain window{Services(), {{form::kScript, Instances::Many, [this](Workspace& workspace) {
                                     return new RecordingWindow(workspace, next);
                                 }}}};
};

TEST_F(ClipboardCommandsTest, TextBoxesActOnTheSelectionOrOnTheWholeText) {
    RecordingWindow& child = Open(form::kScript);
    const struct {
        const char *command, *box, *clipboardBefore, *boxAfter, *clipboardAfter;
    } cases[] = {
        {"mnuEdit_Copy", "one [two] three", "", "one two three", "two"},
        {"mnuEdit_Copy", "one\ntwo", "", "one\ntwo", "one\r\ntwo"},
        {"mnuEdit_Cut", "one [two] three", "", "one  three", "two"},
        {"mnuEdit_Cut", "one two", "", "", "one two"},
        {"mnuEdit_Paste", "one [two] three", "2", "one 2 three", "2"},
        {"mnuEdit_Paste", "one [] three", "two\n", "one two\n three", "two\n"},
    };
    for (const auto& c : cases) {
        Fill(*child.txtOut, c.box);
        clipboard.text = c.clipboardBefore;
        Choose(window, c.command);
        EXPECT_EQ(child.txtOut->toPlainText(), c.boxAfter) << c.command << " on " << c.box;
        EXPECT_EQ(clipboard.text, c.clipboardAfter) << c.command << " on " << c.box;
    }
    EXPECT_TRUE(child.asked.empty()) << "only the table editor has commands of its own";
}

TEST_F(ClipboardCommandsTest, ALineOfTextFollowsTheSameRules) {
    auto* line = new QLineEdit("one two", &Open(form::kScript));
    line->show();
    line->setFocus();
    Choose(window, "mnuEdit_Cut");
    EXPECT_EQ(clipboard.text + line->text().toStdString(), "one two");
    clipboard.text = "a\nb";
    Choose(window, "mnuEdit_Paste");
    line->setReadOnly(true);
    Choose(window, "mnuEdit_Cut");
    EXPECT_EQ(line->text(), "a b");
}

TEST_F(ClipboardCommandsTest, KeysDoWhatTheMenuDoes) {
    RecordingWindow& child = Open(form::kScript);
    Fill(*child.txtOut, "all of it");
    QTest::keyClick(child.txtOut, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard.text, "all of it");
    QTest::keyClick(child.txtOut, Qt::Key_X, Qt::ControlModifier);
    QTest::keyClick(child.txtOut, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(child.txtOut->toPlainText(), "all of it") << "pasted twice, or not at all";
}

TEST_F(ClipboardCommandsTest, TheTableEditorDoesItsOwnPartAfterTheTextBox) {
    RecordingWindow& child = Open(form::kEditTable);
    Fill(*child.txtOut, "title");
    Choose(window, "mnuEdit_Copy");
    EXPECT_EQ(clipboard.text, "title");
    child.button->setFocus();
    Choose(window, "mnuEdit_Cut");
    Choose(window, "mnuEdit_Paste");
    EXPECT_EQ(child.asked, (Log{"copy", "cut", "paste"}));
}

TEST_F(ClipboardCommandsTest, ResultsAreCopiedWhereNoTextBoxHasTheFocus) {
    RecordingWindow& child = Open(form::kDice);
    Fill(*child.txtOut, "6");
    child.exported = "1D6  = 6\r\n1D6  = 2";
    Choose(window, "mnuEdit_Copy");
    EXPECT_EQ(clipboard.text, "6");
    child.button->setFocus();
    Choose(window, "mnuEdit_Copy");
    child.exported.clear();
    Choose(window, "mnuEdit_Copy");
    EXPECT_EQ(clipboard.text, "1D6  = 6\r\n1D6  = 2") << "no results are nothing to copy";
}

}  // namespace
}  // namespace quenloft
