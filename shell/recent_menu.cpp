#include "shell/recent_menu.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

#include "platform/qt/qt_text.h"
#include "shell/recent_files.h"

namespace quenloft {
namespace {

QString CaptionOf(const std::string& path, int number) {
    const QString text = ToQt(path);
    const qsizetype slash = text.lastIndexOf(u'/');
    QString name = text.mid(slash + 1);
    name.replace(u'&', QLatin1String("&&")).replace(u'\t', u' ');
    constexpr int kTen = 10;
    return QStringLiteral("&%1 %2").arg(number % kTen).arg(name);
}

void Fill(QMenu& menu, const RecentFiles& files,
          const std::function<void(const std::string&)>& open) {
    menu.clear();
    menu.setToolTipsVisible(true);
    int number = 0;
    for (const std::string& path : files.Paths()) {
        QAction* action = menu.addAction(CaptionOf(path, ++number));
        action->setToolTip(ToQt(path));
        QObject::connect(action, &QAction::triggered, &menu, [open, path] { open(path); });
    }
    if (menu.isEmpty()) {
        menu.addAction(QCoreApplication::translate("RecentMenu", "No files yet"))
            ->setEnabled(false);
    }
}

}  // namespace

void KeepRecentMenu(QMenu& menu, const RecentFiles& files,
                    const std::function<void(const std::string&)>& open) {
    QObject::connect(&menu, &QMenu::aboutToShow, &menu,
                     [&menu, &files, open] { Fill(menu, files, open); });
}

}  // namespace quenloft
