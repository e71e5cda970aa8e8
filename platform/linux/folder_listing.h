// All that lies in one folder.
#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace quenloft {

/// In byte order of the names, without "." and "..". A symbolic link to a folder is a folder.
/// Throws FileError.
std::vector<FolderEntry> ListDiskFolder(const std::string& diskPath);

}  // namespace quenloft
