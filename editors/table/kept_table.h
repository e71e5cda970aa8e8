// The cells of the table editor as text, whatever stands in them. A table file could not hold rows
// that have a fault.
#pragma once

#include <string>
#include <string_view>

#include "editors/table/table_rows.h"

namespace quenloft {

/// Title, modifier, and of each row the frequency and the entry, each on a line of its own.
std::string KeptTable(const TableContent& content);
/// The content again. Whatever else `text` is, gives some content.
TableContent TableOfKept(std::string_view text);

/// For reading and comparing: title, modifier where there is one, and the rows with a tab between
/// their cells. A "\n" ends each line.
std::string ReadableTable(const TableContent& content);

}  // namespace quenloft
