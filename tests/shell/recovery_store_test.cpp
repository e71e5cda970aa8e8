// Kept texts on the disk, and what a later start finds of them.
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <sys/stat.h>
#include <sys/wait.h>

#include "platform/file_system.h"
#include "platform/linux/program_folders.h"
#include "shell/recovery/left_texts.h"
#include "shell/recovery/line_difference.h"
#include "shell/recovery/recovery_folder.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

KeptText Kept(std::string text, std::int64_t when = 1) {
    return {"frmEdit", "/lib/a.spt", "3-99", when, std::move(text)};
}

class RecoveryStore : public testing::Test {
  protected:
    /// An instance of the program that keeps these and is killed.
    void DieWith(const std::vector<KeptText>& texts) {
        const pid_t child = fork();
        if (child == 0) {
            RecoveryFolder own(parent);
            for (std::size_t i = 0; i < texts.size(); ++i) {
                own.Keep(static_cast<int>(i), texts[i]);
            }
            raise(SIGKILL);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_EQ(WTERMSIG(status), SIGKILL);
    }
    static std::vector<std::string> Texts(const LeftTexts& left) {
        std::vector<std::string> texts;
        for (const LeftText& text : left.All()) {
            texts.push_back(text.kept.text);
        }
        return texts;
    }
    std::size_t Folders() const {
        const std::filesystem::directory_iterator entries(parent);
        return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
    }
    static mode_t ModeOf(const std::filesystem::path& path) {
        struct stat data {};
        return stat(path.c_str(), &data) == 0 ? data.st_mode & 0777 : 0;
    }

    TempFolder folder;
    const std::string parent = folder.Path("state/quenloft/unsaved");
};

TEST(KeptText, IsReadWholeOrNotAtAll) {
    const KeptText kept{"frmEdit", "/li\nb/5:a.spt", "12-34", 1234567890, "one\n\xC2\xA7two\n3:"};
    const std::string bytes = BytesOfKept(kept);
    const auto read = KeptOfBytes(bytes);
    ASSERT_TRUE(read);
    EXPECT_EQ(BytesOfKept(*read), bytes);
    EXPECT_EQ(read->path, kept.path);
    EXPECT_EQ(read->when, kept.when);
    EXPECT_EQ(read->text, kept.text);
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        EXPECT_FALSE(KeptOfBytes(bytes.substr(0, size))) << size;
        std::string flipped = bytes;
        flipped[size] ^= 1;
        EXPECT_FALSE(KeptOfBytes(flipped)) << size;
    }
    EXPECT_FALSE(KeptOfBytes(bytes + "x"));
}

TEST_F(RecoveryStore, FindsTheTextsOfTheDeadTheLatestFirst) {
    DieWith({Kept("old", 10), Kept("young", 30)});
    DieWith({Kept("middle", 20)});
    DieWith({});
    LeftTexts left(parent);
    EXPECT_EQ(Texts(left), (std::vector<std::string>{"young", "middle", "old"}));
    const std::vector<LeftText> all = left.All();
    left.Forget(all[1].file);
    EXPECT_EQ(Texts(left), (std::vector<std::string>{"young", "old"}));
    for (const LeftText& text : all) {
        EXPECT_GE(Folders(), 1U);
        DeleteLeftText(text.file);
    }
    EXPECT_EQ(Folders(), 0U);
    EXPECT_TRUE(left.SetAside().empty());
}

TEST_F(RecoveryStore, LeavesTheTextsOfTheLivingAlone) {
    DieWith({Kept("left")});
    RecoveryFolder own(parent);
    own.Keep(1, Kept("mine"));
    const LeftTexts first(parent);
    EXPECT_EQ(Texts(first), std::vector<std::string>{"left"});
    EXPECT_TRUE(LeftTexts(parent).All().empty()) << "the first has taken them over";
}

TEST_F(RecoveryStore, EndsWithoutATraceWhereTheProgramDoes) {
    {
        RecoveryFolder own(parent);
        own.Keep(1, Kept("one"));
        own.Keep(1, Kept("two"));
        own.Keep(2, Kept("three"));
        own.Remove(2);
        own.Remove(7);
        ASSERT_EQ(Folders(), 1U);
        const auto instance = *std::filesystem::directory_iterator(parent);
        EXPECT_EQ(ModeOf(instance), 0700U);
        EXPECT_EQ(ModeOf(instance.path() / "1.text"), 0600U);
        EXPECT_EQ(ModeOf(folder.Path("state")), 0700U);
        EXPECT_FALSE(std::filesystem::exists(instance.path() / "2.text"));
        EXPECT_EQ(folder.Read("state/quenloft/unsaved/" + instance.path().filename().string() +
                              "/1.text"),
                  BytesOfKept(Kept("two")));
    }
    EXPECT_EQ(Folders(), 0U);
}

