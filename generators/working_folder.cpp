#include "generators/working_folder.h"

#include "engine/engine.h"
#include "engine/text_helpers.h"

namespace quenloft {

std::string FolderOf(FileSystem& files, std::string_view path) {
    // With the separator: "Z:" alone is not the root.
    return files.AbsolutePath(std::string(DirectoryPart(files.AbsolutePath(path))) + "\\");
}

void EnterFolder(Engine& engine, const std::string& folder) {
    if (engine.IsRunning() || engine.Files().CurrentDirectory() == folder) {
        return;
    }
    try {
        engine.Files().ChangeDirectory(folder);
    } catch (const FileError&) {
        // The engine tells in the result what it cannot find.
    }
}

}  // namespace quenloft
