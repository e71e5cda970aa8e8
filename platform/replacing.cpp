#include "platform/replacing.h"

#include "platform/dialogs.h"
#include "platform/file_system.h"

namespace quenloft {
namespace {

std::string LastName(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

}  // namespace

bool MayReplace(FileSystem& files, Dialogs& dialogs, const std::string& path) {
    files.LookAgain();
    const std::string there = files.AbsolutePath(path);
    return LastName(there) == LastName(path) || !files.FileExists(there) ||
           dialogs.AskYesNo("The file " + files.NativePath(there) +
                            " exists already. Replace it?") == Answer::Yes;
}

}  // namespace quenloft
