// The engine's host in the program with windows.
#pragma once

#include <QElapsedTimer>

#include "engine/host.h"

namespace quenloft {

class Dialogs;

class QtEngineHost : public EngineHost {
  public:
    explicit QtEngineHost(Dialogs& dialogs);

    /// Processes events once the last turn of the event loop is 15 ms ago.
    bool Yield() override;
    void ShowMessage(const std::string& text) override;
    std::string AskForText(const std::string& prompt) override;
    std::size_t StackBytesLeft() override;

  private:
    Dialogs& dialogs_;
    QElapsedTimer sinceEvents_;
};

}  // namespace quenloft
