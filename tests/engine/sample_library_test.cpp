// Every table and script of the sample library reads as finished text, whatever is rolled.
#include <filesystem>
#include <gtest/gtest.h>

#include "engine/engine.h"
#include "engine/text_helpers.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/system_random_source.h"
#include "tests/support/fake_host.h"

namespace quenloft {
namespace {

TEST(SampleLibrary, RollsWithoutErrorTextsOrLeftoverMarks) {
    LinuxFileSystem files;
    SystemRandomSource random;
    FakeHost host;
    Engine engine(files, random, host);
    int rolled = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(SAMPLE_LIBRARY)) {
        const std::string path = files.AbsolutePath(entry.path().string());
        if (!IsTablePath(path) && !IsScriptPath(path)) {
            continue;
        }
        ++rolled;
        if (IsTablePath(path)) {
            EXPECT_FALSE(engine.ReadTableTitle(path).empty());
            EXPECT_NE(engine.ReadTableTitle(path), "!Invalid fileheader!") << path;
        }
        files.ChangeDirectory(DirectoryPart(path));
        for (int i = 0; i < 40; ++i) {
            engine.ResetGeneration();
            const std::string result =
                IsScriptPath(path) ? engine.RunScript(path, true) : engine.RollTable(path);
            for (const char* fault :
                 {"?Invalid", "Failure to get", "Errors in script", "Invalid dice",
                  "run was stopped", "#", "@", "|", "??", "  "}) {
                ASSERT_EQ(result.find(fault), std::string::npos) << path << "\n" << result;
            }
        }
    }
    EXPECT_GE(rolled, 46);
}

}  // namespace
}  // namespace quenloft
