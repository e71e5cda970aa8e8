#include "editors/toolbox/quick_tables.h"

#include <algorithm>

#include "engine/engine.h"
#include "engine/text_helpers.h"
#include "platform/letter_case.h"
#include "platform/profile_file.h"

namespace quenloft {
namespace {

constexpr char kSection[] = "Toolbox";
// Larger trees are no libraries; looking through them would hold up the toolbox.
constexpr std::size_t kMostFolders = 500;

std::string KeyOf(int index) { return "QuickTable" + std::to_string(index); }

bool IsSameName(std::string_view left, std::string_view right) {
    return FoldCase(left) == FoldCase(right);
}

}  // namespace

std::string ReferenceNameOf(FileSystem& files, std::string_view path) {
    return std::string(FileBaseName(files.AbsolutePath(path)));
}

void QuickTables::Bind(int index, Engine& engine, std::string_view path) {
    engine.Files().LookAgain();
    slots_.at(static_cast<std::size_t>(index)) = {ReferenceNameOf(engine.Files(), path),
                                                  engine.ReadTableTitle(path)};
}

void QuickTables::Restore(Engine& engine, ProfileFile& profile, const std::string& library) {
    const std::string file = profile.GetProfileFileName();
    for (int index = 0; index < kSlots; ++index) {
        slots_.at(static_cast<std::size_t>(index)) = {
            profile.ReadProfileString(kSection, KeyOf(index), "", file), {}};
    }
    FileSystem& files = engine.Files();
    files.LookAgain();
    std::vector<std::string> folders{files.AbsolutePath(library)};
    for (std::size_t i = 0; i < std::min(folders.size(), kMostFolders) && LacksTitles(); ++i) {
        ReadTitles(engine, std::string(folders[i]), folders);
    }
    std::vector<std::string> ignored;
    ReadTitles(engine, files.CurrentDirectory(), ignored);
    for (QuickTable& slot : slots_) {
        if (slot.title.empty()) {
            slot.title = slot.name;
        }
    }
}

void QuickTables::Save(ProfileFile& profile) const {
    const std::string file = profile.GetProfileFileName();
    std::vector<ProfileEntry> entries;
    for (int index = 0; index < kSlots; ++index) {
        const std::string& name = At(index).name;
        if (!name.empty() && profile.ReadProfileString(kSection, KeyOf(index), "", file) != name) {
            entries.push_back({kSection, KeyOf(index), name});
        }
    }
    profile.WriteProfileStrings(entries, file);
}

void QuickTables::ReadTitles(Engine& engine, const std::string& folder,
                             std::vector<std::string>& subfolders) {
    try {
        for (const FolderEntry& entry : engine.Files().ListFolder(folder)) {
            if (!entry.isFolder) {
                ReadTitle(engine, folder, entry.name);
            } else if (!entry.isHidden) {
                subfolders.push_back(folder + "\\" + entry.name);
            }
        }
    } catch (const FileError&) {
        // Titles are a convenience: what cannot be looked into has none.
    }
}

void QuickTables::ReadTitle(Engine& engine, const std::string& folder, std::string_view fileName) {
    if (!IsTablePath(fileName)) {
        return;
    }
    for (QuickTable& slot : slots_) {
        if (!slot.name.empty() && slot.title.empty() &&
            IsSameName(slot.name, FileBaseName(fileName))) {
            slot.title = engine.ReadTableTitle(folder + "\\" + std::string(fileName));
        }
    }
}

bool QuickTables::LacksTitles() const {
    return std::any_of(slots_.begin(), slots_.end(), [](const QuickTable& slot) {
        return !slot.name.empty() && slot.title.empty();
    });
}

}  // namespace quenloft
