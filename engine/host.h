// What the engine asks of the program that runs it.
#pragma once

#include <cstddef>
#include <string>

namespace quenloft {

class EngineHost {
  public:
    virtual ~EngineHost() = default;

    /// Lets the event loop have its turn, so that the abort command can be given. Called very
    /// often: it must cost no more than a look at a clock when it is not yet time. True when
    /// anything else had a turn: files may have changed since.
    virtual bool Yield() = 0;
    /// A box with an OK button; returns when the user has answered.
    virtual void ShowMessage(const std::string& text) = 0;
    /// Asks for a line of text; empty on cancel.
    virtual std::string AskForText(const std::string& prompt) = 0;
    /// Bytes of stack still free below the caller, asked for once a run: recursion ends before
    /// them. platform/linux/stack_left.h knows.
    virtual std::size_t StackBytesLeft() = 0;
};

}  // namespace quenloft
