// Configuration scripts of the analyses: profile files with the sections "Autorun" (how to roll)
// and "Values" (what).
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "dice/analyses.h"
#include "dice/cls_roll.h"
#include "dice/report_lines.h"

namespace quenloft {

class FileSystem;
class ProfileFile;

/// What a script needs of the window that runs it.
struct ScriptParts {
    FileSystem& files;
    ProfileFile& profile;
    ReportLines& lines;
    /// "Autorun" decides the window's own check box.
    std::function<void(bool)> setOpenEnded;
    /// The rolls of the last script entry, kept by the window: a script without entries repeats it.
    std::int32_t& rolls;
};

// Both functions add to the lines: first that the script has started, at last that it has ended.
// Any failure ends the script without a word, with the lines written until then.

/// Each key of "Values" is the label of a handful ("Two=D10+D10"). `start` runs one analysis.
void RunTotalsScript(const ScriptParts& parts, const std::string& path,
                     const std::function<void(const clsRoll&, std::int32_t rolls)>& start);

/// A key with "DICE" in it gives a size of the pool, any other a target number; `start` runs one
/// analysis for each size with each target.
void RunTargetScript(const ScriptParts& parts, const std::string& path,
                     const std::function<void(const TargetPool&)>& start);

}  // namespace quenloft
