// Makes menus out of the menu table.
#pragma once

#include <functional>
#include <span>

class QMenuBar;

namespace quenloft {

struct MenuEntry;

/// Menus and actions get the entries' names as object names. An entry is enabled where `exists`
/// says that what it leads to exists; choosing it calls `choose` with it. `entries` outlives `bar`.
void BuildMenus(QMenuBar& bar, std::span<const MenuEntry> entries,
                const std::function<bool(const MenuEntry&)>& exists,
                const std::function<void(const MenuEntry&)>& choose);

}  // namespace quenloft
