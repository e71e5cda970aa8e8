#include "generators/table_slot.h"

#include "engine/engine.h"
#include "generators/working_folder.h"

namespace quenloft {

TableSlot BindTable(Engine& engine, std::string_view path) {
    FileSystem& files = engine.Files();
    // The file may be newer than the last look at its folder.
    files.LookAgain();
    TableSlot slot;
    slot.path = files.AbsolutePath(path);
    slot.folder = FolderOf(files, slot.path);
    slot.title = engine.ReadTableTitle(slot.path);
    return slot;
}

std::string RollSlot(Engine& engine, const TableSlot& slot) {
    engine.ResetGeneration();
    if (slot.IsEmpty()) {
        return "No file loaded!";
    }
    EnterFolder(engine, slot.folder);
    std::string result = engine.RollTable(slot.path);
    engine.ResetGeneration();
    return result;
}

}  // namespace quenloft
