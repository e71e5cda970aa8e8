#include "shell/window_kinds.h"

#include <memory>

#include "author/about_window.h"
#include "author/author_window.h"
#include "author/readme_window.h"
#include "dice/dice_window.h"
#include "dice/drovemark_window.h"
#include "dice/probability_window.h"
#include "dice/shadowrun_window.h"
#include "dice/simulation_on.h"
#include "editors/importer/importer_window.h"
#include "editors/table/table_window.h"
#include "editors/text/text_window.h"
#include "editors/toolbox/toolbox_window.h"
#include "explorer/explorer_window.h"
#include "generators/list_single_window.h"
#include "generators/lists_window.h"
#include "generators/script_window.h"
#include "platform/linux/system_random_source.h"
#include "shell/form_names.h"
#include "shell/recovery/recovery_window.h"

namespace quenloft {
namespace {

template <typename Window>
ChildWindow* Make(Workspace& workspace) {
    return new Window(workspace);
}

/// For windows that simulate; they share the simulation.
template <typename Window>
auto MakeWith(const std::shared_ptr<Simulation>& simulation) {
    return [simulation](Workspace& workspace) -> ChildWindow* {
        return new Window(workspace, *simulation);
    };
}

}  // namespace

std::vector<WindowKind> MakeWindowKinds(SystemRandomSource& random, Recovery* recovery) {
    const auto simulation = std::make_shared<SimulationOn<SystemRandomSource>>(random);
    std::vector<WindowKind> kinds = {
        {form::kExplorer, Instances::One, Make<frmExplorer>},
        {form::kLists, Instances::One, Make<frmLists>},
        {form::kSingleList, Instances::Many, Make<frmListSingle>},
        {form::kScript, Instances::Many, Make<frmScript>},
        {form::kDice, Instances::One,
         [&random](Workspace& workspace) { return new frmDice(workspace, random); }},
        {form::kEditTable, Instances::Many, Make<frmEdit_Table>},
        {form::kEdit, Instances::Many, Make<frmEdit>},
        {form::kProbability, Instances::Many, MakeWith<frmProbability>(simulation)},
        {form::kShadowrunProbability, Instances::Many,
         MakeWith<frmShadowrunProbability>(simulation)},
        {form::kDrovemark, Instances::Many, MakeWith<frmDrovemark>(simulation)},
        {form::kImportTable, Instances::Many, Make<frmImportTable>},
        {form::kAuthor, Instances::Many, Make<frmAuthor>},
        {form::kReadme, Instances::One,
         [](Workspace& workspace) { return new frmReadme(workspace, ReadmeFolders()); }},
        {form::kAbout, Instances::One, Make<frmAbout>},
        {form::kEditReference, Instances::One, Make<frmEdit_Reference>},
    };
    if (recovery) {
        kinds.push_back({form::kRecovery, Instances::One, [recovery](Workspace& workspace) {
                             return new frmRecovery(workspace, *recovery);
                         }});
    }
    return kinds;
}

}  // namespace quenloft
