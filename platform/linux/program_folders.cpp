#include "platform/linux/program_folders.h"

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

}  // namespace quenloft
