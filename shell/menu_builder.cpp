#include "shell/menu_builder.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <vector>

#include "shell/menu_table.h"

namespace quenloft {
namespace {

QMenu* AddMenu(QMenuBar& bar, QMenu* parent, const QString& caption) {
    return parent ? parent->addMenu(caption) : bar.addMenu(caption);
}

}  // namespace

void BuildMenus(QMenuBar& bar, std::span<const MenuEntry> entries,
                const std::function<bool(const MenuEntry&)>& exists,
                const std::function<void(const MenuEntry&)>& choose) {
    std::vector<QMenu*> open;  // The menu around each depth.
    for (const MenuEntry& entry : entries) {
        open.resize(static_cast<std::size_t>(entry.depth));
        QMenu* parent = open.empty() ? nullptr : open.back();
        const QString caption = QString::fromLatin1(entry.caption);
        if (entry.isMenu) {
            QMenu* menu = AddMenu(bar, parent, caption);
            menu->setObjectName(QLatin1String(entry.name));
            open.push_back(menu);
            continue;
        }
        auto* action = new QAction(caption, &bar);
        action->setObjectName(QLatin1String(entry.name));
        action->setShortcut(QKeySequence(QLatin1String(entry.shortcut)));
        action->setSeparator(!entry.form && !entry.command);
        action->setEnabled(exists(entry));
        QObject::connect(action, &QAction::triggered, &bar, [choose, &entry] { choose(entry); });
        if (parent) {
            parent->addAction(action);
        } else {
            bar.addAction(action);
        }
    }
}

}  // namespace quenloft
