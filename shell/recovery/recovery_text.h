// What the recovery window says.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/recovery/kept_text.h"

namespace quenloft {

/// "Inn.tbl", or "(never saved)".
std::string DocumentName(const KeptText& kept);
/// Without a final "/"; empty for a text that was never saved.
std::string DocumentFolder(const KeptText& kept);
/// "Table", "Text", ...
std::string_view KindName(const KeptText& kept);
/// Its first line that is not empty, shortened: what tells texts that were never saved apart.
std::string Beginning(const KeptText& kept);
/// What became of the file that has these `bytes` now, nothing where it cannot be read:
/// "unchanged", "changed", "not there"; empty for a text that was never saved.
std::string_view StateOfFile(const KeptText& kept, const std::optional<std::string>& bytes);

/// The differences with a mark at the start of each line, for the file that has `bytes` now. Ends
/// lines with CR LF.
std::string ComparisonText(const KeptText& kept, const std::optional<std::string>& bytes);

/// `when` is the time as it is shown.
std::string DiscardQuestion(const KeptText& kept, const std::string& when);

}  // namespace quenloft
