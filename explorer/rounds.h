// Running a table or script several times in a row.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace quenloft {

inline constexpr int kMostRounds = 100'000;

/// How many rounds a text box asks for: the leading number rounded half to even; 1 where there is
/// none or it is below 1; kMostRounds at most.
int RoundsFromText(std::string_view text);

/// What RunRounds needs from its window.
struct RoundsWork {
    std::function<std::string()> roll;  ///< One finished result.
    std::function<bool()> isAborted;    ///< Looked at after each round.
    std::function<void()> yield;        ///< Lets other events have a turn.
    /// Adds to the output. False when an abort cut that, and the output says so.
    std::function<bool(std::string_view)> append;
};

/// The results, two line breaks between them, appended in few pieces: not one by one, and yet so
/// often that the user sees the run going on. After an abort the output ends with
/// "Process Aborted!" and no further round begins.
void RunRounds(int rounds, const RoundsWork& work);

}  // namespace quenloft
