// One table bound to a button: what it is and how it is rolled.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

class Engine;

struct TableSlot {
    std::string path;    ///< Library path; empty where no table is bound.
    std::string folder;  ///< Library path of the folder that is current while the table is rolled.
    std::string title;

    bool IsEmpty() const { return path.empty(); }
};

/// The title of a slot without a table.
inline constexpr char kEmptySlotTitle[] = "Click the button on the right to select a table";
inline constexpr char kTableFilter[] = "Table (*.tbl)|*.tbl|All files (*.*)|*.*";

/// A slot with the table at `path` (of either form, relative ones to the current directory) and the
/// title in its header. The file need not be a table: its title then says so.
TableSlot BindTable(Engine& engine, std::string_view path);

/// One result of the slot's table; "No file loaded!" where there is none. Variables of runs before
/// and of this run are gone afterwards. Failures come back as text.
std::string RollSlot(Engine& engine, const TableSlot& slot);

}  // namespace quenloft
