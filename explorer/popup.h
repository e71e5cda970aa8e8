// A popup menu whose items are known by keys.
#pragma once

#include <QIcon>
#include <QMenu>
#include <QPoint>
#include <QString>
#include <cstdint>
#include <map>
#include <optional>

namespace quenloft {

/// Type and state flags of items, as native menus number them.
inline constexpr std::uint32_t kSeparatorItem = 2048;
inline constexpr std::uint32_t kDisabledItem = 3;
inline constexpr std::uint32_t kCheckedItem = 8;

class clsPopup {
  public:
    /// Adds an item at the end. A separator shows no caption. `unchecked` and `checked` are the
    /// item's icons in either state.
    void AddItem(const QString& key, const QString& caption, std::uint32_t typeFlags,
                 std::uint32_t stateFlags, const QIcon& unchecked, const QIcon& checked);

    /// Shows the menu at the mouse (at `place` where given, in screen coordinates) and returns the
    /// key of the chosen item; empty when the menu was dismissed.
    QString PopupMenu(QWidget& owner, std::optional<QPoint> place = std::nullopt);

  private:
    QMenu menu_;
    int itemCount_ = 0;
    std::map<QString, QString> keys_;  // By "1h", "2h" ..., the names of the items' actions.
};

}  // namespace quenloft
