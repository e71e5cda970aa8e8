#include "shell/recovery/recovery_watch.h"

#include <QEvent>
#include <QMdiSubWindow>

#include "shell/child_window.h"
#include "shell/recovery/recovery_writer.h"

namespace quenloft {
namespace {

std::int64_t Now() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::seconds>(now).count();
}

}  // namespace

RecoveryWatch::RecoveryWatch(RecoveryWriter& writer, const QMdiArea& area,
                             std::chrono::milliseconds interval)
    : writer_(writer), area_(&area) {
    connect(&timer_, &QTimer::timeout, this, &RecoveryWatch::LookAtAll);
    timer_.start(interval);
}

void RecoveryWatch::TakeOver(ChildWindow& window, const std::string& leftFile) {
    writer_.Replace(Follow(window).number, leftFile);
    LookAt(window);
}

bool RecoveryWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ModifiedChange) {
        // Queued: who saves or begins anew is not done yet.
        const QPointer<ChildWindow> window = qobject_cast<ChildWindow*>(watched);
        QMetaObject::invokeMethod(
            this,
            [this, window] {
                if (window) {
                    LookAt(*window);
                }
            },
            Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void RecoveryWatch::LookAtAll() {
    if (!area_) {
        return;
    }
    for (const QMdiSubWindow* frame : area_->subWindowList()) {
        if (auto* window = qobject_cast<ChildWindow*>(frame->widget())) {
            LookAt(*window);
        }
    }
}

void RecoveryWatch::LookAt(ChildWindow& window) {
    const auto work = window.Unsaved();
    if (!work) {
        if (const auto place = followed_.find(&window); place != followed_.end()) {
            place->second.isKept = false;
            writer_.Remove(place->second.number);
        }
        return;
    }
    Kept& kept = Follow(window);
    const bool isSame =
        kept.revision == work->revision && kept.path == work->path && kept.base == work->base;
    if (kept.isKept && isSame && !writer_.HasFailed(kept.number)) {
        return;
    }
    kept = {kept.number, true, work->revision, work->path, work->base};
    writer_.Keep(kept.number, {window.FormName(), work->path, work->base, Now(), {}},
                 work->snapshot());
}

RecoveryWatch::Kept& RecoveryWatch::Follow(ChildWindow& window) {
    const auto [place, isNew] = followed_.try_emplace(&window);
    if (isNew) {
        place->second.number = ++lastNumber_;
        window.installEventFilter(this);
        connect(&window, &QObject::destroyed, this, &RecoveryWatch::WindowGone);
    }
    return place->second;
}

void RecoveryWatch::WindowGone(QObject* window) {
    if (const auto place = followed_.find(window); place != followed_.end()) {
        writer_.Remove(place->second.number);
        followed_.erase(place);
    }
}

}  // namespace quenloft
