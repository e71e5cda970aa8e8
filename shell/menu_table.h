// The menu tree of the main window, entry by entry.
#pragma once

#include <span>

namespace quenloft {

class ChildWindow;
class frmMain;

/// One entry. It opens a menu, or a window by its form name, or gives the main window a command; an
/// entry that does none of these is a separator.
struct MenuEntry {
    int depth;            ///< 0 stands in the menu bar, 1 in its menus.
    const char* name;     ///< Object name of the menu or action.
    const char* caption;  ///< "&" before the access key.
    const char* shortcut = "";

    bool isMenu = false;
    const char* form = nullptr;                   ///< The window that this entry shows ...
    void (ChildWindow::*afterwards)() = nullptr;  ///< ... and what is then asked of it.
    void (frmMain::*command)() = nullptr;
};

/// In the order of the menus; entries of a menu follow it, one deeper.
std::span<const MenuEntry> MenuTable();

}  // namespace quenloft
