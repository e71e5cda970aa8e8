#include "author/system_information.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "platform/desktop.h"

namespace quenloft {

bool StartSystemInformation(Desktop& desktop) {
    struct Tool {
        const char* name;
        std::vector<std::string> arguments;
    };
    // Those that show the most come first. The settings of GNOME end at once outside of GNOME, so
    // they come after all that run anywhere; the last tells of the desktop more than of the
    // machine.
    const Tool tools[] = {
        {"kinfocenter", {}},
        {"hardinfo2", {}},
        {"hardinfo", {}},
        {"cinnamon-settings", {"info"}},
        {"mate-system-monitor", {"--show-system-tab"}},
        {"gnome-control-center", {"info-overview"}},
        {"xfce4-about", {}},
    };
    return std::any_of(std::begin(tools), std::end(tools), [&desktop](const Tool& tool) {
        return desktop.StartProgram(tool.name, tool.arguments);
    });
}

}  // namespace quenloft
