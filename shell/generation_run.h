// Brackets one run of the engine that a user started in a window.
#pragma once

namespace quenloft {

class ChildWindow;
class Workspace;

/// Events are processed inside a run, so a click may try to start a second one: it is refused.
/// However the run ends, the abort command goes away and the process's directory follows the
/// engine's; a window that was closed meanwhile closes then.
class GenerationRun {
  public:
    GenerationRun(Workspace& workspace, ChildWindow& owner);
    ~GenerationRun();
    GenerationRun(const GenerationRun&) = delete;
    GenerationRun& operator=(const GenerationRun&) = delete;

    /// False when another run is going on: the caller does nothing then.
    explicit operator bool() const { return started_; }

  private:
    Workspace& workspace_;
    ChildWindow& owner_;
    const bool started_;
};

}  // namespace quenloft
