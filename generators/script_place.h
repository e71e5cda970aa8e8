// Where the script of a script runner lies: what stands in its box, and the folder it came from.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

class Engine;
class FileSystem;

inline constexpr char kScriptFilter[] = "Scripts (*.spt)|*.spt|All files (*.*)|*.*";

/// The full library path of the script that `typed` names: a native path or one in Windows form,
/// absolute or relative to `folder` (to the current directory where `folder` is empty).
std::string ScriptPath(FileSystem& files, std::string_view folder, std::string_view typed);

/// Runs that script as its file stands now and returns the output, with the error report of a run
/// that failed. Variables of runs before are gone.
std::string RunScriptAt(Engine& engine, const std::string& folder, std::string_view typed);

}  // namespace quenloft
