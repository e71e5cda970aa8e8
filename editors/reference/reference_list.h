// What the reference browser lists of a folder.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quenloft {

class Engine;
class ReferencePlace;

struct ReferenceItem {
    enum class Kind { Folder, Table, Script };

    Kind kind = Kind::Folder;
    std::string name;   ///< As spelled on disk, with its extension.
    std::string title;  ///< The table's; a script's or a folder's name.
};

/// The subfolders, tables and scripts of one folder, those of them that a filter lets through, in
/// order: the rows. Titles of tables are read one by one afterwards, so that a folder of any size
/// is listed at once; until then a table shows the title that it had when it was last listed, at
/// first its file's name.
class ReferenceList {
  public:
    enum class Order { Title, File };

    explicit ReferenceList(Engine& engine);

    /// Lists the folder of `place` as it is on disk now. `showHidden`: also what begins with "~".
    /// A folder that cannot be listed is empty and has a Failure().
    void Fill(const ReferencePlace& place, bool showHidden);
    /// A sentence without a final stop; empty when all went well.
    const std::string& Failure() const { return failure_; }
    /// The folder holds nothing to list, whatever the filter.
    bool IsEmpty() const { return entries_.empty(); }

    /// Reads the next title. False when all are known.
    bool ReadOne();
    bool IsReading() const { return next_ < entries_.size(); }

    /// Lets through what holds each word of `text`, whatever its case, in title or name.
    void SetFilter(std::string_view text);
    /// Folders come first, in any order; equal titles by name.
    void SetOrder(Order order, bool descending);
    /// Which rows there are, and in which order, may change with the titles.
    bool DependsOnTitles() const { return !words_.empty() || order_ == Order::Title; }
    /// Applies filter and order to the titles that became known meanwhile.
    void Arrange();

    std::size_t RowCount() const { return rows_.size(); }
    const ReferenceItem& Row(std::size_t row) const { return entries_[rows_[row]].item; }
    std::optional<std::size_t> RowOf(std::string_view name) const;

  private:
    struct Entry {
        ReferenceItem item;
        std::string nameKey;  // In one case, for comparing.
        std::string titleKey;
    };

    Entry MakeEntry(ReferenceItem item);
    bool IsLetThrough(const Entry& entry) const;
    bool IsBefore(const Entry& left, const Entry& right) const;

    Engine& engine_;
    std::string folder_;  // With a final "\".
    std::vector<Entry> entries_;
    std::size_t next_ = 0;  // Titles before this entry are known.
    std::string failure_;
    std::vector<std::string> words_;
    Order order_ = Order::File;
    bool descending_ = false;
    std::vector<std::size_t> rows_;
    std::unordered_map<std::string, std::string> titles_;  // Last known, by path.
};

}  // namespace quenloft
