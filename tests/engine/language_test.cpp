// Each folder of tests/language is a case: main.tbl or main.spt is rolled or run, the result must
// be expected.txt. Beside them: next.txt (what the random source gives, 0 without it: the lowest
// roll), answers.txt (a line for each question), messages.txt (what the user was asked and told, in
// order).
// "{DIR}" stands for the case's folder; results are compared with LF line ends.
#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "engine/engine.h"
#include "engine/text_helpers.h"
#include "platform/linux/linux_file_system.h"
#include "tests/support/fake_host.h"
#include "tests/support/fake_random.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

namespace fs = std::filesystem;

std::string ReadAll(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
    for (std::size_t i = text.find(what); i != std::string::npos;
         i = text.find(what, i + with.size())) {
        text.replace(i, what.size(), with);
    }
    return text;
}

/// Questions and messages in their order, in one list.
class TalkingHost : public FakeHost {
  public:
    void ShowMessage(const std::string& text) override { talk += "tell: " + text + "\n"; }
    std::string AskForText(const std::string& prompt) override {
        talk += "ask: " + prompt + "\n";
        return FakeHost::AskForText(prompt);
    }
    std::string talk;
};

class Language : public testing::TestWithParam<std::string> {};

TEST_P(Language, Case) {
    const fs::path source = fs::path(LANGUAGE_CASES) / GetParam();
    TempFolder folder;
    LinuxFileSystem files;
    const std::string libraryPath = files.AbsolutePath(folder.Path());
    for (const auto& entry : fs::recursive_directory_iterator(source)) {
        const std::string name = fs::relative(entry.path(), source);
        if (entry.is_directory()) {
            fs::create_directories(folder.Path(name));
        } else {
            folder.Write(name, Replaced(ReadAll(entry.path()), "{DIR}", libraryPath));
        }
    }
    const std::string next = ReadAll(source / "next.txt");
    ConstantRandom random(next.empty() ? 0 : std::stod(next));
    TalkingHost host;
    std::istringstream answers(ReadAll(source / "answers.txt"));
    for (std::string answer; std::getline(answers, answer);) {
        host.answers.push_back(answer);
    }
    Engine engine(files, random, host);
    files.ChangeDirectory(libraryPath);
    engine.ResetGeneration();
    const std::string result = fs::exists(source / "main.spt")
                                   ? engine.RunScript(libraryPath + "\\main.spt", true)
                                   : engine.RollTable(libraryPath + "\\main.tbl");

    EXPECT_EQ(Replaced(result, "\r\n", "\n"),
              Replaced(ReadAll(source / "expected.txt"), "{DIR}", libraryPath));
    const std::string messages = ReadAll(source / "messages.txt");
    EXPECT_EQ(host.talk, messages.empty() ? "" : messages + "\n");
    EXPECT_FALSE(engine.IsRunning());
}

std::vector<std::string> CaseNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(LANGUAGE_CASES)) {
        if (entry.is_directory()) {
            names.push_back(entry.path().filename());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Cases, Language, testing::ValuesIn(CaseNames()),
                         [](const auto& info) { return info.param; });

}  // namespace
}  // namespace quenloft
