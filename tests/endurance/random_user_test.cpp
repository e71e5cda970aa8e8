// Random users of the whole program. Qt's warnings and the sanitizers are what watches.
//
//   QUENLOFT_RANDOM_ACTIONS=100000 QUENLOFT_RANDOM_SEED=7 endurance_tests
//       --gtest_filter='*RandomUsers.*/0'
//
// does more, or the same again, and then tells what was done how often.
#include "tests/endurance/random_user.h"

#include <QTest>
#include <cstdio>
#include <filesystem>

#include "shell/form_names.h"
#include "shell/recovery/offer_recovery.h"
#include "shell/recovery/recovery.h"
#include "shell/recovery/recovery_folder.h"
#include "shell/window_kinds.h"
#include "tests/endurance/watch_dog.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

int FromEnvironment(const char* name, int otherwise) {
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

void WriteLibrary(const TempFolder& folder) {
    const std::pair<const char*, const char*> files[] = {
        {"a.tbl", "A¤3??x=x+1??\r\n1§one\r\n2§2 #b^3#\r\n;comment\r\n3§@2d6@ ??x??|more\r\n"},
        {"b.tbl", "B¤2\r\n1§b\r\nmore b\r\n2§#s.spt#\r\n"},
        {"deep/c.tbl", "C¤1\r\n1§#..\\A#\r\n"},
        {"s.spt", "x=INC1\r\nIF x>3\r\nEND:\r\nEND IF\r\nA line #b#\r\n"},
        {"ring.tbl", "Ring¤1\r\n1§#ring#\r\n"},
        {"endless.spt", "LABEL:a\r\nGOTO:a\r\n"},
        // Long enough that somebody always interrupts them.
        {"long.tbl", "Long¤2\r\n1§#b^100000000#\r\n2§@10000000d6@#b#\r\n"},
        {"deep/waits.spt", "LABEL:a\r\n#..\\a#\r\nGOTO:a\r\n"}};
    for (const auto& [name, text] : files) {
        folder.Write(std::string("lib/") + name, InCodePage(text));
    }
    folder.Write("lib/notes.rtf", "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\b Bold\\b0  not\\par}");
    folder.Write("lib/broken.tbl", std::string("\0\xFF\xFE"
                                               "\r\r\n\n5\xA7\xA7\xA4??",
                                               14));
    folder.Write("lib/run.scr",
                 "[Autorun]\r\nRolls=10\r\n[Values]\r\nTwo=D6+D6\r\nDICE1=6\r\nT=5\r\n");
    folder.Write("quenloft.INI", "[Settings]\r\nLibpath=" + folder.Path("lib") + "\r\n");
}

/// A state folder with texts that a program left when it was killed.
std::string LeftState(const TempFolder& folder) {
    std::filesystem::create_directories(folder.Path("state"));
    RecoveryFolder left(folder.Path("killed/unsaved"));
    left.Keep(1, {form::kEdit, folder.Path("lib/s.spt"), "", 1'800'000'000, "another line\r\n"});
    left.Keep(2, {form::kAuthor, "", "", 1'800'000'001, "{\\rtf1 Notes}"});
    std::filesystem::copy(folder.Path("killed"), folder.Path("state"),
                          std::filesystem::copy_options::recursive);
    return folder.Path("state");
}

class RandomUsers : public testing::TestWithParam<int> {};

TEST_P(RandomUsers, DoNoHarm) {
    const int seed = FromEnvironment("QUENLOFT_RANDOM_SEED", GetParam());
    constexpr int kSome = 300;
    const int actions = FromEnvironment("QUENLOFT_RANDOM_ACTIONS", 0);
    const TempFolder folder;
    WriteLibrary(folder);
    RandomUser user(static_cast<unsigned>(seed), folder.Path("lib"));
    ProgramParts program(folder.Path(), user);
    Recovery recovery(LeftState(folder), user);
    frmMain window(program.Services(), MakeWindowKinds(program.random, &recovery));
    window.StartUp();
    window.resize(1280, 800);
    QApplication::setActiveWindow(&window);
    OfferRecovery(window, recovery);
    for (int i = 0; i < (actions > 0 ? actions : kSome) && !HasFailure(); ++i) {
        const std::string action =
            "QUENLOFT_RANDOM_SEED=" + std::to_string(seed) + ", action " + std::to_string(i);
        SCOPED_TRACE(action);
        WatchAction(action);
        user.Act(window);
        program.printer.printed.clear();
        program.printer.printedHtml.clear();
    }
    StopWatching();
    if (actions > 0) {
        std::puts(user.Diary().c_str());
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUsers, testing::Values(1, 2, 3));

}  // namespace
}  // namespace quenloft
