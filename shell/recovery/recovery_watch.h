// Sees to it that what is typed in the windows of the main window is kept.
#pragma once

#include <QMdiArea>
#include <QPointer>
#include <QTimer>
#include <chrono>
#include <cstdint>
#include <map>
#include <string>

namespace quenloft {

class ChildWindow;
class RecoveryWriter;

/// Looks at all windows at regular times; at a window of which it keeps the text also when that was
/// saved or given up, or the window closed.
class RecoveryWatch : public QObject {
    Q_OBJECT

  public:
    /// Begins at once, and ends with `area`. `writer` outlives this object.
    RecoveryWatch(RecoveryWriter& writer, const QMdiArea& area, std::chrono::milliseconds interval);

    /// `window` now holds the text of `leftFile`, which is no longer needed once the text has been
    /// kept again, saved or given up.
    void TakeOver(ChildWindow& window, const std::string& leftFile);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Kept {
        int number = 0;
        bool isKept = false;
        std::uint64_t revision = 0;
        std::string path;
        std::string base;
    };

    void LookAtAll();
    void LookAt(ChildWindow& window);
    Kept& Follow(ChildWindow& window);
    void WindowGone(QObject* window);

    RecoveryWriter& writer_;
    const QPointer<const QMdiArea> area_;
    QTimer timer_;
    std::map<const QObject*, Kept> followed_;
    int lastNumber_ = 0;
};

}  // namespace quenloft