TEST_F(RecoveryStore, SetsAsideOnceWhatItCannotRead) {
    DieWith({Kept("good"), Kept("bad")});
    const std::string instance =
        std::filesystem::directory_iterator(parent)->path().filename().string();
    const std::string place = "state/quenloft/unsaved/" + instance + "/";
    folder.Write(place + "1.text", "damaged");
    folder.Write(place + "letter.odt", "of somebody");
    folder.Write(place + ".quenloft-123", "half a text");
    {
        const LeftTexts left(parent);
        EXPECT_EQ(Texts(left), std::vector<std::string>{"good"});
        EXPECT_EQ(left.SetAside(),
                  (std::vector<std::string>{folder.Path(place + "1.text.unreadable"),
                                            folder.Path(place + "letter.odt.unreadable")}));
    }
    const LeftTexts again(parent);
    EXPECT_EQ(Texts(again), std::vector<std::string>{"good"});
    EXPECT_TRUE(again.SetAside().empty());
    DeleteLeftText(again.All()[0].file);
    EXPECT_EQ(folder.Read(place + "1.text.unreadable"), "damaged");
    EXPECT_FALSE(std::filesystem::exists(folder.Path(place + ".quenloft-123")));
}

TEST_F(RecoveryStore, SaysThatThereIsNoHomeFolder) {
    try {
        RecoveryFolder("").Keep(1, Kept("x"));
        ADD_FAILURE();
    } catch (const FileError& error) {
        EXPECT_STREQ(error.what(), "There is no home folder");
    }
}

TEST(StateFolder, IsWhereTheUserWantsIt) {
    const struct {
        const char* variable;
        const char* home;
        const char* folder;
    } cases[] = {{"/states", "/home/u", "/states/quenloft"},
                 {"", "/home/u", "/home/u/.local/state/quenloft"},
                 {"relative", "/home/u", "/home/u/.local/state/quenloft"},
                 {"", "", ""}};
    const std::string home = getenv("HOME") ? getenv("HOME") : "";
    for (const auto& c : cases) {
        setenv("XDG_STATE_HOME", c.variable, 1);
        setenv("HOME", c.home, 1);
        EXPECT_EQ(StateFolder(), c.folder);
    }
    unsetenv("XDG_STATE_HOME");
    setenv("HOME", home.c_str(), 1);
}

std::string Shown(const std::vector<DifferenceLine>& lines) {
    std::string text;
    for (const DifferenceLine& line : lines) {
        text += " -+."[static_cast<int>(line.kind)] + std::string(line.text) + "|";
    }
    return text;
}

TEST(LineDifference, ShowsWhatChangedWithTheLinesAround) {
    const struct {
        const char* former;
        const char* latter;
        const char* shown;
    } cases[] = {
        {"a\nb\n", "a\nb", ""},
        {"", "a\nb\n", "+a|+b|"},
        {"a\n", "", "-a|"},
        {"a\nb\nc\n", "a\nx\nc\n", " a|-b|+x| c|"},
        {"1\n2\n3\n4\n5\n6\n7\n", "1\n2\n3\n3b\n4\n5\n6\n7\n", ".| 3|+3b| 4|.|"},
        {"1\n2\n3\n4\n5\n6\n", "0\n1\n2\n3\n4\n5\n", "+0| 1|.| 5|-6|"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Shown(DifferenceOf(c.former, c.latter, 1)), c.shown);
    }
}

TEST(LineDifference, LeadsFromAnyTextToAnyOther) {
    std::mt19937 random(7);
    const auto text = [&random](int lines) {
        std::string all;
        for (; lines > 0; --lines) {
            all += "abcd"[random() % 4];
            all += '\n';
        }
        return all;
    };
    for (const int lines : {0, 1, 1, 1, 2, 2, 3, 5, 5, 8, 8, 13, 40, 40, 40, 3000}) {
        const std::string texts[] = {text(lines), text(lines + 1)};
        std::string former;
        std::string latter;
        for (const DifferenceLine& line : DifferenceOf(texts[0], texts[1], 1000000)) {
            const std::string whole = std::string(line.text) + "\n";
            former += line.kind == DifferenceLine::Kind::Added ? "" : whole;
            latter += line.kind == DifferenceLine::Kind::Removed ? "" : whole;
        }
        EXPECT_EQ(former, texts[0]);
        EXPECT_EQ(latter, texts[1]);
    }
}

}  // namespace
}  // namespace quenloft
