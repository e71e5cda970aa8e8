#include "generators/script_place.h"

#include "engine/engine.h"
#include "engine/text_helpers.h"
#include "generators/working_folder.h"

namespace quenloft {
namespace {

bool IsAbsolute(std::string_view path) {
    const bool hasDrive = path.size() >= 2 && path[1] == ':';
    return hasDrive || path.starts_with('/') || path.starts_with('\\');
}

}  // namespace

std::string ScriptPath(FileSystem& files, std::string_view folder, std::string_view typed) {
    // A relative name may begin with a blank, a full path cannot.
    const std::string_view trimmed = Trimmed(typed);
    typed = IsAbsolute(trimmed) ? trimmed : typed;
    if (folder.empty() || IsAbsolute(typed)) {
        return files.AbsolutePath(typed);
    }
    return files.AbsolutePath(std::string(folder) + "\\" + std::string(typed));
}

std::string RunScriptAt(Engine& engine, const std::string& folder, std::string_view typed) {
    // The folder or the file may be newer than the last look.
    engine.Files().LookAgain();
    if (!folder.empty()) {
        EnterFolder(engine, folder);
    }
    engine.ResetGeneration();
    return engine.RunScript(ScriptPath(engine.Files(), folder, typed), true);
}

}  // namespace quenloft
