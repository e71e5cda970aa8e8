// A result of any size on its way into a box.
#pragma once

#include <string_view>

namespace quenloft {

class Engine;
class EngineHost;
class TextBox;

/// Adds `result` to the end of `box`. A large one takes seconds, so the host gets turns meanwhile:
/// call it inside a GenerationRun, which keeps the box alive. After an abort, of the run or of
/// this, only what can be shown at once is added; where that is not all, "Process Aborted!" behind
/// it. False then.
bool AppendResult(TextBox& box, std::string_view result, const Engine& engine, EngineHost& host);

}  // namespace quenloft
