// How the program begins to keep texts, and offers what was kept before.
#pragma once

namespace quenloft {

class Recovery;
class frmMain;

/// Watches the windows of `mainWindow` and shows the recovery window where there is something for
/// it. Called after start-up, when nothing else asks any more.
void OfferRecovery(frmMain& mainWindow, Recovery& recovery);

}  // namespace quenloft
