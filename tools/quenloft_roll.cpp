// quenloft-roll [-n TIMES] FILE: rolls a table or runs a script in a terminal.
#include <cerrno>
#include <charconv>
#include <csignal>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>

#include "engine/engine.h"
#include "engine/reference_targets.h"
#include "engine/text_helpers.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/stack_left.h"
#include "platform/linux/system_random_source.h"

namespace {

using namespace quenloft;

constexpr int kExitUsage = 2;

volatile sig_atomic_t interrupted = 0;

void OnInterrupt(int) { interrupted = 1; }

/// Ctrl+C is the abort command. Reading a line must come back from it, so calls are not restarted.
void CatchInterrupt() {
    struct sigaction action = {};
    action.sa_handler = OnInterrupt;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, nullptr);
}

class TerminalHost : public EngineHost {
  public:
    void AbortThrough(Engine& engine) { engine_ = &engine; }

    bool Yield() override {
        if (interrupted != 0) {
            engine_->SetAbortFlag();
        }
        return false;
    }
    void ShowMessage(const std::string& text) override { std::cerr << text << std::endl; }
    std::string AskForText(const std::string& prompt) override {
        std::cerr << prompt << ' ' << std::flush;
        std::string answer;
        char c = 0;
        // Read byte by byte: std::getline would go on waiting after Ctrl+C.
        while (interrupted == 0 && read(STDIN_FILENO, &c, 1) == 1 && c != '\n') {
            answer.push_back(c);
        }
        if (answer.ends_with('\r')) {
            answer.pop_back();
        }
        return answer;
    }
    std::size_t StackBytesLeft() override { return quenloft::StackBytesLeft(); }

  private:
    Engine* engine_ = nullptr;
};

struct Arguments {
    int times = 1;
    std::string file;
};

/// Past a limit on file sizes the system would end the program; writing fails instead. A closed
/// pipe does end it, as it does every filter.
void OutliveTheSizeLimit() { std::signal(SIGXFSZ, SIG_IGN); }

/// Nothing where the command line is not "[-n TIMES] FILE" with TIMES of at least 1.
std::optional<Arguments> ReadArguments(int argc, char** argv) {
    Arguments arguments;
    int next = 1;
    if (next < argc && std::string_view(argv[next]) == "-n") {
        if (next + 1 >= argc) {
            return std::nullopt;
        }
        const std::string_view times = argv[next + 1];
        const char* end = times.data() + times.size();
        const auto [stop, error] = std::from_chars(times.data(), end, arguments.times);
        if (error != std::errc() || stop != end || arguments.times < 1) {
            return std::nullopt;
        }
        next += 2;
    }
    if (next < argc && std::string_view(argv[next]) == "--") {
        ++next;
    } else if (next < argc && argv[next][0] == '-' && argv[next][1] != '\0') {
        return std::nullopt;
    }
    if (argc - next != 1 || argv[next][0] == '\0') {
        return std::nullopt;
    }
    arguments.file = argv[next];
    return arguments;
}

/// Generated text has CR LF between its lines; a terminal wants LF.
std::string WithLineFeeds(std::string_view text) {
    std::string lines;
    lines.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, 2) != kLineBreak) {
            lines.push_back(text[i]);
        }
    }
    return lines;
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const std::optional<Arguments> arguments = ReadArguments(argc, argv);
    if (!arguments) {
        std::cerr << "Usage: quenloft-roll [-n TIMES] FILE\n"
                     "Rolls the table (*.tbl) or runs the script (*.spt) FILE, TIMES times.\n";
        return kExitUsage;
    }
    CatchInterrupt();
    OutliveTheSizeLimit();
    LinuxFileSystem files;
    SystemRandomSource random;
    TerminalHost host;
    Engine engine(files, random, host);
    host.AbortThrough(engine);

    const std::string path = PathAsSpelled(files, arguments->file);
    try {
        files.ReadLines(path);
        files.ChangeDirectory(std::string(DirectoryPart(path)) + "\\");
    } catch (const FileError& error) {
        std::cerr << "quenloft-roll: " << error.what() << ".\n";
        return kExitUsage;
    }
    engine.ResetGeneration();
    for (int i = 0; i < arguments->times && !engine.IsAborted() && std::cout; ++i) {
        files.LookAgain();
        const std::string result = IsScriptPath(path) ? engine.RunScript(path, /*fromRunner=*/true)
                                                      : engine.RollTable(path);
        std::cout << (i > 0 ? "\n" : "") << WithLineFeeds(result) << '\n';
    }
    if (!std::cout.flush()) {
        std::cerr << "quenloft-roll: The output could not be written: "
                  << std::system_category().message(errno) << ".\n";
        return 1;
    }
    return 0;
}
