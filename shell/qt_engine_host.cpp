#include "shell/qt_engine_host.h"

#include <QCoreApplication>

#include "platform/dialogs.h"
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
    dialogs_.ShowMessage(text, MessageIcon::None);
    sinceEvents_.restart();
}

std::string QtEngineHost::AskForText(const std::string& prompt) {
    const std::string answer = dialogs_.AskText(prompt, "").value_or("");
    sinceEvents_.restart();
    return answer;
}

std::size_t QtEngineHost::StackBytesLeft() { return quenloft::StackBytesLeft(); }

}  // namespace quenloft
