#include "shell/qt_engine_host.h"

#include <QCoreApplication>

#include "platform/linux/stack_left.h"

namespace quenloft {
namespace {

// A screen shows at most 60 pictures a second: more turns would only slow the run down.
constexpr qint64 kMillisecondsBetweenTurns = 15;

}  // namespace

QtEngineHost::QtEngineHost(Dialogs& dialogs) : dialogs_(dialogs) { sinceEvents_.start(); }

bool QtEngineHost::Yield() {
    if (sinceEvents_.elapsed() < kMillisecondsBetweenTurns) {
        return false;
    }
    QCoreApplication::processEvents();
    sinceEvents_.restart();
    return true;
}

void QtEngineHost::ShowMessage(const std::string& text) {
    dialogs_.ShowMessageOfRun(text, aborted_);
}

std::string QtEngineHost::AskForText(const std::string& prompt) {
    return dialogs_.AskTextOfRun(prompt, aborted_).value_or("");
}

std::size_t QtEngineHost::StackBytesLeft() { return quenloft::StackBytesLeft(); }

}  // namespace quenloft
