#include "shell/child_window.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMetaObject>
#include <QPointer>

#include "engine/engine.h"
#include "platform/dialogs.h"
#include "platform/qt/qt_text.h"
#include "shell/recovery/kept_text.h"
#include "shell/workspace.h"

namespace quenloft {

int TwipsToPixels(int twips) {
    constexpr int kTwipsPerPixel = 15;
    return twips / kTwipsPerPixel;
}

ChildWindow::ChildWindow(Workspace& workspace, const char* formName, const QString& caption,
                         TwipsPoint place)
    : workspace_(workspace), place_(place) {
    setObjectName(QLatin1String(formName));
    setWindowTitle(caption);
}

std::string ChildWindow::FormName() const { return objectName().toStdString(); }

void ChildWindow::Arrange() {
    // Inside the main window the frame around this widget is what moves.
    QWidget* frame = parentWidget() ? parentWidget() : this;
    frame->move(TwipsToPixels(place_.left), TwipsToPixels(place_.top));
}

QSize ChildWindow::OpeningSize(QSize area) const { return sizeHint().boundedTo(area); }

QPlainTextEdit* ChildWindow::OutputBoxOf(const QWidget& /*control*/) { return nullptr; }

void ChildWindow::Load(const std::string& /*path*/) {}

std::optional<UnsavedWork> ChildWindow::Unsaved() const { return std::nullopt; }

void ChildWindow::PutBack(const KeptText& /*kept*/) {}

void ChildWindow::BringToFront() {
    auto* frame = qobject_cast<QMdiSubWindow*>(parentWidget());
    // What is closed during a run is no window of the area any more, and goes after the run.
    if (!frame || !frame->mdiArea() || !frame->mdiArea()->subWindowList().contains(frame)) {
        return;
    }
    if (frame->isMinimized()) {
        frame->showNormal();
    }
    frame->mdiArea()->setActiveSubWindow(frame);
}

void ChildWindow::CloseWindow() {
    if (auto* frame = qobject_cast<QMdiSubWindow*>(parentWidget())) {
        frame->close();
    } else {
        close();
    }
}

void ChildWindow::CloseUnasked() {
    asked_ = true;
    CloseWindow();
}

void ChildWindow::showEvent(QShowEvent* event) {
    if (!wasShown_) {
        wasShown_ = true;
        MoveIntoView();
    }
    QWidget::showEvent(event);
}

void ChildWindow::closeEvent(QCloseEvent* event) {
    if (running_) {
        // The run below on the stack still uses this window.
        closeAfterRun_ = true;
        workspace_.Services().engine.SetAbortFlag();
        event->ignore();
        return;
    }
    if (!asked_ && !AskToSave()) {
        event->ignore();
        return;
    }
    SaveState();
    event->accept();
}

QString ChildWindow::InTitle(std::string_view text) {
    return ToQt(text).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

bool ChildWindow::SaveOrGiveUp(const std::string& question, const std::function<bool()>& save) {
    BringToFront();  // The user must see what the question is about.
    // The window may go while the question stands.
    const QPointer<ChildWindow> self(this);
    const Answer answer = workspace_.Services().dialogs.AskYesNoCancel(question);
    return self && (answer == Answer::No || (answer == Answer::Yes && save()));
}

void ChildWindow::MoveIntoView() {
    auto* frame = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (!frame || !frame->parentWidget()) {
        return;
    }
    // The sizes were chosen for smaller fonts than some users have, the places for larger screens.
    const QSize inside = frame->parentWidget()->size();
    frame->resize(frame->size().expandedTo(frame->minimumSizeHint().boundedTo(inside)));
    const QSize room = inside - frame->size();
    frame->move(qBound(0, frame->x(), qMax(0, room.width())),
                qBound(0, frame->y(), qMax(0, room.height())));
}

void ChildWindow::EndRun() {
    running_ = false;
    if (closeAfterRun_) {
        closeAfterRun_ = false;
        // Queued: the handler that ran is still to return into this window.
        QMetaObject::invokeMethod(this, &ChildWindow::CloseWindow, Qt::QueuedConnection);
    }
}

}  // namespace quenloft
