// Random users of the whole program. Qt's warnings and the sanitizers are what watches.
//
//   QUENLOFT_RANDOM_ACTIONS=100000 QUENLOFT_RANDOM_SEED=7 endurance_tests
//       --gtest_filter='*RandomUsers.*/0'
//
// does more, or the same again, and then tells what was done how often.
#include "tests/endurance/random_user.h"

#include <QTest>
#include <cstdio>

#include "shell/window_kinds.h"
#include "tests/endurance/watch_dog.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

int FromEnvironment(const char* name, int otherwise) {
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? number : otherwise;
}

void WriteLibrary(const TempFolder& folder) {
    folder.Write("lib/a.tbl",
                 "A\xA4"
                 "3??x=x+1??\r\n1\xA7one\r\n2\xA7"
                 "2 #b^3#\r\n;comment\r\n3\xA7@2d6@ ??x??|more\r\n");
    folder.Write("lib/b.tbl",
                 "B\xA4"
                 "2\r\n1\xA7"
                 "b\r\nmore b\r\n2\xA7#s.spt#\r\n");
    folder.Write("lib/deep/c.tbl",
                 "C\xA4"
                 "1\r\n1\xA7#..\\A#\r\n");
    folder.Write("lib/s.spt", "x=INC1\r\nIF x>3\r\nEND:\r\nEND IF\r\nA line #b#\r\n");
    folder.Write("lib/endless.spt", "LABEL:a\r\nGOTO:a\r\n");
    folder.Write("lib/ring.tbl",
                 "Ring\xA4"
                 "1\r\n1\xA7#ring#\r\n");
    folder.Write("lib/notes.rtf", "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\b Bold\\b0  not\\par}");
    folder.Write("lib/broken.tbl", std::string("\0\xFF\xFE"
                                               "\r\r\n\n5\xA7\xA7\xA4??",
                                               14));
    folder.Write("lib/run.scr",
                 "[Autorun]\r\nRolls=10\r\n[Values]\r\nTwo=D6+D6\r\nDICE1=6\r\nT=5\r\n");
    folder.Write("quenloft.INI", "[Settings]\r\nLibpath=" + folder.Path("lib") + "\r\n");
}

class RandomUsers : public testing::TestWithParam<int> {};

TEST_P(RandomUsers, DoNoHarm) {
    const int seed = FromEnvironment("QUENLOFT_RANDOM_SEED", GetParam());
    constexpr int kSome = 300;
    const int actions = FromEnvironment("QUENLOFT_RANDOM_ACTIONS", 0);
    WatchDog watchDog;
    const TempFolder folder;
    WriteLibrary(folder);
    LinuxFileSystem files;
    LinuxProfileFile profile(files, folder.Path("quenloft"), folder.Path("config"));
    SystemRandomSource random;
    RandomUser user(static_cast<unsigned>(seed), folder.Path("lib"));
    FakeClipboard clipboard;
    FakePrinter printer;
    FakeDesktop desktop;
    QtEngineHost host(user);
    Engine engine(files, random, host);
    frmMain window({engine, host, files, profile, user, clipboard, printer, desktop},
                   MakeWindowKinds(random));
    window.StartUp();
    window.resize(1280, 800);
    QApplication::setActiveWindow(&window);
    for (int i = 0; i < (actions > 0 ? actions : kSome) && !HasFailure(); ++i) {
        const std::string action =
            "QUENLOFT_RANDOM_SEED=" + std::to_string(seed) + ", action " + std::to_string(i);
        SCOPED_TRACE(action);
        watchDog.Begin(action);
        user.Act(window);
        printer.printed.clear();
        printer.printedHtml.clear();
    }
    if (actions > 0) {
        std::puts(user.Diary().c_str());
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUsers, testing::Values(1, 2, 3));

}  // namespace
}  // namespace quenloft
