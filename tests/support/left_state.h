// A start of the program in which texts are kept, and one that comes after its end.
#pragma once

#include <filesystem>
#include <string>

#include "shell/recovery/recovery.h"
#include "shell/window_kinds.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {

/// One start: its windows and what they keep, looked at every millisecond.
struct Start {
    Start(const ServiceSet& services, SystemRandomSource& random, const std::string& state)
        : recovery(state, services.dialogs), window(services, MakeWindowKinds(random, &recovery)) {
        recovery.Begin(window.Area(), std::chrono::milliseconds(1));
        window.resize(1024, 768);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    Recovery recovery;
    frmMain window;
};

/// All the kept files below `state`.
inline std::vector<std::string> KeptFiles(const std::string& state) {
    std::vector<std::string> files;
    std::error_code error;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(state, error)) {
        if (entry.path().extension() == kKeptSuffix) {
            files.push_back(entry.path().string());
        }
    }
    return files;
}

/// Waits until so many texts are kept below `state`.
inline bool WaitForKept(const std::string& state, std::size_t count) {
    return QTest::qWaitFor([&] { return KeptFiles(state).size() == count; });
}

/// What is left of `state` when the program is killed now. Returns the other folder.
inline std::string StateAfterKill(const std::string& state, const std::string& copy) {
    std::filesystem::copy(state, copy, std::filesystem::copy_options::recursive);
    return copy;
}

}  // namespace quenloft
