// The table of child windows that the program has: adding a window is a line in MakeWindowKinds.
#pragma once

#include <functional>
#include <vector>

namespace quenloft {

class ChildWindow;
class Recovery;
class SystemRandomSource;
class Workspace;

enum class Instances { One, Many };

struct WindowKind {
    const char* formName;
    Instances instances;
    std::function<ChildWindow*(Workspace&)> make;
};

/// `random` is what the dice windows roll with, `recovery` what the recovery window shows; without
/// it there is no such window. Both outlive the windows.
std::vector<WindowKind> MakeWindowKinds(SystemRandomSource& random, Recovery* recovery = nullptr);

}  // namespace quenloft
