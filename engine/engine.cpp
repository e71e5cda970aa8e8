#include "engine/engine.h"

#include <new>

#include "engine/failure.h"
#include "engine/interpreter.h"
#include "engine/reference_targets.h"
#include "engine/table_file.h"
#include "engine/text_helpers.h"

namespace quenloft {

namespace {

std::string StoppedText(const char* reason) {
    return std::string("The run was stopped: ") + reason + ".";
}

}  // namespace

Engine::Engine(FileSystem& files, RandomSource& random, EngineHost& host)
    : files_(files),
      host_(host),
      interpreter_(std::make_unique<Interpreter>(files, random, host)) {}

Engine::~Engine() = default;

void Engine::ResetGeneration() {
    interpreter_->ResetGeneration();
    files_.LookAgain();
}

/// The border that no failure crosses: each becomes a text.
template <typename Work>
std::string Engine::Run(std::string_view path, Work work) {
    if (running_) {
        return {};
    }
    running_ = true;
    const FolderId folder = files_.CurrentFolder();
    interpreter_->BeginRun(host_.StackBytesLeft());
    std::string result;
    try {
        // A native path names its file from the root on; the language knows drives only.
        result = path.starts_with('/') ? work(PathAsSpelled(files_, path)) : work(path);
    } catch (const RunStopped& stopped) {
        files_.SetCurrentFolder(folder);
        result = StoppedText(stopped.what());
    } catch (const std::bad_alloc&) {
        result = StoppedText("the machine's memory is used up");
    } catch (const std::runtime_error&) {
        result = FailedReferenceText(path);
    }
    running_ = false;
    files_.SyncProcessDirectory();
    return result;
}

std::string Engine::RollTable(std::string_view path, std::int32_t forcedRoll) {
    return Run(path,
               [&](std::string_view table) { return interpreter_->RollTable(table, forcedRoll); });
}

std::string Engine::RunScript(std::string_view path, bool fromRunner) {
    return Run(
        path, [&](std::string_view script) { return interpreter_->RunScript(script, fromRunner); });
}

std::string Engine::ReadTableTitle(std::string_view path) {
    try {
        return ReadTitle(*files_.ReadLines(path));
    } catch (const FileError&) {
        return std::string(kInvalidHeader);
    }
}

void Engine::SetAbortFlag() { interpreter_->SetAbortFlag(true); }

void Engine::ClearAbortFlag() { interpreter_->SetAbortFlag(false); }

bool Engine::IsAborted() const { return interpreter_->IsAborted(); }

}  // namespace quenloft
