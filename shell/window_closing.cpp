#include "shell/window_closing.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <vector>

#include "shell/child_window.h"

namespace quenloft {

bool CloseAllWindows(QMdiArea& area) {
    std::vector<QPointer<ChildWindow>> children;
    for (const QMdiSubWindow* frame : area.subWindowList()) {
        if (auto* child = qobject_cast<ChildWindow*>(frame->widget())) {
            children.emplace_back(child);
        }
    }
    for (const auto& child : children) {
        if (child && !child->AskToSave()) {
            return false;
        }
    }
    for (const auto& child : children) {
        if (child) {
            child->CloseUnasked();
        }
    }
    return true;
}

}  // namespace quenloft
