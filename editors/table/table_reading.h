// From the lines of a table file to the rows of the editor.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "editors/table/table_rows.h"

namespace quenloft {

struct TableReading {
    TableContent content;
    /// What could not be read, in whole sentences; empty where all could.
    std::string faults;
    /// What the grid does not show and saving leaves out: "empty lines", ...
    std::vector<std::string> leftOut;
    /// An entry's bound equals the one before: its row gets the weight 0, which the grid saves as
    /// another line of the entry above.
    bool hasEntryWithoutWeight = false;
};

/// `lines` are UTF-8, a "\n" between them. Reads everything, whatever it is: the bound of a line
/// that holds no number becomes the row's frequency as it stands, so that nothing is lost; the next
/// weight is counted from the bound before.
TableReading ReadTable(std::string_view lines);

}  // namespace quenloft
