// The companion as it is used: started in a shell, its output and its exit code.
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

struct Outcome {
    std::string output;
    int exitCode = -1;
};

/// Runs `quenloft-roll` with `arguments` (shell words and redirections) in `folder`.
Outcome RollIn(const TempFolder& folder, const std::string& arguments,
               const std::string& before = "") {
    const std::string command =
        "cd '" + folder.Path() + "' && " + before + " " QUENLOFT_ROLL " " + arguments;
    Outcome outcome;
    FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 4096> buffer{};
    for (std::size_t n = 0; (n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
        outcome.output.append(buffer.data(), n);
    }
    const int status = pclose(pipe);
    outcome.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return outcome;
}

class QuenloftRoll : public testing::Test {
  protected:
    QuenloftRoll() {
        folder_.WriteTable("lib/t.tbl", "T", "caf\xE9|#sub\\u#");
        folder_.WriteTable("lib/ut.tbl", "T", "caf\xE9|#sub\\u#");
        folder_.WriteTable("lib/sub/u.tbl", "U", "under");
        folder_.Write("lib/ask.spt", "??n=INC1??\nHello ??GET(Name?)?? ??n??\n??MSG(Told)??\n");
        folder_.WriteTable("lib/bad.tbl", "T", "one @");
        folder_.Write("lib/end.spt", "x\nEND:\n");
        folder_.Write("lib/loop.spt", "before\nLABEL:a\nGOTO:a\n");
    }
    TempFolder folder_;
};

TEST_F(QuenloftRoll, PrintsResultsWithAnEmptyLineBetween) {
    EXPECT_EQ(RollIn(folder_, "lib/t.tbl").output, "café\nunder\n");
    EXPECT_EQ(RollIn(folder_, "-n 2 lib/t.tbl").output, "café\nunder\n\ncafé\nunder\n");
    EXPECT_EQ(RollIn(folder_, "-n 2 -- ../" + folder_.Path().substr(folder_.Path().rfind('/') + 1) +
                                  "/LIB/UT.TBL")
                  .output,
              "CAFÉ\nUNDER\n\nCAFÉ\nUNDER\n");
    EXPECT_EQ(RollIn(folder_, "lib/end.spt").output, "x\n\n");
}

TEST_F(QuenloftRoll, AsksOnStandardInputAndTellsOnStandardError) {
    // Variables live on from round to round: the engine is reset once.
    EXPECT_EQ(RollIn(folder_, "-n 2 lib/ask.spt 2>told", "printf 'Ada\\r\\nBo' |").output,
              "Hello Ada 1\n1\n\nHello Bo 2\n1\n");
    EXPECT_EQ(folder_.Read("told"), "Name? Told\nName? Told\n");
    EXPECT_EQ(RollIn(folder_, "lib/ask.spt 2>/dev/null </dev/null").output, "Hello  1\n1\n");
}

TEST_F(QuenloftRoll, ExitsWithTwoForBadUsageOnly) {
    EXPECT_EQ(RollIn(folder_, "lib/bad.tbl").exitCode, 0);
    for (const char* arguments :
         {"", "-n", "-n 0 lib/t.tbl", "-n x lib/t.tbl", "-n 3x lib/t.tbl", "-n -1 lib/t.tbl",
          "-x lib/t.tbl", "lib/t.tbl lib/t.tbl", "lib/gone.tbl", "lib", "''"}) {
        const Outcome outcome = RollIn(folder_, std::string(arguments) + " 2>told");
        EXPECT_EQ(outcome.exitCode, 2) << arguments;
        EXPECT_EQ(outcome.output, "") << arguments;
        EXPECT_NE(folder_.Read("told"), "") << arguments;
    }
}

TEST_F(QuenloftRoll, EndsOnInterruptLikeTheAbortCommand) {
    const Outcome outcome = RollIn(folder_, "-n 5 lib/loop.spt", "timeout -s INT 0.3");
    EXPECT_EQ(outcome.output, "before\nProcess Aborted!\n");
}

TEST_F(QuenloftRoll, SaysWhyItsOutputWasNotWritten) {
    EXPECT_EQ(RollIn(folder_, "lib/t.tbl 2>&1 >/dev/full").output,
              "quenloft-roll: The output could not be written: No space left on device.\n");
    const Outcome limited = RollIn(folder_, "-n 9999 lib/t.tbl 2>&1 >out", "ulimit -f 1;");
    EXPECT_EQ(limited.output, "quenloft-roll: The output could not be written: File too large.\n");
    EXPECT_EQ(limited.exitCode, 1);
    // A reader that has seen enough ends it, as with every filter.
    EXPECT_EQ(RollIn(folder_, "-n 2000000000 lib/t.tbl | head -n 1").output, "café\n");
}

}  // namespace
}  // namespace quenloft
