// The tables behind the quick buttons of the insert toolbox, and their memory in the profile.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quenloft {

class Engine;
class FileSystem;
class ProfileFile;

struct QuickTable {
    std::string name;   ///< Of the file, without folder and extension; empty where none is bound.
    std::string title;  ///< In its header.
};

/// The file's name without folder, cut before its first ".": what a reference calls it.
std::string ReferenceNameOf(FileSystem& files, std::string_view path);

class QuickTables {
  public:
    /// The profile remembers more slots than the toolbox has buttons for.
    static constexpr int kSlots = 21;
    static constexpr int kButtons = 10;

    /// The table at `path` takes slot `index`, which is below kSlots.
    void Bind(int index, Engine& engine, std::string_view path);
    const QuickTable& At(int index) const { return slots_.at(static_cast<std::size_t>(index)); }

    /// Reads "QuickTable0" to "QuickTable20" of section "Toolbox". They hold no folder: titles are
    /// those of the tables of these names in the library, nearest to its root first, or else in the
    /// current folder. A table that is found in neither keeps its name for a title.
    void Restore(Engine& engine, ProfileFile& profile, const std::string& library);
    /// Writes the slots that hold a table where they differ from what is remembered.
    void Save(ProfileFile& profile) const;

  private:
    void ReadTitles(Engine& engine, const std::string& folder,
                    std::vector<std::string>& subfolders);
    void ReadTitle(Engine& engine, const std::string& folder, std::string_view fileName);
    bool LacksTitles() const;

    std::array<QuickTable, kSlots> slots_;
};

}  // namespace quenloft
