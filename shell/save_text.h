// Writing text that the user chose a new file for.
#pragma once

#include <string>

namespace quenloft {

struct ServiceSet;

/// Writes `text` (UTF-8, CR LF) to `path` in Windows-1252, or in UTF-8 where the user allows it for
/// characters that Windows-1252 lacks. False when nothing was written; the user has been told why.
bool SaveNewText(const ServiceSet& services, const std::string& path, const std::string& text);

}  // namespace quenloft
