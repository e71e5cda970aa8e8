// What every editor does with text that is not saved, and with files that are not there.
#include <span>

#include "platform/text_encoding.h"
#include "shell/window_kinds.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

struct Editor {
    const char* form;
    const char* box;
    const char* question;
    const char* failure;  ///< What is said before the cause where a file cannot be read.
};

const Editor kEditors[] = {
    {form::kEdit, "txtOut", "Script not saved!\r\nSave script now?", "Errors in table \r\n{}\r\n"},
    {form::kEditTable, "txtTitle", "Table not saved!\r\nSave table now?", "Errors in table {}\r\n"},
    {form::kImportTable, "txtOut", "Do You want to save the text as a table ?",
     "Errors in table {}\r\n"},
    {form::kAuthor, "rtfAuthor", "Data in Author Area is not saved, save now?", ""},
};

/// What takes the text away.
struct WayOut {
    const char* name;
    std::function<void(ChildWindow&)> leave;
    bool closes;
};

const WayOut kWaysOut[] = {
    {"closing it", [](ChildWindow& child) { child.CloseWindow(); }, true},
    {"closing all",
     [](ChildWindow& child) {
         child.window()->findChild<QAction*>("mnuWindow_CloseAll")->trigger();
     },
     true},
    {"another file", [](ChildWindow& child) { child.OpenFile(); }, false},
    {"a new file", [](ChildWindow& child) { child.NewFile(); }, false},
};

class Editors : public WindowsFixture {
  protected:
    Editors() { ShowMainWindow(window); }

    /// Types, and leaves in the end: until then each question is answered so that the text stays.
    void LeaveUnsaved(const Editor& editor, const WayOut& way, bool saves) {
        folder.Write("saved", "");
        const QPointer<ChildWindow> child = window.Open(editor.form);
        QTest::keyClicks(child->findChild<QWidget*>(editor.box), "words");
        const auto leaveBy = [&](Answer answer, const Log& given) {
            dialogs.WillAnswer(answer);
            for (const std::string& text : given) {
                text.empty() ? dialogs.WillCancel() : dialogs.WillGive(text);
            }
            way.leave(*child);
            LetWindowsClose();
            EXPECT_TRUE(dialogs.TakeLog().front().ends_with(editor.question));
        };
        window.Open(form::kDice);
        leaveBy(Answer::Cancel, {});
        ASSERT_TRUE(child && child->isWindowModified());
        if (way.closes) {
            EXPECT_EQ(window.Area().activeSubWindow()->widget(), child.data())
                << "the user sees which it is";
        }
        leaveBy(Answer::Yes, {""});
        ASSERT_TRUE(child && child->isWindowModified()) << "the save dialog was cancelled";
        Log given;
        if (saves) {
            given = {folder.Path("saved")};
            given.insert(given.end(), editor.form == form::kImportTable, "title");
        }
        const bool asksForFile = &way == &kWaysOut[2];
        given.insert(given.end(), asksForFile, "");
        leaveBy(saves ? Answer::Yes : Answer::No, given);
        EXPECT_EQ(child.isNull(), way.closes);
        EXPECT_EQ(saves, !folder.Read("saved").empty());
        if (child) {
            EXPECT_EQ(child->isWindowModified(), asksForFile && !saves);
            child->CloseUnasked();
        }
    }

    frmMain window{Services(), MakeWindowKinds(random)};
};

TEST_F(Editors, NeverLoseTextUnasked) {
    for (const Editor& editor : kEditors) {
        for (const WayOut& way : kWaysOut) {
            if (editor.form == form::kAuthor && &way == &kWaysOut[3]) {
                continue;  // It has no such command.
            }
            for (const bool saves : {false, true}) {
                SCOPED_TRACE(std::string(editor.form) + ", " + way.name + (saves ? ", saved" : ""));
                LeaveUnsaved(editor, way, saves);
            }
        }
    }
}

TEST_F(Editors, AskBeforeANewTextTakesThePlaceOfAFile) {
    const std::string bytes = InCodePage("Title¤1\r\n\r\n1§one\r\n");
    const std::string path = folder.Write("a.tbl", bytes);
    for (const Editor& editor : std::span(kEditors).first(3)) {
        SCOPED_TRACE(editor.form);
        ChildWindow* child = window.Open(editor.form);
        const QString empty = child->windowTitle();
        child->Load(path);
        const QString loaded = child->windowTitle();
        const std::string name = editor.form == form::kEditTable ? "a.tbl" : path;
        for (const Answer answer : {Answer::Cancel, Answer::No}) {
            EXPECT_EQ(child->windowTitle(), loaded);
            dialogs.WillAnswer(answer);
            Click(*child, "btnNew");
            EXPECT_EQ(dialogs.TakeLog(), Log{"yes or no: Do You want to save file " + name + " ?"});
        }
        EXPECT_EQ(child->windowTitle(), empty);
        EXPECT_FALSE(child->isWindowModified());
        if (auto* text = child->findChild<TextBox*>("txtOut")) {
            EXPECT_EQ(text->Text(), "");
            text->undo();
            EXPECT_EQ(ToWindows1252(text->Text()), bytes);
            EXPECT_TRUE(child->isWindowModified());
        }
        EXPECT_EQ(folder.Read("a.tbl"), bytes);
        child->CloseUnasked();
    }
}

TEST_F(Editors, SayWhichFileCannotBeRead) {
    const std::string path = folder.Path("gone.tbl");
    for (const Editor& editor : kEditors) {
        ChildWindow* child = window.Open(editor.form);
        const QString title = child->windowTitle();
        dialogs.WillConfirm();
        child->Load(path);
        std::string words = editor.failure;
        if (!words.empty()) {
            words.replace(words.find("{}"), 2, path);
        }
        EXPECT_EQ(dialogs.TakeLog(), Log{"warning: " + words + "File not found: " + path + "."});
        EXPECT_EQ(child->windowTitle(), title);
    }
}

}  // namespace
}  // namespace quenloft
