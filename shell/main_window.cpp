#include "shell/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QStatusBar>
#include <QTextEdit>
#include <algorithm>

#include "engine/engine.h"
#include "engine/program_title.h"
#include "engine/text_helpers.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/qt/qt_text.h"
#include "shell/child_window.h"
#include "shell/clipboard_commands.h"
#include "shell/dropped_file.h"
#include "shell/form_names.h"
#include "shell/library_path.h"
#include "shell/menu_builder.h"
#include "shell/menu_table.h"
#include "shell/print_export.h"
#include "shell/recent_menu.h"
#include "shell/settings_dialog.h"
#include "shell/wait_cursor.h"
#include "shell/window_arrangement.h"
#include "shell/window_closing.h"
#include "shell/window_geometry.h"
#include "shell/window_list.h"

namespace quenloft {
namespace {

/// The window that a file opens in; null where there is none for it.
const char* FormOfDocument(const std::string& path) {
    if (IsTablePath(path)) {
        return form::kSingleList;
    }
    if (IsScriptPath(path)) {
        return form::kScript;
    }
    return ToQt(path).endsWith(QLatin1String(".rtf"), Qt::CaseInsensitive) ? form::kAuthor
                                                                           : nullptr;
}

}  // namespace

frmMain::frmMain(const ServiceSet& services, std::vector<WindowKind> windowKinds)
    : services_(services),
      windowKinds_(std::move(windowKinds)),
      recentFiles_(services.profile),
      mdiArea_(new QMdiArea(this)),
      clipboardKeys_(new ClipboardKeysToMenu(this)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(ToQt(ProgramTitle()));
    constexpr QSize kNormalSize(1000, 700);
    resize(kNormalSize);
    setCentralWidget(mdiArea_);
    // Closing a window leads back to the one that was used before.
    mdiArea_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    setAcceptDrops(true);
    BuildMenuBar();
    runIndicator_ = std::make_unique<RunIndicator>(*findChild<QAction*>("mnuAbort"), *statusBar());
    connect(qApp, &QApplication::focusChanged, this, &frmMain::FollowFocus);
}

frmMain::~frmMain() {
    // While this is still a workspace: the base class would come too late.
    disconnect(qApp, nullptr, this, nullptr);
    delete mdiArea_;
}

void frmMain::StartUp() {
    const WaitCursor wait;
    ShowAtSavedGeometry(*this, services_.profile);
    // The frame is on the screen before anything is read from disk.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    EnterLibrary(services_.profile, services_.files);
    fontSettings_ = LoadFontSettings(services_.profile);
    Open(form::kExplorer);
}

void frmMain::OpenDocument(const std::string& path) {
    const char* form = FormOfDocument(path);
    if (!form || !CanOpen(form)) {
        services_.dialogs.ShowMessage(
            services_.files.NativePath(path) +
                " cannot be opened: it is neither a table (*.tbl) nor a script (*.spt) nor notes "
                "(*.rtf).",
            MessageIcon::Warning);
        return;
    }
    ChildWindow* child = Open(form);
    child->Load(path);
    child->Run();
}

std::string frmMain::LibraryPath() { return ReadLibraryPath(services_.profile); }

void frmMain::ApplyFontSettings(QWidget& target, int fontClass) {
    quenloft::ApplyFontSettings(fontSettings_, target, fontClass);
}

void frmMain::EnableAbort() {
    services_.engine.ClearAbortFlag();
    runIndicator_->Begin();
}

void frmMain::DisableAbort() {
    runIndicator_->End();
    services_.engine.ClearAbortFlag();
    switch (std::exchange(afterRun_, AfterRun::Nothing)) {
        case AfterRun::Nothing:
            break;
        // Queued: the window that ran is still on the stack.
        case AfterRun::CloseAll:
            QMetaObject::invokeMethod(this, &frmMain::CloseAll, Qt::QueuedConnection);
            break;
        case AfterRun::Exit:
            QMetaObject::invokeMethod(this, &frmMain::Exit, Qt::QueuedConnection);
            break;
    }
}

bool frmMain::IsRunning() const {
    return runIndicator_->IsRunning() || services_.engine.IsRunning();
}

bool frmMain::CanOpen(std::string_view formName) const { return KindOf(formName) != nullptr; }

ChildWindow* frmMain::Open(std::string_view formName) {
    const WindowKind* kind = KindOf(formName);
    if (!kind) {
        return nullptr;
    }
    ChildWindow* child = kind->instances == Instances::One ? FindOpen(formName) : nullptr;
    if (!child) {
        child = kind->make(*this);
        AddChild(*child);
    }
    child->parentWidget()->show();
    child->BringToFront();
    return child;
}

void frmMain::NoteRecentFile(const std::string& path) {
    const bool isKind = IsTablePath(path) || IsScriptPath(path);
    if (isKind && services_.files.FileExists(path)) {
        recentFiles_.Add(services_.files.NativePath(path));
    }
}

void frmMain::ShowSettings() { frmSettings(services_, fontSettings_, this).exec(); }

void frmMain::Print() { PrintWindow(ActiveChild(), services_); }

void frmMain::Export() { ExportWindow(ActiveChild(), services_); }

void frmMain::Exit() { close(); }

void frmMain::Cut() { CutFrom(ActiveChild(), services_.clipboard); }

void frmMain::Copy() { CopyFrom(ActiveChild(), services_.clipboard); }

void frmMain::Paste() { PasteInto(ActiveChild(), services_.clipboard); }

void frmMain::CloseAll() {
    if (!PutOffWhileRunning(AfterRun::CloseAll)) {
        CloseAllWindows(*mdiArea_);
    }
}

void frmMain::Cascade() { ArrangeWindows(*mdiArea_, Arrangement::Cascade); }

void frmMain::TileVertically() { ArrangeWindows(*mdiArea_, Arrangement::TileVertically); }

void frmMain::TileHorizontally() { ArrangeWindows(*mdiArea_, Arrangement::TileHorizontally); }

void frmMain::ArrangeAll() {
    RestoreWindows(*mdiArea_);
    for (QMdiSubWindow* frame : mdiArea_->subWindowList()) {
        if (auto* child = qobject_cast<ChildWindow*>(frame->widget())) {
            child->Arrange();
        }
    }
}

void frmMain::AbortRun() { services_.engine.SetAbortFlag(); }

void frmMain::closeEvent(QCloseEvent* event) {
    if (PutOffWhileRunning(AfterRun::Exit) || !CloseAllWindows(*mdiArea_)) {
        event->ignore();
        return;
    }
    insertionTarget_.clear();
    SaveWindowGeometry(*this, services_.profile);
    recentFiles_.Save();
    event->accept();
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
    if (std::ranges::any_of(DraggedFiles(*event), FormOfDocument)) {
        AcceptAsCopy(*event);
    }
}

void frmMain::dropEvent(QDropEvent* event) {
    AcceptAsCopy(*event);
    // Queued: a run must not hold up the program that the files come from.
    // In one go: during the run of the first file the second one could not be run.
    QMetaObject::invokeMethod(
        this,
        [this, paths = DraggedFiles(*event)] {
            for (const std::string& path : paths) {
                OpenDocument(path);
            }
        },
        Qt::QueuedConnection);
}

void frmMain::BuildMenuBar() {
    BuildMenus(
        *menuBar(), MenuTable(),
        [this](const MenuEntry& entry) { return !entry.form || CanOpen(entry.form); },
        [this](const MenuEntry& entry) { Choose(entry); });
    KeepRecentMenu(*findChild<QMenu*>("mnuFile_Recent"), recentFiles_,
                   [this](const std::string& path) { OpenDocument(path); });
    KeepWindowList(*findChild<QMenu*>("mnuWindow"), *mdiArea_);
}

void frmMain::Choose(const MenuEntry& entry) {
    if (entry.command) {
        (this->*entry.command)();
        return;
    }
    ChildWindow* child = Open(entry.form);
    if (child && entry.afterwards) {
        (child->*entry.afterwards)();
    }
}

void frmMain::FollowFocus(QWidget* old, QWidget* now) {
    if (old) {
        old->removeEventFilter(clipboardKeys_);
    }
    const bool isTextBox = qobject_cast<QLineEdit*>(now) || qobject_cast<QPlainTextEdit*>(now) ||
                           qobject_cast<QTextEdit*>(now);
    if (isTextBox && mdiArea_->isAncestorOf(now)) {
        now->installEventFilter(clipboardKeys_);
    }
}

bool frmMain::PutOffWhileRunning(AfterRun what) {
    if (!IsRunning()) {
        return false;
    }
    afterRun_ = qMax(afterRun_, what);
    services_.engine.SetAbortFlag();
    return true;
}

const WindowKind* frmMain::KindOf(std::string_view formName) const {
    for (const WindowKind& kind : windowKinds_) {
        if (kind.formName == formName) {
            return &kind;
        }
    }
    return nullptr;
}

ChildWindow* frmMain::FindOpen(std::string_view formName) const {
    for (const QMdiSubWindow* frame : mdiArea_->subWindowList()) {
        auto* child = qobject_cast<ChildWindow*>(frame->widget());
        if (child && child->FormName() == formName) {
            return child;
        }
    }
    return nullptr;
}

ChildWindow* frmMain::ActiveChild() const {
    const QMdiSubWindow* frame = mdiArea_->currentSubWindow();
    return frame ? qobject_cast<ChildWindow*>(frame->widget()) : nullptr;
}

void frmMain::AddChild(ChildWindow& child) {
    QMdiSubWindow* frame = mdiArea_->addSubWindow(&child);
    frame->resize(child.OpeningSize(InsideSize()));
    child.Arrange();
}

QSize frmMain::InsideSize() const {
    const QSize inside = mdiArea_->viewport()->size();
    if (!isMaximized()) {
        return inside;
    }
    // The window manager takes its time to enlarge a window that has just been maximised.
    return inside.expandedTo(screen()->availableSize() - (size() - inside));
}

}  // namespace quenloft
