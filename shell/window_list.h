// The list of open windows at the end of the Window menu.
#pragma once

class QMdiArea;
class QMenu;

namespace quenloft {

/// From now on `menu` ends with a line for each window, built anew whenever the menu opens: the
/// first nine have a digit as access key, the active one is checked, choosing one brings it to the
/// front.
void KeepWindowList(QMenu& menu, QMdiArea& area);

}  // namespace quenloft
