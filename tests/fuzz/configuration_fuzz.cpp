// A configuration script of the analyses. The runs that it asks for are counted, not rolled.
#include <unistd.h>

#include "dice/analysis_script.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_profile_file.h"
#include "tests/fuzz/fuzz.h"
#include "tests/support/temp_folder.h"

void quenloft::Fuzz(std::string_view input) {
    static const TempFolder folder;
    static LinuxFileSystem files;
    static LinuxProfileFile profile(files, folder.Path("quenloft"), folder.Path("config"));
    const std::string path = folder.Write("a.scr", input);
    ReportLines lines;
    std::int32_t rolls = 0;
    const ScriptParts parts{files, profile, lines, [](bool) {}, rolls};
    RunTotalsScript(parts, path, [](const clsRoll&, std::int32_t) {});
    RunTargetScript(parts, path, [](const TargetPool&) {});
}
