// The table of child windows that the program has: adding a window is a line in MakeWindowKinds.
#pragma once

#include <functional>
#include <vector>

namespace quenloft {

class ChildWindow;
class SystemRandomSource;
class Workspace;

enum class Instances { One, Many };

struct WindowKind {
    const char* formName;
    Instances instances;
    std::function<ChildWindow*(Workspace&)> make;
};

/// `random` is what the dice windows roll with; it outlives them.
std::vector<WindowKind> MakeWindowKinds(SystemRandomSource& random);

}  // namespace quenloft
