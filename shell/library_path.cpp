#include "shell/library_path.h"

#include "engine/text_helpers.h"
#include "platform/file_system.h"
#include "platform/profile_file.h"

namespace quenloft {

std::string ReadLibraryPath(ProfileFile& profile) {
    const std::string beside(DirectoryPart(profile.GetApplicationBaseName()));
    const std::string path =
        profile.ReadProfileString("Settings", "Libpath", beside, profile.GetProfileFileName());
    if (path.empty()) {
        return beside;
    }
    const bool isAbsolute = HasDrive(path) || path.front() == '/' || path.front() == '\\';
    return isAbsolute ? path : beside + "\\" + path;
}

void EnterLibrary(ProfileFile& profile, FileSystem& files) {
    try {
        files.ChangeDirectory(ReadLibraryPath(profile));
        files.SyncProcessDirectory();
    } catch (const FileError&) {
        // The library explorer says that the folder is missing; start-up goes on.
    }
}

}  // namespace quenloft
