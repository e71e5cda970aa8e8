// An hour's worth of clicks: what the program takes from the machine, it gives back.
//
//   QUENLOFT_LONG_USE=100 endurance_tests --gtest_filter='LongUse.*'
//
// does a hundred times as much: 100,000 rolls, 1,000 windows of each kind, 1,000 saves of each
// editor.
#include <QAbstractButton>
#include <filesystem>
#include <fstream>
#include <malloc.h>

#include "shell/child_window.h"
#include "shell/form_names.h"
#include "shell/window_kinds.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

std::size_t OpenFiles() {
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

/// Bytes of the heap in use: what a leak adds to, and no other process can change. Always 0 under
/// the sanitizers, which have a heap and a look-out for leaks of their own.
std::size_t MemoryInUse() { return mallinfo2().uordblks; }

class LongUse : public WindowsFixture {
  protected:
    LongUse() {
        folder.Write("a.tbl", InCodePage("A¤2\r\n1§#b^3#\r\n2§@2d6@ and #b#\r\n"));
        folder.Write("b.tbl", InCodePage("B¤2\r\n1§one\r\n2§two\r\n"));
        ShowMainWindow(window);
    }
    /// Does `work` until nothing new is learned any more, then often.
    template <typename Work>
    void Repeat(int times, Work work) {
        const int much = qEnvironmentVariableIntValue("QUENLOFT_LONG_USE");
        for (int i = 0; i < times; ++i) {
            work();
        }
        const std::size_t files = OpenFiles();
        const std::size_t memory = MemoryInUse();
        for (int i = 0; i < times * std::max(much, 1); ++i) {
            work();
        }
        EXPECT_EQ(OpenFiles(), files);
        EXPECT_LE(static_cast<double>(MemoryInUse()), static_cast<double>(memory) * 1.05);
    }

    frmMain window{Services(), MakeWindowKinds(random)};
};

TEST_F(LongUse, RollsLeaveNothingBehind) {
    ChildWindow* list = window.Open(form::kSingleList);
    list->Load(folder.Path("a.tbl"));
    Repeat(1000, [list] { list->Run(); });
}

TEST_F(LongUse, WindowsLeaveNothingBehind) {
    Repeat(10, [this] {
        for (const WindowKind& kind : MakeWindowKinds(random)) {
            window.Open(kind.formName)->CloseUnasked();
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    });
}

TEST_F(LongUse, SavesLeaveNothingBehind) {
    struct Document {
        const char* form;
        const char* box;
        std::string path;
    };
    const Document documents[] = {
        {form::kEditTable, "txtTitle", folder.Path("a.tbl")},
        {form::kEdit, "txtOut", folder.Write("s.spt", "A line\r\n")},
        {form::kAuthor, "rtfAuthor", folder.Write("notes.rtf", "{\\rtf1 Notes}")},
    };
    for (const Document& document : documents) {
        window.Open(document.form);
    }
    Repeat(10, [&] {
        for (const Document& document : documents) {
            ChildWindow* editor = window.findChild<ChildWindow*>(document.form);
            editor->Load(document.path);
            QTest::keyClick(editor->findChild<QWidget*>(document.box), Qt::Key_A);
            editor->findChild<QAbstractButton*>("btnSave")->click();
            ASSERT_FALSE(editor->isWindowModified()) << document.path;
        }
        QCoreApplication::processEvents();
    });
    EXPECT_TRUE(folder.Read("a.tbl").starts_with("Aaaaa"));
}

}  // namespace
}  // namespace quenloft
