// Closing many windows at once.
#pragma once

class QMdiArea;

namespace quenloft {

/// Asks each window with unsaved work, and closes all when none of them is to stay. At the first
/// Cancel it stops: false, and every window is still there.
bool CloseAllWindows(QMdiArea& area);

}  // namespace quenloft
