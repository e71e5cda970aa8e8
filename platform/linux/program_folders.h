// Where the parts of an installed program lie.
#pragma once

#include <string>

namespace quenloft {

/// `<prefix>/share/quenloft` of a program that was installed as `<prefix>/bin/quenloft`; empty for
/// one that runs from a folder of its own. Native paths; links to the program are followed.
std::string SharedFolder(const std::string& executablePath);

}  // namespace quenloft
