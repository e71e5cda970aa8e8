#include "engine/interpreter.h"

#include <algorithm>

#include "engine/expression.h"
#include "engine/failure.h"
#include "engine/limits.h"
#include "engine/text_helpers.h"
#include "platform/letter_case.h"

namespace quenloft {

namespace {

/// Why the chain is at its end: the ring that its last file closes, or the last files of a long
/// row.
std::string ChainText(const std::vector<std::string_view>& chain) {
    constexpr std::ptrdiff_t kMostNames = 12;  // What a person reads in one line.
    const auto before = std::find(chain.rbegin() + 1, chain.rend(), chain.back());
    const bool isRing = before != chain.rend();
    const std::ptrdiff_t length = isRing ? before - chain.rbegin() + 1 : std::ssize(chain);
    const std::ptrdiff_t shown = std::min(length, kMostNames);

    std::string text =
        isRing ? "its files refer to each other in a ring (" : "its files are nested too deep (";
    text += shown < length ? "... > " : "";
    for (auto name = chain.end() - shown; name != chain.end(); ++name) {
        text.append(FileName(*name)).append(name + 1 == chain.end() ? ", " : " > ");
    }
    return text + std::to_string(chain.size()) + " levels)";
}

}  // namespace

Interpreter::Interpreter(FileSystem& files, RandomSource& random, EngineHost& host)
    : files_(files),
      random_(random),
      host_(host),
      dice_(random, host, [this] { return TakeTurn(); }),
      targets_(files) {}

void Interpreter::ResetGeneration() {
    rollCounts_.Clear();
    variables_.Clear();
}

void Interpreter::BeginRun(std::size_t stackBytes) {
    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
    const std::size_t usable =
        stackBytes > 2 * kStackReserve ? stackBytes - kStackReserve : stackBytes / 2;
    stackFloor_ = here - std::min<std::uintptr_t>(here, usable);
}

bool Interpreter::TakeTurn() {
    if (host_.Yield()) {
        files_.LookAgain();
    }
    return !abortFlag_;
}

Value Interpreter::EvaluateExpr(std::string_view text) {
    return quenloft::EvaluateExpr(text, variables_, host_);
}

Interpreter::ChainLink::ChainLink(Interpreter& interpreter, std::string_view path)
    : chain_(interpreter.chain_) {
    chain_.push_back(path);
    if (reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) < interpreter.stackFloor_) {
        const RunStopped stopped(ChainText(chain_));
        chain_.pop_back();
        throw stopped;
    }
}

void AppendAbortedOnce(std::string& text) {
    if (FoldCase(text).find(FoldCase(kAbortedText)) == std::string::npos) {
        text.append(kAbortedText);
    }
}

std::string DescriptionOf(const FileError& error) {
    switch (error.GetKind()) {
        case FileError::Kind::FileNotFound:
            return Failure(FailureNumber::FileNotFound).what();
        case FileError::Kind::PathNotFound:
            return Failure(FailureNumber::PathNotFound).what();
        case FileError::Kind::PermissionDenied:
            return Failure(FailureNumber::PermissionDenied).what();
        case FileError::Kind::Other:
            break;
    }
    return error.what();
}

}  // namespace quenloft
