// The library path of the settings.
#pragma once

#include <string>

namespace quenloft {

class FileSystem;
class ProfileFile;

/// "Settings"/"Libpath" as it stands in the profile now; the executable's folder where it is
/// missing or empty. The folder need not exist.
std::string ReadLibraryPath(ProfileFile& profile);

/// Makes the library path the current directory. Where it is no folder, nothing changes.
void EnterLibrary(ProfileFile& profile, FileSystem& files);

}  // namespace quenloft
