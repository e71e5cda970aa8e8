#include "shell/window_list.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

#include "shell/child_window.h"

namespace quenloft {
namespace {

constexpr char kListEntry[] = "windowListEntry";

void Clear(QMenu& menu) {
    for (QAction* action : menu.actions()) {
        if (action->objectName() == QLatin1String(kListEntry)) {
            menu.removeAction(action);
            action->deleteLater();
        }
    }
}

/// As its frame shows it: "[*]" stands for the mark of a changed window, "[*][*]" for itself.
QString TitleOf(const QMdiSubWindow& window) {
    QStringList parts = window.windowTitle().split(QStringLiteral("[*][*]"));
    const QLatin1String mark(window.isWindowModified() ? "*" : "");
    return parts.replaceInStrings(QStringLiteral("[*]"), mark).join(QStringLiteral("[*]"));
}

QString CaptionOf(const QMdiSubWindow& window, int number) {
    QString title = TitleOf(window);
    title.replace(u'&', QLatin1String("&&")).replace(u'\t', u' ');  // A tab begins a shortcut.
    constexpr int kDigits = 9;
    return QStringLiteral("%1%2 %3")
        .arg(QLatin1String(number <= kDigits ? "&" : ""))
        .arg(number)
        .arg(title);
}

void Fill(QMenu& menu, QMdiArea& area) {
    Clear(menu);
    const auto windows = area.subWindowList();
    if (windows.isEmpty()) {
        return;
    }
    menu.addSeparator()->setObjectName(QLatin1String(kListEntry));
    int number = 0;
    for (QMdiSubWindow* window : windows) {
        QAction* action = menu.addAction(CaptionOf(*window, ++number));
        action->setObjectName(QLatin1String(kListEntry));
        action->setCheckable(true);
        action->setChecked(window == area.currentSubWindow());
        if (auto* child = qobject_cast<ChildWindow*>(window->widget())) {
            QObject::connect(action, &QAction::triggered, child, &ChildWindow::BringToFront);
        }
    }
}

}  // namespace

void KeepWindowList(QMenu& menu, QMdiArea& area) {
    QObject::connect(&menu, &QMenu::aboutToShow, &area, [&menu, &area] { Fill(menu, area); });
}

}  // namespace quenloft
