// Files that a save would replace without the user knowing.
#pragma once

#include <string>

namespace quenloft {

class Dialogs;
class FileSystem;

/// A file dialog asks about the very name that was typed. Names here match without regard to case,
/// so another file may be meant: asks about that one. False when it must stay. `path` is native.
bool MayReplace(FileSystem& files, Dialogs& dialogs, const std::string& path);

}  // namespace quenloft
