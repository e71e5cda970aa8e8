#include "platform/linux/program_folders.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace quenloft {

std::string SharedFolder(const std::string& executablePath) {
    std::error_code error;
    std::filesystem::path executable = std::filesystem::canonical(executablePath, error);
    if (error) {
        executable = executablePath;
    }
    const std::filesystem::path folder = executable.parent_path();
    const std::filesystem::path shared = folder.parent_path() / "share" / "quenloft";
    const bool isInstalled =
        folder.filename() == "bin" && std::filesystem::is_directory(shared, error);
    return isInstalled ? shared.string() : std::string();
}

std::string StateFolder() {
    const auto variable = [](const char* name) {
        const char* value = std::getenv(name);
        return std::string(value ? value : "");
    };
    // A relative path is to be ignored there.
    std::string states = variable("XDG_STATE_HOME");
    if (!states.starts_with('/')) {
        const std::string home = variable("HOME");
        states = home.starts_with('/') ? home + "/.local/state" : "";
    }
    return states.empty() ? states : states + "/quenloft";
}

}  // namespace quenloft
