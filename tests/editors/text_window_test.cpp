// The text editor, with runners that record.
#include "editors/text/text_window.h"

#include <QInputMethodEvent>
#include <QMenu>
#include <QTextBlock>

#include "editors/text/code_box.h"
#include "editors/text/text_search.h"
#include "tests/support/recording_window.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class TextEditorTest : public WindowsFixture {
  protected:
    TextEditorTest() { ShowMainWindow(window); }

    std::vector<WindowKind> Kinds() {
        const auto choose = [this](Workspace&, const std::string& from, QWidget*) {
            chosenFrom.push_back(from);
            return reference;
        };
        return {{form::kEdit, Instances::Many,
                 [choose](Workspace& workspace) { return new frmEdit(workspace, choose); }},
                Recorder(form::kScript, runner),
                Recorder(form::kSingleList, runner)};
    }
    ChildWindow* Load(const std::string& name, const std::string& bytes) {
        folder.Write(name, bytes);
        ChildWindow* editor = window.Open(form::kEdit);
        editor->Load(folder.Path(name));
        return editor;
    }
    static CodeBox& Box(const ChildWindow* editor) { return *editor->findChild<CodeBox*>(); }
    static std::string Text(const ChildWindow* editor) { return Box(editor).Lines(); }
    static void Type(const ChildWindow* editor, const QString& text) {
        QTest::keyClicks(&Box(editor), text);
    }
    static void Click(const ChildWindow* editor, const char* button) {
        WindowsFixture::Click(*editor, button);
    }
    static std::string CaretLine(const ChildWindow* editor) {
        return editor->findChild<QLabel*>("lblCursorAtLine")->text().toStdString();
    }
    std::string Title(const ChildWindow* editor) {
        return editor->windowTitle().toStdString() + (editor->isWindowModified() ? " changed" : "");
    }

    std::string reference;
    std::vector<std::string> chosenFrom;
    QPointer<RecordingWindow> runner;
    frmMain window{Services(), Kinds()};
};

