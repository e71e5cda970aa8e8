// How lines of text become a table.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

/// The table file that `text` (UTF-8, CR LF) makes: its title, then each line an entry, numbered in
/// order, with an empty line between header and entries. Libraries hold files that were made by
/// these rules:
/// - every line that ends in a line break is an entry, an empty one too;
/// - a last line without one is an entry if it has at least two characters and stands behind a line
///   break: a text of a single line makes a table without entries;
/// - the header's total is one more than the number of lines that end in a line break.
std::string TableOfLines(std::string_view title, std::string_view text);

/// `line`, the last of a text and without a line break behind it, becomes no entry. `isOnly`: it is
/// the whole text.
bool IsDroppedAtEnd(std::string_view line, bool isOnly);

}  // namespace quenloft
