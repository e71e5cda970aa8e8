// The generation engine: rolls tables and runs scripts. One object holds the whole run-wide state:
// variables, roll counts, the abort flag, open files. This is all that a window needs of it; the
// language itself is at home in interpreter.h.
//
// Text in and out is UTF-8, generated line breaks are CR LF, paths are those of
// platform/file_system.h.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "engine/host.h"
#include "platform/file_system.h"
#include "platform/random_source.h"

namespace quenloft {

class Interpreter;

class Engine {
  public:
    Engine(FileSystem& files, RandomSource& random, EngineHost& host);
    ~Engine();

    // --- One generation ---

    /// Empties the roll counts and the variables, and looks at the disk anew. Every generation that
    /// a user starts begins with it.
    void ResetGeneration();

    /// Rolls the table at `path` once and returns the finished text, or an error text; never fails.
    /// A `forcedRoll` above 0 takes the place of the random roll. Empty while a run is going on.
    std::string RollTable(std::string_view path, std::int32_t forcedRoll = 0);
    /// Runs the script at `path` and returns its output, with an error report where it failed.
    /// `fromRunner`: the user runs this script itself, so its name does not capitalise the output.
    /// Empty while a run is going on.
    std::string RunScript(std::string_view path, bool fromRunner);

    /// The title in the header of the table at `path`, or "!Invalid fileheader!". Reads the first
    /// lines from disk; does not disturb a run that is going on.
    std::string ReadTableTitle(std::string_view path);

    /// True while a table is rolled or a script run: event handlers that run inside a yield must
    /// not start another one.
    bool IsRunning() const { return running_; }

    // --- The abort flag ---

    /// Ends the run that is going on: every loop stops at its next turn.
    void SetAbortFlag();
    void ClearAbortFlag();
    bool IsAborted() const;

    FileSystem& Files() { return files_; }

  private:
    template <typename Work>
    std::string Run(std::string_view path, Work work);

    FileSystem& files_;
    EngineHost& host_;
    std::unique_ptr<Interpreter> interpreter_;
    bool running_ = false;
};

}  // namespace quenloft
