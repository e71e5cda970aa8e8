// The report that a failed script leaves in its output.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quenloft {

struct ScriptReport {
    std::string path;  ///< As the script was called.
    int line = 0;      ///< Counted from 1.
    std::string description;
};

/// All reports in `output` (lines end with CR LF), those of scripts that other scripts called among
/// them, from the first to the last.
std::vector<ScriptReport> FindScriptReports(std::string_view output);

}  // namespace quenloft
