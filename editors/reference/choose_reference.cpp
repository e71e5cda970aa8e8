#include "editors/reference/choose_reference.h"

#include "editors/reference/reference_window.h"

namespace quenloft {

std::string ChooseReference(Workspace& workspace, const std::string& folder, QWidget* parent) {
    if (!parent) {
        return frmReference(workspace, nullptr).Choose(folder);
    }
    // One for the whole program: the main window has it from the first use on, and takes it along.
    QWidget* owner = parent->window();
    auto* browser = owner->findChild<frmReference*>(QString(), Qt::FindDirectChildrenOnly);
    if (!browser) {
        browser = new frmReference(workspace, owner);
    }
    return browser->Choose(folder);
}

}  // namespace quenloft
