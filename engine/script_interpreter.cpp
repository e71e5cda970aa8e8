// Running a script: its lines from top to bottom, jumps, conditions, the error report.
#include "engine/failure.h"
#include "engine/interpreter.h"
#include "engine/limits.h"
#include "engine/script_lines.h"
#include "engine/text_helpers.h"

namespace quenloft {

/// One run over the lines of an open script. A nested run of the same script shares the handle, and
/// the outer run goes on from wherever the inner one stopped.
class ScriptRun {
  public:
    explicit ScriptRun(Interpreter& interpreter) : interpreter_(interpreter) {}

    void Run(FileHandle& handle);

    std::string output;
    /// Number of the line last read, counted from 1 after each rewind.
    std::size_t lineCounter = 0;

  private:
    void ReadLine();
    void ReadUntil(unsigned kinds);
    bool Is(unsigned kinds) const { return (lineKinds_ & kinds) != 0; }
    void JumpToLabel();
    void RunCurrentLine();
    bool ConditionHolds(std::string_view text);
    bool AnyHolds(std::string_view text);
    template <typename Part, typename Combine>
    bool SplitCondition(std::string_view text, std::string_view word, Part part, Combine combine);
    void Append(std::string_view text);

    Interpreter& interpreter_;
    FileHandle* handle_ = nullptr;
    std::string_view line_;
    std::uint8_t lineKinds_ = 0;
    bool conditionHeld_ = false;
    bool ended_ = false;
};

void ScriptRun::Run(FileHandle& handle) {
    handle_ = &handle;
    handle.Rewind();
    while (!handle.AtEnd() && !ended_ && interpreter_.TakeTurn()) {
        ReadLine();
        RunCurrentLine();
    }
    if (interpreter_.IsAborted()) {
        AppendAbortedOnce(output);
    }
    if (!ended_ && output.ends_with(kLineBreak)) {
        output.resize(output.size() - kLineBreak.size());
    }
}

void ScriptRun::ReadLine() {
    const std::size_t index = handle_->Position();
    line_ = handle_->ReadLine();
    lineKinds_ = ScriptIndexOf(handle_->File()).lineKinds[index];
    ++lineCounter;
}

void ScriptRun::ReadUntil(unsigned kinds) {
    while (!handle_->AtEnd()) {
        ReadLine();
        if (Is(kinds)) {
            return;
        }
    }
}

void ScriptRun::RunCurrentLine() {
    if (conditionHeld_ && Is(kElseLine)) {
        ReadUntil(kEndIfLine);
    }
    if (IsEmptyLine(line_)) {
        Append(kLineBreak);
    }
    if (IsCommentLine(line_)) {
        return;
    }
    if (Is(kStatementOnlyLine)) {
        Append(interpreter_.ExpandEntry(line_));
        return;
    }
    if (Is(kEndLine)) {
        ended_ = true;
        return;
    }
    if (Is(kGotoLine)) {
        conditionHeld_ = false;
        JumpToLabel();
    }
    conditionHeld_ = !Is(kIfLine) || ConditionHolds(Trimmed(line_).substr(kIfKeyword.size()));
    if (!conditionHeld_) {
        ReadUntil(kEndIfLine | kElseLine);
    }
    if (Is(kIfLine | kElseLine | kEndIfLine | kGotoLine | kLabelLine)) {
        return;
    }
    const std::string result = interpreter_.ExpandEntry(line_);
    if (result == kLineBreak) {
        Append(result);
    } else if (!Trimmed(result).empty()) {
        Append(result);
        Append(kLineBreak);
    }
}

/// The line with the label becomes the current one; without such a label the last line does, and
/// the script is at its end.
void ScriptRun::JumpToLabel() {
    const std::string_view label = Trimmed(line_).substr(kGotoKeyword.size());
    const std::size_t lineCount = handle_->File().LineCount();
    const std::size_t found = FindLabel(handle_->File(), label);
    const std::size_t target = found < lineCount ? found : lineCount - 1;
    handle_->GoTo(target);
    lineCounter = target;
    ReadLine();
}

/// The text behind "IF". " AND " is split first, so OR binds tighter.
bool ScriptRun::ConditionHolds(std::string_view text) {
    return SplitCondition(
        text, " AND ", [this](std::string_view part) { return AnyHolds(part); },
        [](bool left, bool right) { return left && right; });
}

bool ScriptRun::AnyHolds(std::string_view text) {
    return SplitCondition(
        text, " OR ",
        [this](std::string_view part) {
            std::string condition(part);
            interpreter_.SubstituteVariables(condition);
            // The text of an aborted run is no condition, and no error of the script.
            return !interpreter_.IsAborted() && interpreter_.EvaluateExpr(condition).AsTruth();
        },
        [](bool left, bool right) { return left || right; });
}

/// Splits at each `word`, and evaluates all parts, the rightmost first.
template <typename Part, typename Combine>
bool ScriptRun::SplitCondition(std::string_view text, std::string_view word, Part part,
                               Combine combine) {
    std::vector<std::string> lefts;
    for (std::size_t i = text.find(word); i != std::string_view::npos; i = text.find(word)) {
        // Each side is a condition of its own again and begins with the blank behind its "IF"; on
        // the right this is the blank that ends the word.
        lefts.emplace_back(" ").append(text.substr(0, i + 1));
        text = text.substr(i + word.size() - 1);
    }
    bool holds = part(text);
    for (auto left = lefts.rbegin(); left != lefts.rend(); ++left) {
        const bool leftHolds = part(*left);
        holds = combine(leftHolds, holds);
    }
    return holds;
}

void ScriptRun::Append(std::string_view text) {
    output.append(text);
    CheckOutputSize(output.size());
}

std::string Interpreter::RunScript(std::string_view path, bool fromRunner) {
    const std::string fullPath = FromCurrentDirectory(files_, path);
    path = fullPath;
    const ChainLink link(*this, path);
    const FolderId savedFolder = files_.CurrentFolder();
    const std::string_view folder = DirectoryPart(path);
    ScriptRun run(*this);
    std::string description;
    bool failed = true;
    try {
        if (!folder.empty()) {
            EnterFolder(folder);
        }
        const std::shared_ptr<const TextFile> file = files_.OpenText(FileName(path));
        OpenedFile opened(openFiles_, path, *file);
        run.Run(opened.Handle());
        failed = false;
    } catch (const Failure& failure) {
        description = failure.what();
    } catch (const FileError& error) {
        description = DescriptionOf(error);
    }
    if (failed) {
        run.output.append(kLineBreak).append("Errors in script ").append(kLineBreak);
        run.output.append(path).append(kLineBreak);
        run.output.append("Line :").append(std::to_string(run.lineCounter)).append(kLineBreak);
        run.output.append("Error description :").append(description).append(kLineBreak);
        run.output.append("Current Directory :").append(files_.CurrentDirectory());
    }
    ResetScriptDirectory(HasDrive(path) ? folder : std::string_view{}, savedFolder);
    if (failed || fromRunner || run.output.empty()) {
        return std::move(run.output);
    }
    return ApplyCaseOfScriptName(LetterCaseOfName(path), std::move(run.output));
}

/// A script given with a drive leaves the current directory at its own folder, any other the one
/// that was current before.
void Interpreter::ResetScriptDirectory(std::string_view scriptFolder, FolderId savedFolder) {
    if (scriptFolder.empty()) {
        files_.SetCurrentFolder(savedFolder);
        return;
    }
    try {
        EnterFolder(scriptFolder);
    } catch (const FileError&) {
        // The report has told already that the folder cannot be entered.
    }
}

}  // namespace quenloft
