// The generation engine: rolls tables and runs scripts. One object holds the whole run-wide state:
// variables, roll counts, the abort flag, open files. Text in and out is UTF-8, generated line
// breaks are CR LF, paths are library paths (platform/file_system.h).
//
// Each group of operations has its file: table_roller.cpp (RollTable), entry_expander.cpp
// (ExpandEntry and the duplicate rule), variable_statement.cpp, script_interpreter.cpp, dice.cpp.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "engine/dice.h"
#include "engine/host.h"
#include "engine/open_file_cache.h"
#include "engine/roll_counts.h"
#include "engine/script_index.h"
#include "engine/table_index.h"
#include "engine/value.h"
#include "engine/variable_store.h"
#include "platform/file_system.h"
#include "platform/random_source.h"

namespace quenloft {

/// What an aborted run shows in place of its result.
inline constexpr std::string_view kAbortedText = "Process Aborted!";

class Engine {
  public:
    Engine(FileSystem& files, RandomSource& random, EngineHost& host);

    // --- One generation ---

    /// Empties the roll counts and the variables, and looks at the disk anew. Every generation that
    /// a user starts begins with it.
    void ResetGeneration();

    /// Rolls the table at `path` once and returns the finished text, or an error text; never fails.
    /// A `forcedRoll` above 0 takes the place of the random roll.
    std::string RollTable(std::string_view path, std::int32_t forcedRoll = 0);
    /// Runs the script at `path` and returns its output, with an error report where it failed.
    /// `fromRunner`: the user runs this script itself, so its name does not capitalise the output.
    std::string RunScript(std::string_view path, bool fromRunner);
    /// Expands all marks of an entry's text; an error text where a mark has no partner.
    std::string ExpandEntry(std::string_view text);

    /// The title in the header of the table at `path`, or "!Invalid fileheader!".
    std::string ReadTableTitle(std::string_view path);

    /// True while one of the operations above is at work: event handlers that run inside a yield
    /// must not start another one.
    bool IsRunning() const { return depth_ > 0; }

    // --- The abort flag ---

    /// Ends the run that is going on: every loop stops at its next turn.
    void SetAbortFlag() { abortFlag_ = true; }
    void ClearAbortFlag() { abortFlag_ = false; }
    bool IsAborted() const { return abortFlag_; }

    FileSystem& Files() { return files_; }
