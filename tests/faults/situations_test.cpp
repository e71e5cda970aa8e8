// What happens to the folders of real users while a text stands unsaved in an editor.
#include <QPushButton>
#include <csignal>
#include <filesystem>
#include <functional>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "editors/text/code_box.h"
#include "platform/linux/atomic_file.h"
#include "shell/child_window.h"
#include "shell/form_names.h"
#include "shell/window_kinds.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

namespace fs = std::filesystem;

class Situations : public WindowsFixture {
  protected:
    Situations() {
        dialogs.WillConfirmEveryMessage();
        ShowMainWindow(window);
        folder.Write("medium/a.spt", "old");
    }
    /// The text cannot be saved after `occur`, which the user is told with `cause`, and can again
    /// after `pass`.
    void SaveWhile(const std::function<void()>& occur, const std::string& cause,
                   const std::function<void()>& pass) {
        ChildWindow* editor = window.Open(form::kEdit);
        editor->Load(path);
        editor->findChild<CodeBox*>()->insertPlainText(QString(kLarge, u'n'));
        occur();
        editor->findChild<QPushButton*>("btnSave")->click();
        EXPECT_EQ(dialogs.TakeLog(), std::vector<std::string>{"warning: " + cause + "."});
        EXPECT_TRUE(editor->isWindowModified());
        pass();
        editor->findChild<QPushButton*>("btnSave")->click();
        EXPECT_EQ(dialogs.TakeLog(), std::vector<std::string>());
        EXPECT_FALSE(editor->isWindowModified());
        EXPECT_EQ(folder.Read("medium/a.spt"), std::string(kLarge, 'n') + "old");
    }

    static constexpr int kLarge = 200'000;
    const std::string path = folder.Path("medium/a.spt");
    frmMain window{Services(), MakeWindowKinds(random)};
};

TEST_F(Situations, AFileBecameAFolder) {
    SaveWhile(
        [this] {
            fs::remove(path);
            fs::create_directory(path);
        },
        path + " is a folder", [this] { fs::remove(path); });
}

TEST_F(Situations, AMediumWasTakenAway) {
    SaveWhile([this] { fs::rename(folder.Path("medium"), folder.Path("pocket")); },
              "Path not found: " + path,
              [this] { fs::rename(folder.Path("pocket"), folder.Path("medium")); });
}

TEST_F(Situations, AFileMayGrowNoFurther) {
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    SaveWhile(
        [&old] {
            const rlimit small{kLarge / 2, old.rlim_max};
            setrlimit(RLIMIT_FSIZE, &small);
        },
        path + " could not be saved: File too large", [&old] { setrlimit(RLIMIT_FSIZE, &old); });
    std::signal(SIGXFSZ, handler);
}

TEST_F(Situations, ADiskIsFull) {
    const std::string medium = folder.Path("medium");
    if (mount("tmpfs", medium.c_str(), "tmpfs", 0, "size=64k") != 0) {
        GTEST_SKIP() << "no disk can be mounted here";
    }
    folder.Write("medium/a.spt", "old");
    SaveWhile([] {}, path + " could not be saved: No space left on device",
              [&medium] { mount("tmpfs", medium.c_str(), "tmpfs", MS_REMOUNT, "size=1m"); });
    umount2(medium.c_str(), MNT_DETACH);
}

TEST_F(Situations, ADiskBecameReadOnly) {
    const std::string medium = folder.Path("medium");
    if (mount("tmpfs", medium.c_str(), "tmpfs", 0, "size=1m") != 0) {
        GTEST_SKIP() << "no disk can be mounted here";
    }
    folder.Write("medium/a.spt", "old");
    const auto remount = [&medium](unsigned long flags) {
        mount("tmpfs", medium.c_str(), "tmpfs", MS_REMOUNT | flags, "size=1m");
    };
    SaveWhile([&] { remount(MS_RDONLY); }, path + " could not be saved: Read-only file system",
              [&] { remount(0); });
    umount2(medium.c_str(), MNT_DETACH);
}

// In a process of its own where this one may do everything.
TEST_F(Situations, AUserMayNotWrite) {
    const std::string file = folder.Write("mine/a.spt", "old");
    const std::string report = folder.Write("open/report", "");
    for (const char* name : {"", "mine", "open"}) {
        fs::permissions(folder.Path(name), fs::perms(0777));
    }
    const auto sentenceAsNobody = [&] {
        const pid_t child = fork();
        if (child == 0) {
            constexpr uid_t kNobody = 65534;
            if (geteuid() == 0 && setuid(kNobody) != 0) {
                _exit(1);
            }
            try {
                WriteFileAtomically(file, "new");
            } catch (const FileError& error) {
                WriteFileAtomically(report + "2", error.what());
            }
            _exit(0);
        }
        int status = 1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
        return folder.Read("open/report2");
    };
    fs::permissions(file, fs::perms(0444));
    EXPECT_EQ(sentenceAsNobody(), file + " could not be saved: Permission denied");
    fs::permissions(file, fs::perms(0666));
    fs::permissions(folder.Path("mine"), fs::perms(0555));
    fs::remove(folder.Path("open/report2"));
    EXPECT_EQ(sentenceAsNobody(), file + " could not be saved: Permission denied");
    EXPECT_EQ(folder.Read("mine/a.spt"), "old");
    fs::permissions(folder.Path("mine"), fs::perms(0755));
}

}  // namespace
}  // namespace quenloft
