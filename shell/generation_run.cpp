#include "shell/generation_run.h"

#include "platform/file_system.h"
#include "shell/child_window.h"
#include "shell/workspace.h"

namespace quenloft {

GenerationRun::GenerationRun(Workspace& workspace, ChildWindow& owner)
    : workspace_(workspace), owner_(owner), started_(!workspace.IsRunning()) {
    if (started_) {
        owner_.running_ = true;
        workspace_.EnableAbort();
    }
}

GenerationRun::~GenerationRun() {
    if (started_) {
        workspace_.DisableAbort();
        workspace_.Services().files.SyncProcessDirectory();
        owner_.EndRun();
    }
}

}  // namespace quenloft
