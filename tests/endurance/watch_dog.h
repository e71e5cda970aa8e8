// Ends the process where one action never ends: a hang is a failure with a name then.
#pragma once

#include <csignal>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace quenloft {

/// Another action begins, which gets a minute. In the thread that calls it a debugger or sanitizer
/// shows where it hangs.
inline void WatchAction(const std::string& action) {
    static std::string current;  // The handler can be handed nothing.
    alarm(0);
    current = "More than a minute: " + action + "\n";
    std::signal(SIGALRM, [](int) {
        [[maybe_unused]] const auto written = write(STDERR_FILENO, current.data(), current.size());
        std::abort();
    });
    constexpr unsigned kSeconds = 60;
    alarm(kSeconds);
}

/// Whatever comes now may take its time.
inline void StopWatching() { alarm(0); }

}  // namespace quenloft
