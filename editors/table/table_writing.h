// From the rows of the editor to the text of a table file.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "editors/table/table_rows.h"
#include "editors/table/weight_sums.h"

namespace quenloft {

/// What the file would say otherwise than the grid, or could not say.
struct TableFault {
    enum class Place { Title, Modifier, Row };
    Place place = Place::Title;
    std::size_t row = 0;   ///< From 0.
    std::string sentence;  ///< For the user; it names the row.
};

/// The first one; nothing where the table can be saved. `sums` are those of the rows.
std::optional<TableFault> FirstFault(const TableContent& content, const WeightSums& sums);

/// "Row 7 ("Goblin am…")": how a message names a row.
std::string NameOfRow(const TableContent& content, std::size_t row);

/// The rows whose frequency is a zero that somebody wrote.
std::vector<std::size_t> ZeroRows(const TableContent& content);

/// The text of the file, UTF-8 with CR LF. `content` has no fault.
std::string TableFileText(const TableContent& content, const WeightSums& sums);

/// What is printed: title, modifier, `path` and the rows with a tab between frequency and entry;
/// `program` is in the last line. CR LF between lines.
std::string TablePrintText(const TableContent& content, const std::string& path,
                           const std::string& program);

}  // namespace quenloft
