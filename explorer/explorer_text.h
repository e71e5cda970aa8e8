// The texts of the library explorer that are put together from parts.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

/// What Print and Export take: the output, an empty line, and a footer that names the file (a
/// native path), the program and the date.
std::string ExportText(std::string_view output, std::string_view file, std::string_view program,
                       std::string_view date);

std::string DeleteQuestion(std::string_view label, std::string_view nativePath);

/// Shown in place of a library that is not there; `reason` as of FileError.
std::string MissingLibraryText(std::string_view nativePath, std::string_view reason);

}  // namespace quenloft
