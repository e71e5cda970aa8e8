// The program's title and version, as shown in captions, message boxes and printed footers.
#pragma once

#include <string>

namespace quenloft {

/// "Quenloft".
std::string ApplicationTitle();
/// "1.0.7": major, minor and revision from the build.
std::string ProgramVersion();
/// Title, a blank and the version: "Quenloft 1.0.7".
std::string ProgramTitle();

}  // namespace quenloft
