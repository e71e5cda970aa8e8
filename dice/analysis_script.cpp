#include "dice/analysis_script.h"

#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "dice/analysis_report.h"
#include "engine/failure.h"
#include "engine/numbers.h"
#include "platform/file_system.h"
#include "platform/letter_case.h"
#include "platform/profile_file.h"

namespace quenloft {
namespace {

using Entries = std::vector<std::pair<std::string, std::string>>;  // Names and values.

class Script {
  public:
    Script(ProfileFile& profile, const std::string& path) : profile_(profile), path_(path) {}

    /// Throws Failure for a state that a check box does not have.
    bool OpenEnded() {
        const std::int32_t state =
            TextToInt32(profile_.ReadProfileString("Autorun", "OpenEnded", "1", path_));
        if (state != 0 && state != 1) {
            throw Failure(FailureNumber::InvalidArgument);
        }
        return state == 1;
    }
    /// A number of "Autorun".
    std::int32_t Number(std::string_view key) {
        return NumericValue(profile_.ReadProfileString("Autorun", key, "0", path_));
    }
    /// All of "Values" in the file's order. Throws Failure where a name comes twice.
    Entries Values() {
        Entries entries;
        std::set<std::string> names;
        const std::string list = profile_.ReadProfileKeyList(path_, "Values");
        std::size_t begin = 0;
        // What is left behind the last end is a name that the list had no room for.
        for (std::size_t end = 0; (end = list.find('\0', begin)) != std::string::npos;
             begin = end + 1) {
            std::string name = list.substr(begin, end - begin);
            if (!names.insert(name).second) {
                throw Failure(FailureNumber::InvalidArgument);
            }
            std::string value = profile_.ReadProfileString("Values", name, "0", path_);
            entries.emplace_back(std::move(name), std::move(value));
        }
        return entries;
    }

  private:
    ProfileFile& profile_;
    const std::string& path_;
};

/// What the scripts of both windows have in common; `body` runs the entries.
template <typename Body>
void RunScript(const ScriptParts& parts, const std::string& path, std::size_t dashes, Body body) {
    const Moment start = Moment::Now();
    parts.lines.Add("Script " + path);
    parts.lines.Add("started " + start.text);
    parts.lines.Add(std::string(dashes, '-'));
    try {
        parts.files.LookAgain();
        parts.files.ReadBytes(path);  // The profile takes a file that cannot be read for empty.
        Script script(parts.profile, path);
        parts.setOpenEnded(script.OpenEnded());
        body(script, script.Values());
        parts.lines.Add(std::string(dashes, '-'));
        parts.lines.Add("Script ended " + Moment::Now().text + " with " +
                        std::to_string(parts.rolls) + " rolls in " +
                        std::to_string(start.SecondsUntilNow()) + " seconds");
    } catch (const Failure&) {
        return;
    } catch (const FileError&) {
        return;
    }
}

bool IsPoolSize(const std::string& name) {
    return UpperCase(name).find("DICE") != std::string::npos;
}

}  // namespace

void RunTotalsScript(const ScriptParts& parts, const std::string& path,
                     const std::function<void(const clsRoll&, std::int32_t rolls)>& start) {
    RunScript(parts, path, kShortDashes, [&](Script& script, const Entries& entries) {
        for (const auto& [name, diceList] : entries) {
            clsRoll handful;
            parts.rolls = script.Number("Rolls");
            handful.FillValue(diceList);
            parts.lines.Add("Value " + name + " Roll " + diceList);
            start(handful, parts.rolls);
            parts.lines.Add(std::string(kShortDashes, '-'));
        }
    });
}

void RunTargetScript(const ScriptParts& parts, const std::string& path,
                     const std::function<void(const TargetPool&)>& start) {
    RunScript(parts, path, kLongDashes, [&](Script& script, const Entries& entries) {
        for (const auto& [sizeName, size] : entries) {
            if (!IsPoolSize(sizeName)) {
                continue;
            }
            for (const auto& [targetName, target] : entries) {
                if (IsPoolSize(targetName)) {
                    continue;
                }
                parts.rolls = script.Number("Rolls");
                start({.faces = script.Number("DieFaces"),
                       .dice = NumericValue(size),
                       .rolls = parts.rolls,
                       .target = NumericValue(target)});
            }
        }
    });
}

}  // namespace quenloft
