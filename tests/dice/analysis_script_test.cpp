#include "dice/analysis_script.h"

#include <gtest/gtest.h>
#include <regex>

#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_profile_file.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

/// Runs scripts whose analyses only tell what they were asked for.
class AnalysisScript : public testing::Test {
  protected:
    enum class Kind { Totals, Target };

    /// All lines, the times and the folder replaced: one text, ended by the check box.
    std::string Run(Kind kind, const std::string& bytes) {
        const std::string path = folder.Path("script.scr");
        if (!bytes.empty()) {
            folder.Write("script.scr", bytes);
        }
        ReportLines lines;
        bool openEnded = false;
        const ScriptParts parts{files, profile, lines, [&](bool on) { openEnded = on; }, rolls};
        if (kind == Kind::Totals) {
            RunTotalsScript(parts, path, [&](const clsRoll& handful, std::int32_t times) {
                lines.Add("<" + handful.Text() + " x " + std::to_string(times) + ">");
            });
        } else {
            RunTargetScript(parts, path, [&](const TargetPool& pool) {
                lines.Add("<" + std::to_string(pool.dice) + "D" + std::to_string(pool.faces) +
                          " against " + std::to_string(pool.target) + " x " +
                          std::to_string(pool.rolls) + ">");
            });
        }
        std::string text;
        for (const std::string& line : lines.Lines()) {
            text += line + "\n";
        }
        text += openEnded ? "open-ended" : "closed";
        text = std::regex_replace(text, std::regex(folder.Path()), "");
        text = std::regex_replace(text, std::regex(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d)"), "NOW");
        text = std::regex_replace(text, std::regex("-{92}"), "---92");
        text = std::regex_replace(text, std::regex("-{59}"), "---59");
        return std::regex_replace(text, std::regex(R"(in \d+ seconds)"), "in N seconds");
    }

    TempFolder folder;
    LinuxFileSystem files;
    LinuxProfileFile profile{files, folder.Path() + "/quenloft", folder.Path() + "/config"};
    std::int32_t rolls = 0;
};

TEST_F(AnalysisScript, OfHandfulsRunsThemInTheFilesOrder) {
    const std::string expected =
        "Script /script.scr\nstarted NOW\n---59\n"
        "Value Two Roll D10+D10\n<2D10 x 1000>\n---59\n"
        "Value One Roll d6\n<1D6 x 1000>\n---59\n"
        "Value None Roll \n< x 1000>\n---59\n"
        "---59\nScript ended NOW with 1000 rolls in N seconds\nclosed";
    EXPECT_EQ(Run(Kind::Totals,
                  "[Values]\nTwo=D10+D10\n; a comment\nOne= d6 \nNone=\n"
                  "[Autorun]\nopenended=0\nROLLS=999.6\n"),
              expected);
}

TEST_F(AnalysisScript, WithoutEntriesNamesTheRollsOfTheLastEntryRun) {
    Run(Kind::Totals, "[Autorun]\nRolls=7\n[Values]\nA=D4\n");
    for (const char* bytes :
         {"[Autorun]\nRolls=9\n", "neither sections nor keys", "\x89PNG\r\n\x1A\n[Values\n=\n"}) {
        EXPECT_EQ(Run(Kind::Totals, bytes),
                  "Script /script.scr\nstarted NOW\n---59\n---59\n"
                  "Script ended NOW with 7 rolls in N seconds\nopen-ended")
            << bytes;
    }
}

TEST_F(AnalysisScript, EndsWithoutAWordWhereItFails) {
    const std::string begun = "Script /script.scr\nstarted NOW\n---59\n";
    EXPECT_EQ(Run(Kind::Totals, ""), begun + "closed") << "no such file";
    EXPECT_EQ(Run(Kind::Totals, "[Values]\nA=D4\nB=D6\nA=D8\n"), begun + "open-ended");
    EXPECT_EQ(Run(Kind::Totals, "[Autorun]\nOpenEnded=yes\n[Values]\nA=D4\n"), begun + "closed");
    EXPECT_EQ(Run(Kind::Totals, "[Autorun]\nRolls=2147483648\n[Values]\nA=D4\n"),
              begun + "open-ended");
    EXPECT_EQ(Run(Kind::Target, "[Autorun]\nRolls=5\nDieFaces=6\n[Values]\nDice=3\nT=5\nU=1e99\n"),
              "Script /script.scr\nstarted NOW\n---92\n<3D6 against 5 x 5>\nopen-ended")
        << "what ran before stays";
}

TEST_F(AnalysisScript, OfPoolsRunsEachSizeWithEachTarget) {
    EXPECT_EQ(Run(Kind::Target,
                  "[Autorun]\nOpenEnded=1\nRolls=10\nDieFaces=6\n[Values]\nEasy=3\nSmall dice=2\n"
                  "Hard=6\nMYDICE=4\n"),
              "Script /script.scr\nstarted NOW\n---92\n<2D6 against 3 x 10>\n<2D6 against 6 x 10>\n"
              "<4D6 against 3 x 10>\n<4D6 against 6 x 10>\n---92\n"
              "Script ended NOW with 10 rolls in N seconds\nopen-ended");
}

}  // namespace
}  // namespace quenloft
