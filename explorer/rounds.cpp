#include "explorer/rounds.h"

#include <chrono>

#include "engine/interpreter.h"
#include "engine/numbers.h"
#include "engine/text_helpers.h"

namespace quenloft {
namespace {

// Often enough to look alive; seldom enough that drawing costs little of the run's time.
constexpr std::chrono::milliseconds kBetweenPieces(100);

}  // namespace

int RoundsFromText(std::string_view text) {
    const double number = NumericPrefix(text);
    if (number >= kMostRounds) {
        return kMostRounds;
    }
    return number < 1 ? 1 : RoundToInt32(number);
}

void RunRounds(int rounds, const RoundsWork& work) {
    using Clock = std::chrono::steady_clock;
    auto lastPiece = Clock::now();
    std::string piece;
    for (int round = 0; round < rounds; ++round) {
        if (round > 0) {
            piece.append(kLineBreak).append(kLineBreak);
        }
        piece += work.roll();
        if (work.isAborted()) {
            // A round that was finished when the command came does not say so itself.
            if (!piece.ends_with(kAbortedText)) {
                piece.append(kLineBreak).append(kLineBreak).append(kAbortedText);
            }
            break;
        }
        if (Clock::now() - lastPiece >= kBetweenPieces) {
            if (!work.append(piece)) {
                return;
            }
            piece.clear();
            lastPiece = Clock::now();
        }
        work.yield();
    }
    work.append(piece);
}

}  // namespace quenloft
