// The table of child windows that the program has: adding a window is a line in MakeWindowKinds.
#pragma once

#include <functional>
#include <vector>

namespace quenloft {

class ChildWindow;
class Workspace;

enum class Instances { One, Many };

struct WindowKind {
    const char* formName;
    Instances instances;
    std::function<ChildWindow*(Workspace&)> make;
};

std::vector<WindowKind> MakeWindowKinds();

}  // namespace quenloft
