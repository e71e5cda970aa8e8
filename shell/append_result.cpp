#include "shell/append_result.h"

#include <QElapsedTimer>
#include <string>

#include "engine/engine.h"
#include "engine/host.h"
#include "engine/interpreter.h"
#include "engine/text_helpers.h"
#include "shell/text_box.h"

namespace quenloft {
namespace {

// The box takes some 10 ms for the shortest lines of this many bytes, which is a turn's time.
constexpr std::size_t kPiece = 16'384;
// The abort command promises an end within a quarter of a second.
constexpr qint64 kMillisecondsAfterAbort = 100;

// The length of the first piece of `text`: whole lines, one however long or as many as fit.
std::size_t PieceLength(std::string_view text) {
    if (text.size() <= kPiece) {
        return text.size();
    }
    std::size_t lineEnd = text.substr(0, kPiece).rfind('\n');
    if (lineEnd == std::string_view::npos) {
        lineEnd = text.find('\n');
    }
    return lineEnd == std::string_view::npos ? text.size() : lineEnd + 1;
}

}  // namespace

bool AppendResult(TextBox& box, std::string_view result, const Engine& engine, EngineHost& host) {
    QElapsedTimer sinceAbort;
    while (!result.empty()) {
        const std::size_t length = PieceLength(result);
        box.AppendText(result.substr(0, length));
        result.remove_prefix(length);
        if (result.empty()) {
            break;
        }
        host.Yield();
        if (engine.IsAborted() && !sinceAbort.isValid()) {
            sinceAbort.start();
        }
        if (sinceAbort.isValid() && sinceAbort.hasExpired(kMillisecondsAfterAbort)) {
            box.AppendText(std::string(kLineBreak).append(kLineBreak).append(kAbortedText));
            return false;
        }
    }
    return true;
}

}  // namespace quenloft
