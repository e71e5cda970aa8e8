// Writing a file so that the old content or the new stands on disk, never a mixture.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

/// Replaces or creates the file at `nativePath` (the bytes as the system knows it). A symbolic link
/// stays one: its target is replaced. Permissions are kept, owner and group where the system lets
/// them be. Throws FileError whose sentence names the file and the system's reason; no temporary
/// file is left behind then, and unless only the folder's own flush failed the old file is intact.
void WriteFileAtomically(const std::string& nativePath, std::string_view bytes);

}  // namespace quenloft
