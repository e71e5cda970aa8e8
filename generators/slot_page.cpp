#include "generators/slot_page.h"

#include <utility>
#include <vector>

#include "engine/engine.h"
#include "generators/working_folder.h"
#include "platform/profile_file.h"

namespace quenloft {
namespace {

constexpr char kSection[] = "ListPage";

std::string KeyOf(int index) { return "Table" + std::to_string(index); }

bool IsIndex(int index) { return index >= 0 && index < SlotPage::kSlots; }

}  // namespace

bool SlotPage::Bind(int index, TableSlot slot) {
    if (!IsIndex(index)) {
        return false;
    }
    slots_[index] = std::move(slot);
    return true;
}

const TableSlot& SlotPage::At(int index) const {
    static const TableSlot kEmpty;
    return IsIndex(index) ? slots_[index] : kEmpty;
}

void SlotPage::Restore(Engine& engine, ProfileFile& profile) {
    FileSystem& files = engine.Files();
    const std::string file = profile.GetProfileFileName();
    files.LookAgain();
    for (int index = 0; index < kSlots; ++index) {
        const std::string path = profile.ReadProfileString(kSection, KeyOf(index), "", file);
        if (path.empty() || !files.FileExists(path)) {
            slots_[index] = {};
            continue;
        }
        slots_[index] = BindTable(engine, path);
        EnterFolder(engine, slots_[index].folder);
    }
}

void SlotPage::Save(FileSystem& files, ProfileFile& profile) const {
    const std::string file = profile.GetProfileFileName();
    std::vector<ProfileEntry> entries;
    for (int index = 0; index < kSlots; ++index) {
        if (slots_[index].IsEmpty()) {
            continue;
        }
        std::string path = files.NativePath(slots_[index].path);
        if (profile.ReadProfileString(kSection, KeyOf(index), "", file) != path) {
            entries.push_back({kSection, KeyOf(index), std::move(path)});
        }
    }
    profile.WriteProfileStrings(entries, file);
}

}  // namespace quenloft
