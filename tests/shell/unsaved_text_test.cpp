// What every editor does with text that is not saved, and with files that are not there.
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

class Editors : public WindowsFixture {
  protected:
    Editors() { ShowMainWindow(window); }

    /// Types, and leaves in the end: until then each question is answered so that the text stays.
    void LeaveUnsaved(const Editor& editor, const std::function<void(ChildWindow*)>& leave,
                      bool opens, bool saves) {
        folder.Write("saved", "");
        const QPointer<ChildWindow> child = window.Open(editor.form);
        QTest::keyClicks(child->findChild<QWidget*>(editor.box), "words");
        const auto leaveBy = [&](Answer answer, const std::vector<std::string>& given) {
            dialogs.WillAnswer(answer);
            for (const std::string& text : given) {
                text.empty() ? dialogs.WillCancel() : dialogs.WillGive(text);
            }
            leave(child);
            LetWindowsClose();
            EXPECT_TRUE(dialogs.TakeLog().front().ends_with(editor.question));
        };
        leaveBy(Answer::Cancel, {});
        ASSERT_TRUE(child && child->isWindowModified());
        leaveBy(Answer::Yes, {""});
        ASSERT_TRUE(child && child->isWindowModified()) << "the save dialog was cancelled";
        std::vector<std::string> given;
        if (saves) {
            given = {folder.Path("saved")};
            given.insert(given.end(), editor.form == form::kImportTable, "title");
        }
        given.insert(given.end(), opens, "");
        leaveBy(saves ? Answer::Yes : Answer::No, given);
        EXPECT_EQ(child.isNull(), !opens);
        EXPECT_TRUE(!opens || child->isWindowModified() != saves) << "nothing was opened";
        EXPECT_EQ(saves, !folder.Read("saved").empty());
        if (child) {
            child->CloseUnasked();
        }
    }

    frmMain window{Services(), MakeWindowKinds(random)};
};

TEST_F(Editors, NeverLoseTextUnasked) {
    const std::function<void(ChildWindow*)> waysOut[] = {
        [](ChildWindow* child) { child->CloseWindow(); },
        [this](ChildWindow*) { window.CloseAll(); }, [](ChildWindow* child) { child->OpenFile(); }};
    for (const Editor& editor : kEditors) {
        for (const auto& leave : waysOut) {
            for (const bool saves : {false, true}) {
                SCOPED_TRACE(std::string(editor.form) + ", way " +
                             std::to_string(&leave - waysOut) + (saves ? ", saved" : ""));
                LeaveUnsaved(editor, leave, &leave == &waysOut[2], saves);
            }
        }
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
