// The engine's host in the program with windows.
#pragma once

#include <QElapsedTimer>
#include <utility>

#include "engine/host.h"
#include "platform/dialogs.h"

namespace quenloft {

class QtEngineHost : public EngineHost {
  public:
    explicit QtEngineHost(Dialogs& dialogs);

    /// `aborted` says whether the run that is going on is to end: its boxes close then.
    void CloseBoxesWhen(GivenUp aborted) { aborted_ = std::move(aborted); }

    /// Processes events once the last turn of the event loop is 15 ms ago.
    bool Yield() override;
    void ShowMessage(const std::string& text) override;
    std::string AskForText(const std::string& prompt) override;
    std::size_t StackBytesLeft() override;

  private:
    Dialogs& dialogs_;
    GivenUp aborted_ = [] { return false; };
    QElapsedTimer sinceEvents_;
};

}  // namespace quenloft
