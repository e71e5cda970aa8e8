#include "shell/recovery/offer_recovery.h"

#include <QAction>

#include "shell/form_names.h"
#include "shell/main_window.h"
#include "shell/recovery/recovery.h"

namespace quenloft {

void OfferRecovery(frmMain& mainWindow, Recovery& recovery) {
    recovery.Begin(mainWindow.Area());
    auto* entry = mainWindow.findChild<QAction*>("mnuFile_Recovery");
    const auto refresh = [entry, &recovery] { entry->setEnabled(!recovery.Left().empty()); };
    QObject::connect(&recovery, &Recovery::LeftChanged, entry, refresh);
    refresh();
    recovery.TellSetAside();
    if (!recovery.Left().empty()) {
        mainWindow.Open(form::kRecovery);
    }
}

}  // namespace quenloft
