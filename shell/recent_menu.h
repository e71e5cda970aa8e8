// The menu of the files that were opened last.
#pragma once

#include <functional>
#include <string>

class QMenu;

namespace quenloft {

class RecentFiles;

/// Fills `menu` with `files` whenever it opens; `open` gets the native path that the user chooses.
/// `files` outlives the menu.
void KeepRecentMenu(QMenu& menu, const RecentFiles& files,
                    const std::function<void(const std::string& path)>& open);

}  // namespace quenloft
