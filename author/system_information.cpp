#include "author/system_information.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "platform/desktop.h"

namespace quenloft {
namespace {

// Several names may stand there, as in "ubuntu:GNOME".
bool IsGnome() {
    const char* desktops = std::getenv("XDG_CURRENT_DESKTOP");
    return desktops && std::string_view(desktops).find("GNOME") != std::string_view::npos;
}

}  // namespace

bool StartSystemInformation(Desktop& desktop) {
    struct Tool {
        const char* name;
        std::vector<std::string> arguments;
        bool inGnomeOnly = false;
    };
    // Those that show the most come first; the last tells of the desktop more than of the machine.
    // The settings of GNOME can be started outside of GNOME, but end at once and show nothing.
    const Tool tools[] = {
        {"kinfocenter", {}},
        {"hardinfo2", {}},
        {"hardinfo", {}},
        {"cinnamon-settings", {"info"}},
        {"mate-system-monitor", {"--show-system-tab"}},
        {"gnome-control-center", {"info-overview"}, true},
        {"xfce4-about", {}},
    };
    const bool isGnome = IsGnome();
    return std::any_of(std::begin(tools), std::end(tools), [&](const Tool& tool) {
        return (isGnome || !tool.inGnomeOnly) && desktop.StartProgram(tool.name, tool.arguments);
    });
}

}  // namespace quenloft
