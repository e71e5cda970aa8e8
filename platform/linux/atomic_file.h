// Writing a file so that the old content or the new stands on disk, never a mixture.
#pragma once

#include <string>
#include <string_view>
#include <sys/types.h>

namespace quenloft {

/// Replaces or creates the file at `nativePath` (the bytes as the system knows it). A symbolic link
/// stays one: its target is replaced. Permissions are kept, owner and group where the system lets
/// them be. Throws FileError whose sentence names the file and the system's reason; no temporary
/// file is left behind then, and unless only the folder's own flush failed the old file is intact.
/// A file that is new gets the permissions `newMode`, less the user's mask.
void WriteFileAtomically(const std::string& nativePath, std::string_view bytes,
                         mode_t newMode = 0666);

}  // namespace quenloft
