#include "shell/sample_library.h"

#include <optional>
#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/profile_file.h"
#include "shell/service_set.h"

namespace quenloft {
namespace {

constexpr char kSection[] = "Settings";
constexpr char kKey[] = "Libpath";
constexpr char kQuestion[] =
    "Quenloft comes with a sample library of tables and scripts. Copy it into a folder of your "
    "own, where you can change it?";

// Folders and files below `folder`, each after the folder that it is in, relative to `root`.
void AddContent(FileSystem& files, const std::string& root, const std::string& folder,
                std::vector<FolderEntry>& content) {
    for (const FolderEntry& entry : files.ListFolder(root + folder)) {
        const std::string path = folder + "/" + entry.name;
        content.push_back({path, entry.isFolder, entry.isHidden});
        if (entry.isFolder) {
            AddContent(files, root, path, content);
        }
    }
}

void CopyFolder(FileSystem& files, const std::string& from, const std::string& to) {
    // Looked at whole before anything is made: `to` may lie in `from`.
    std::vector<FolderEntry> content;
    AddContent(files, from, "", content);
    files.CreateFolder(to);
    for (const FolderEntry& entry : content) {
        if (entry.isFolder) {
            files.CreateFolder(to + entry.name);
        } else {
            files.WriteBytes(to + entry.name, files.ReadBytes(from + entry.name));
        }
    }
}

// Nothing that is there is written over.
std::string NewFolderIn(FileSystem& files, const std::string& folder) {
    const std::string name = folder + "/Quenloft library";
    std::string path = name;
    for (int number = 2; files.FolderExists(path) || files.FileExists(path); ++number) {
        path = name + " " + std::to_string(number);
    }
    return path;
}

// The copy's path; nothing where the user wants none or it could not be made.
std::optional<std::string> Copy(const ServiceSet& services, const std::string& sample) {
    if (services.dialogs.AskYesNo(kQuestion) != Answer::Yes) {
        return std::nullopt;
    }
    const char* home = std::getenv("HOME");
    const auto folder =
        services.dialogs.ChooseFolder("Choose where your library shall lie", home ? home : "/");
    if (!folder) {
        return std::nullopt;
    }
    std::string target = NewFolderIn(services.files, *folder);
    try {
        CopyFolder(services.files, sample, target);
        return target;
    } catch (const FileError& error) {
        const bool isPartThere = services.files.FolderExists(target);
        services.dialogs.ShowMessage(
            "The sample library could not be copied. " + std::string(error.what()) + "." +
                (isPartThere ? " Only a part of it lies in " + target + "." : "") +
                "\r\nIt is shown where it is installed; you can choose another library under File, "
                "Settings.",
            MessageIcon::Warning);
        return std::nullopt;
    }
}

}  // namespace

void OfferSampleLibrary(const ServiceSet& services, const std::string& sharedFolder) {
    ProfileFile& profile = services.profile;
    const std::string file = profile.GetProfileFileName();
    if (sharedFolder.empty() || !profile.ReadProfileString(kSection, kKey, "", file).empty()) {
        return;
    }
    const std::string sample = sharedFolder + "/library";
    profile.WriteProfileString(kSection, kKey, Copy(services, sample).value_or(sample), file);
}

}  // namespace quenloft
