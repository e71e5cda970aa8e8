// Where the parts of an installed program lie.
#pragma once

#include <string>

namespace quenloft {

/// `<prefix>/share/quenloft` of a program that was installed as `<prefix>/bin/quenloft`; empty for
/// one that runs from a folder of its own. Native paths; links to the program are followed.
std::string SharedFolder(const std::string& executablePath);

/// `$XDG_STATE_HOME/quenloft`, by default `~/.local/state/quenloft`: what lasts from one start to
/// the next and is neither settings nor a document. It need not exist; empty for a user without a
/// home.
std::string StateFolder();

}  // namespace quenloft
