// The readme that ships with the program.
#pragma once

#include <string>
#include <vector>

namespace quenloft {

class FileSystem;

/// The text of "readme.txt" in the first of `folders` (native or library paths) that has one, every
/// line ended by CR LF. Where none has, or the file cannot be read, a text that says so and where
/// it was looked for.
std::string ReadmeText(FileSystem& files, const std::vector<std::string>& folders);

}  // namespace quenloft
