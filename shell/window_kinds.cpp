#include "shell/window_kinds.h"

#include "explorer/explorer_window.h"
#include "shell/form_names.h"

namespace quenloft {
namespace {

template <typename Window>
ChildWindow* Make(Workspace& workspace) {
    return new Window(workspace);
}

}  // namespace

std::vector<WindowKind> MakeWindowKinds() {
    return {
        {form::kExplorer, Instances::One, Make<frmExplorer>},
    };
}

}  // namespace quenloft
