#include "shell/window_kinds.h"

#include "explorer/explorer_window.h"
#include "generators/list_single_window.h"
#include "generators/lists_window.h"
#include "generators/script_window.h"
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
        {form::kLists, Instances::One, Make<frmLists>},
        {form::kSingleList, Instances::Many, Make<frmListSingle>},
        {form::kScript, Instances::Many, Make<frmScript>},
    };
}

}  // namespace quenloft
