// The language of tables and scripts. Its operations call each other freely: a table rolls further
// tables and runs scripts, a script expands its lines like entries.
//
// table_roller.cpp        RollTable, GetReferenceData
// entry_expander.cpp      ExpandEntry, references, the duplicate rule
// variable_statement.cpp  EvaluateVariableStatement
// script_interpreter.cpp  RunScript
//
// Failures travel as Failure and FileError, RunStopped ends everything (engine/failure.h). All
// operations but the first four are for each other and for Engine, which is the border.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/dice.h"
#include "engine/host.h"
#include "engine/open_file_cache.h"
#include "engine/reference_targets.h"
#include "engine/roll_counts.h"
#include "engine/value.h"
#include "engine/variable_store.h"
#include "platform/file_system.h"
#include "platform/random_source.h"

namespace quenloft {

/// What an aborted run shows in place of its result.
inline constexpr std::string_view kAbortedText = "Process Aborted!";

/// Adds kAbortedText to the text of one level, unless it stands in it already, in whatever case the
/// name of a file has given it.
void AppendAbortedOnce(std::string& text);

/// "Failure to get data from " and the path: a reference that could not even be reported on.
std::string FailedReferenceText(std::string_view path);

class Interpreter {
  public:
    Interpreter(FileSystem& files, RandomSource& random, EngineHost& host);

    void ResetGeneration();
    /// `stackBytes` is what is left below the caller; recursion ends before it is used up.
    void BeginRun(std::size_t stackBytes);
    void SetAbortFlag(bool abort) { abortFlag_ = abort; }
    bool IsAborted() const { return abortFlag_; }

    /// Rolls the table once. A failure comes back as a diagnostic text; throws FileError only where
    /// `path` carries a drive and its folder cannot be entered.
    std::string RollTable(std::string_view path, std::int32_t forcedRoll);
    /// Runs the script; a failure comes back as a report behind the output so far.
    std::string RunScript(std::string_view path, bool fromRunner);
    /// Expands all marks: dice, variables, line breaks, references, in this order. Throws Failure
    /// for a mark without a partner. kAbortedText when the abort flag is set.
    std::string ExpandEntry(std::string_view text);

    /// Replaces each statement between two "??" by its result.
    void SubstituteVariables(std::string& text);
    /// Carries out one variable statement and returns what replaces it.
    Value EvaluateVariableStatement(std::string_view statement);
    Value EvaluateExpr(std::string_view text);

    /// Lets the event loop have its turn. False when the run is to end.
    bool TakeTurn();

  private:
    friend class ScriptRun;
    class ChainLink;

    /// What lies between two "#".
    struct Reference {
        std::string_view file;
        std::int32_t forcedRoll = 0;
        std::int32_t count = 1;
        bool joined = false;  // "^_": results without a line break between them.
    };

    // table_roller.cpp
    struct RollReport;
    std::string RollTarget(const ReferenceTarget& target, std::int32_t forcedRoll);
    std::string RollOpenTable(const ReferenceTarget& target, std::int32_t forcedRoll,
                              RollReport& report);
    std::int32_t Roll(std::int32_t total, std::int32_t modifier, std::int32_t forcedRoll);
    std::string FailedRollText(std::string_view path, const RollReport& report,
                               const std::string& description) const;
    std::string GetReferenceData(const ReferenceTarget& target, std::int32_t forcedRoll);
    void EnterFolder(std::string_view folder);

    // script_interpreter.cpp
    void ResetScriptDirectory(std::string_view scriptFolder, FolderId savedFolder);

    // entry_expander.cpp
    template <typename Replace>
    void ReplaceMarks(std::string& text, std::string_view mark, std::string_view nameOfMark,
                      Replace replace);
    std::string ExpandReference(const Reference& reference, RollCounts::Referrer& referrer,
                                bool tablesOnly);
    std::string RollAccepted(const ReferenceTarget& target, std::int32_t forcedRoll,
                             RollCounts::Referrer& referrer, bool tablesOnly);
    std::string ExpandTableReferences(std::string_view text);
    bool AcceptRoll(RollCounts::Referrer& referrer, std::string_view result);

    // variable_statement.cpp
    Value ReadVariable(std::string_view text);
    Value Assign(std::string_view statement, std::size_t sign, VariableStore::Operation operation);

    FileSystem& files_;
    RandomSource& random_;
    EngineHost& host_;
    Dice dice_;
    VariableStore variables_;
    RollCounts rollCounts_;
    OpenFileCache openFiles_;
    ReferenceTargets targets_;
    bool abortFlag_ = false;
    std::vector<std::string_view> chain_;  // The files that are at work, outermost first.
    std::uintptr_t stackFloor_ = 0;
};

/// One file at work: its place in the chain, for as long as this object lives. Throws RunStopped
/// where the stack would not carry another level.
class Interpreter::ChainLink {
  public:
    ChainLink(Interpreter& interpreter, std::string_view path);
    ~ChainLink() { chain_.pop_back(); }
    ChainLink(const ChainLink&) = delete;
    ChainLink& operator=(const ChainLink&) = delete;

  private:
    std::vector<std::string_view>& chain_;
};

/// The runtime's words for what the disk refused.
std::string DescriptionOf(const FileError& error);

}  // namespace quenloft