TEST_F(TextEditorTest, OpeningAndSavingChangesNoByte) {
    std::string allBytes = "\xEF\xBB\xBFmark\r\n\xE2\x80\xA9 \xEF\xB7\x90\xC2\xA0\n";
    for (int c = 0; c < 256; ++c) {
        allBytes += static_cast<char>(c);
    }
    for (const std::string& bytes : {std::string(), std::string(10'000, ' '), allBytes}) {
        ChildWindow* editor = Load("a.tbl", bytes);
        Click(editor, "btnSave");
        EXPECT_EQ(folder.Read("a.tbl"), bytes);
        editor->CloseUnasked();
        LetWindowsClose();
    }
}

TEST_F(TextEditorTest, ShowsFileChangesAndTheLineWhereTheSelectionEnds) {
    ChildWindow* editor = Load("a[*] & b.spt", "one\r\n" + std::string(9000, 'x') + "\r\nthree");
    const std::string caption = "Table & Script Editor ..\\" + folder.Path("a[*][*] & b.spt[*]");
    QTest::keyClick(&Box(editor), Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(CaretLine(editor), "3");
    Type(editor, "!");
    EXPECT_EQ(Title(editor), caption + " changed");
    Box(editor).undo();
    EXPECT_EQ(Title(editor), caption) << "undone back to what is saved";
    QTest::keyClick(&Box(editor), Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(CaretLine(editor), "3");
    auto* windows = window.findChild<QMenu*>("mnuWindow");
    emit windows->aboutToShow();
    EXPECT_EQ(windows->actions().last()->text().toStdString(),
              "&1 Table && Script Editor ..\\" + folder.Path("a[*] && b.spt"));
}

TEST_F(TextEditorTest, SavesWhereItIsToldAndKeepsWhatItCannotSave) {
    ChildWindow* editor = window.Open(form::kEdit);
    Type(editor, "a");
    dialogs.WillCancel();
    QTest::keyClick(&Box(editor), Qt::Key_S, Qt::ControlModifier);
    dialogs.WillGive(folder.Path("missing/a.spt"));
    dialogs.WillConfirm();
    Click(editor, "btnSave");
    EXPECT_EQ(Title(editor), "Table & Script Editor[*] changed");
    dialogs.WillGive(folder.Path("a.tbl"));
    Click(editor, "btnSaveAs");
    QTest::keyClick(&Box(editor), Qt::Key_Return);
    Click(editor, "btnSave");
    EXPECT_EQ(folder.Read("a.tbl"), "a\r\n");
    dialogs.WillCancel();
    QTest::keyClick(&Box(editor), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    const std::string filter = "save: Scripts(*.spt)|*.spt|Table(*.tbl)|*.tbl|All files(*.*)|*.*";
    const std::string anew = filter + " at " + folder.Path();
    EXPECT_EQ(dialogs.TakeLog(),
              (Log{anew, anew, "warning: Path not found: " + folder.Path("missing/a.spt") + ".",
                   anew, filter + " from 2 at " + folder.Path("a.tbl")}));
}

TEST_F(TextEditorTest, SavesAgainOnceWhatWasInTheWayIsGone) {
    ChildWindow* editor = Load("medium/a.spt", "old");
    const std::string path = folder.Path("medium/a.spt");
    Type(editor, "x");
    dialogs.WillConfirmEveryMessage();
    std::filesystem::rename(folder.Path("medium"), folder.Path("pocket"));
    Click(editor, "btnSave");
    std::filesystem::create_directories(path);
    Click(editor, "btnSave");
    EXPECT_EQ(dialogs.TakeLog(), (Log{"warning: Path not found: " + path + ".",
                                      "warning: " + path + " is a folder."}));
    EXPECT_TRUE(editor->isWindowModified());
    std::filesystem::remove_all(folder.Path("medium"));
    std::filesystem::rename(folder.Path("pocket"), folder.Path("medium"));
    Click(editor, "btnSave");
    EXPECT_FALSE(editor->isWindowModified());
    EXPECT_EQ(folder.Read("medium/a.spt"), "xold");
}

TEST_F(TextEditorTest, DeletesTheFileAndKeepsTheText) {
    ChildWindow* editor = Load("a.spt", "text");
    Type(editor, "x");
    dialogs.WillAnswer(Answer::No);
    Click(editor, "btnDelete");
    EXPECT_EQ(folder.Read("a.spt"), "text");
    dialogs.WillAnswer(Answer::Yes);
    Click(editor, "btnDelete");
    EXPECT_EQ(dialogs.TakeLog(),
              Log(2, "yes or no: Do You really want to delete " + folder.Path("a.spt") + " ?"));
    EXPECT_EQ(desktop.trashed, Log{folder.Path("a.spt")});
    EXPECT_FALSE(files.FileExists("a.spt"));
    EXPECT_EQ(Text(editor) + Title(editor), "xtextTable & Script Editor[*] changed");
    EXPECT_FALSE(editor->findChild<QPushButton*>("btnDelete")->isEnabled());
    Box(editor).undo();
    EXPECT_EQ(Title(editor), "Table & Script Editor[*] changed")
        << "as the file was, which is gone";
    editor->CloseUnasked();
}

TEST_F(TextEditorTest, ATypedNumberSignOpensTheBrowser) {
    ChildWindow* editor = window.Open(form::kEdit);
    dialogs.WillConfirm();
    Type(editor, "#");
    EXPECT_EQ(Text(editor), "#");
    EXPECT_EQ(dialogs.TakeLog(),
              Log{"warning: In order to display the full resource list, the script must be saved "
                  "first!"});
    dialogs.WillGive(folder.Path("lib.spt"));
    Click(editor, "btnSave");
    Type(editor, "#");
    EXPECT_EQ(Text(editor), "#") << "cancelled";
    reference = "#{~}Orcs{^}2#";
    QKeyEvent otherLayout(QEvent::KeyPress, Qt::Key_NumberSign, Qt::GroupSwitchModifier, "#");
    QCoreApplication::sendEvent(&Box(editor), &otherLayout);
    EXPECT_EQ(Text(editor), "##~Orcs^2#");
    Box(editor).undo();
    QInputMethodEvent composed;
    composed.setCommitString("#");
    QCoreApplication::sendEvent(&Box(editor), &composed);
    EXPECT_EQ(Text(editor), "##~Orcs^2#");
    clipboard.text = "#pasted#";
    Choose(window, "mnuEdit_Paste");
    EXPECT_EQ(Text(editor), "##~Orcs^2##pasted#");
    EXPECT_EQ(chosenFrom, Log(3, folder.Path() + "/")) << "what is not typed opens nothing";
    editor->CloseUnasked();
    dialogs.TakeLog();
}

TEST_F(TextEditorTest, RunsTheSavedFileInOneWindow) {
    ChildWindow* editor = Load("a.spt", "text");
    QTest::keyClick(&Box(editor), Qt::Key_F5);
    const QPointer<RecordingWindow> first = runner;
    ASSERT_TRUE(first);
    for (const Answer answer : {Answer::Cancel, Answer::No, Answer::Yes}) {
        Type(editor, "x");
        dialogs.WillAnswer(answer);
        Click(editor, "btnRun");
    }
    const std::string load = "load " + folder.Path("a.spt");
    EXPECT_EQ(first->asked, (Log{load, "run", load, "run", load, "run"}));
    EXPECT_EQ(folder.Read("a.spt"), "xxxtext");
    first->CloseWindow();
    LetWindowsClose();
    Click(editor, "btnRun");
    EXPECT_TRUE(runner) << "a new one, since the first was closed";
    dialogs.TakeLog();
}

TEST_F(TextEditorTest, TablesRunInASingleListAndTheWindowMayCloseMeanwhile) {
    const QPointer<ChildWindow> editor = Load("b.tbl", "T\xA4");
    Click(editor, "btnRun");
    EXPECT_EQ(runner->FormName(), form::kSingleList);
    runner->onRun = [&] {
        editor->CloseWindow();
        LetWindowsClose();
        delete editor;
    };
    editor->Run();
    EXPECT_FALSE(editor);
}

TEST_F(TextEditorTest, MarksTheLineThatARunReportsUntilItIsChanged) {
    ChildWindow* editor = Load("a.spt", std::string(9000, 'x') + "\ntwo\nthree\nfour");
    Click(editor, "btnRun");
    runner->exported = "Errors in script \r\n" + folder.LibraryPath("a.spt") +
                       "\r\nLine :3\r\nError description :Overflow\r\nCurrent Directory :Z:\\";
    auto* report = editor->findChild<QLabel*>("lblReport");
    Click(editor, "btnRun");
    EXPECT_EQ(report->text(), "Line 3: Overflow");
    EXPECT_EQ(Box(editor).textCursor().block().text(), "three");
    EXPECT_EQ(Box(editor).extraSelections().size(), 2);
    QTest::keyClick(&Box(editor), Qt::Key_Up);
    Type(editor, "x");
    EXPECT_TRUE(report->isVisible());
    QTest::keyClick(&Box(editor), Qt::Key_Down);
    Type(editor, "x");
    EXPECT_FALSE(report->isVisible());
    EXPECT_EQ(Box(editor).extraSelections().size(), 1);
    editor->CloseUnasked();
}

TEST_F(TextEditorTest, AFileIsEditedInOneWindow) {
    ChildWindow* editor = Load("a.spt", "text");
    const QPointer<ChildWindow> second = window.Open(form::kEdit);
    second->Load(folder.LibraryPath("A.SPT"));
    LetWindowsClose();
    EXPECT_FALSE(second);
    EXPECT_EQ(window.findChild<QMdiArea*>()->currentSubWindow()->widget(), editor);
}

TEST_F(TextEditorTest, ExportsTextAndFooter) {
    EXPECT_EQ(WithoutTime(Load("a.spt", "one\ntwo\n")->Export()),
              "one\r\ntwo\r\n\r\n\r\nFilename : a.spt" + FooterOfToday());
}

TEST_F(TextEditorTest, TakesInsertedTextAndLetsTheKeyboardOut) {
    ChildWindow* editor = Load("a.spt", "text");
    Box(editor).setFocus();
    EXPECT_EQ(window.InsertionTarget(), &Box(editor));
    QTest::keyClick(&Box(editor), Qt::Key_Tab);
    QTest::keyClick(&Box(editor), Qt::Key_Backtab);
    EXPECT_FALSE(Box(editor).hasFocus());
    EXPECT_EQ(Text(editor), "\ttext");
    editor->CloseUnasked();
}

TEST_F(TextEditorTest, ColoursWhatIsSeenAndFollowsChangesAbove) {
    ChildWindow* editor = Load("a.tbl", InCodePage("T¤1\n\n1§see #or\ncs# there"));
    CodeBox& box = Box(editor);
    const auto formats = [&box](int line) {
        box.grab();
        QString spans;
        for (const auto& range : box.document()->findBlockByNumber(line).layout()->formats()) {
            spans += QString("%1+%2 ").arg(range.start).arg(range.length);
        }
        return spans.toStdString();
    };
    EXPECT_EQ(formats(0), "0+1 1+1 2+1 ");
    EXPECT_EQ(formats(3), "0+3 ");
    QTextCursor cursor(box.document()->findBlockByNumber(2));
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertText("#");
    EXPECT_EQ(formats(3), "2+1 ") << "its mark has lost its partner";
    box.undo();
    EXPECT_FALSE(editor->isWindowModified()) << "colours are no change";
    EXPECT_EQ(formats(3), "0+3 ");
    cursor.setPosition(0);
    cursor.insertText(QString("; a comment\n").repeated(150));
    box.setTextCursor(cursor);
    EXPECT_EQ(formats(150), "0+1 1+1 2+1 ") << "the header is below any comment";
    editor->CloseUnasked();
}

TEST(CodeColoursTest, CanBeReadOnAnyBackground) {
    for (const QRgb background : {0xFFFFFF, 0x1E1E1E, 0x000000, 0x808080, 0x204060, 0xFDF6E3}) {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(background));
        palette.setColor(QPalette::Text, ReadableOn(QColor(background), QColor(background)));
        const CodeColours colours(palette);
        for (int token = 1; token <= static_cast<int>(Token::Lonely); ++token) {
            const QColor colour = colours.FormatOf(static_cast<Token>(token)).foreground().color();
            for (const QColor& line : {colours.CaretLine(), colours.MarkedLine()}) {
                EXPECT_GE(Contrast(line, colour), 4.5) << token << " " << background;
            }
        }
    }
}

class TextSearchTest : public testing::Test {
  protected:
    /// The selection after each of `times` searches, in the line's own places.
    std::vector<int> Find(const SearchRequest& request, int times) {
        std::vector<int> places;
        for (int i = 0; i < times && search.FindNext(request); ++i) {
            places.push_back(box.textCursor().selectionStart());
        }
        return places;
    }

    TextBox box;
    TextSearch search{box};
};

TEST_F(TextSearchTest, FindsForwardsAndBackwardsRoundTheEnd) {
    box.SetText("Orc orc\r\nelf orc");
    EXPECT_EQ(Find({"orc"}, 4), (std::vector<int>{0, 4, 12, 0}));
    EXPECT_EQ(Find({"orc", false, true}, 3), (std::vector<int>{12, 4, 0}));
    EXPECT_EQ(Find({"orc", true}, 3), (std::vector<int>{4, 12, 4}));
    EXPECT_EQ(Find({"troll"}, 1), std::vector<int>());
    EXPECT_EQ(search.SelectedLine(), "orc");
}

TEST_F(TextSearchTest, ReplacesAllAsOneStepAcrossTheBreaksOfLongLines) {
    const QString text = QString(4094, 'x') + "orc" + QString(4094, 'y') + "orc";
    box.SetText(text.toStdString());
    EXPECT_EQ(search.ReplaceAll({"ORC"}, "elf orc"), 2);
    EXPECT_EQ(box.Text(), QString(text).replace("orc", "elf orc").toStdString());
    box.undo();
    EXPECT_EQ(box.Text(), text.toStdString());
    EXPECT_TRUE(search.FindNext({"orc"}));
    search.ReplaceSelected({"orc"}, "");
    EXPECT_EQ(box.Text(), QString(text).remove(4094, 3).toStdString());
    search.ReplaceSelected({"orc"}, "z");
    EXPECT_EQ(box.Text(), QString(text).remove(4094, 3).toStdString()) << "nothing is selected";
}

}  // namespace
}  // namespace quenloft
