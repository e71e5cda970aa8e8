#include "explorer/popup.h"

#include <QAction>
#include <QCursor>

namespace quenloft {

void clsPopup::AddItem(const QString& key, const QString& caption, std::uint32_t typeFlags,
                       std::uint32_t stateFlags, const QIcon& unchecked, const QIcon& checked) {
    const bool isChecked = (stateFlags & kCheckedItem) != 0;
    const QString id = QString::number(++itemCount_) + u'h';
    QAction* action = menu_.addAction(isChecked ? checked : unchecked, caption);
    action->setObjectName(id);
    action->setSeparator((typeFlags & kSeparatorItem) != 0);
    action->setEnabled((stateFlags & kDisabledItem) == 0);
    if (isChecked) {
        action->setCheckable(true);
        action->setChecked(true);
    }
    keys_[id] = key;
}

QString clsPopup::PopupMenu(QWidget& owner, std::optional<QPoint> place) {
    menu_.setPalette(owner.palette());
    const QAction* chosen = menu_.exec(place.value_or(QCursor::pos()));
    return chosen ? keys_[chosen->objectName()] : QString();
}

}  // namespace quenloft
