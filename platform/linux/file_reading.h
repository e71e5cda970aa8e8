// Opening and reading whole files with every answer of the system checked.
#pragma once

#include <cstddef>
#include <string>

#include "platform/linux/file_descriptor.h"

namespace quenloft {

/// Opens a regular file for reading. Throws FileError for anything else; a pipe or a device never
/// makes it wait.
FileDescriptor OpenForReading(const std::string& diskPath);

/// Up to `size` bytes into `buffer`; 0 at the end of the file. Throws FileError.
std::size_t ReadSome(int file, char* buffer, std::size_t size, const std::string& diskPath);

/// All bytes from here on. Throws FileError, also for more than a gigabyte.
std::string ReadToEnd(int file, const std::string& diskPath);

}  // namespace quenloft
