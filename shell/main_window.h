// The main window: a frame that brings menus, child windows and the commands upon them together.
#pragma once

#include <QMainWindow>
#include <QMdiArea>
#include <QPointer>
#include <memory>
#include <vector>

#include "shell/font_settings.h"
#include "shell/recent_files.h"
#include "shell/run_indicator.h"
#include "shell/window_kinds.h"
#include "shell/workspace.h"

namespace quenloft {

class ClipboardKeysToMenu;
struct MenuEntry;

/// What each command does is in a file of its own (clipboard_commands, print_export,
/// window_arrangement, window_closing, window_list); the menus are menu_table, the windows that can
/// be opened window_kinds.
class frmMain : public QMainWindow, public Workspace {
    Q_OBJECT

  public:
    frmMain(const ServiceSet& services, std::vector<WindowKind> windowKinds);
    ~frmMain() override;

    /// Shows the window, loads the settings and opens the library explorer.
    void StartUp();
    /// Opens the table, script or notes at a native or library path in the window that fits; tables
    /// and scripts run. Other files get a message.
    void OpenDocument(const std::string& path);

    /// Where the child windows are.
    QMdiArea& Area() { return *mdiArea_; }

    // --- Workspace ---
    const ServiceSet& Services() override { return services_; }
    std::string LibraryPath() override;
    void ApplyFontSettings(QWidget& target, int fontClass) override;
    void EnableAbort() override;
    void DisableAbort() override;
    bool IsRunning() const override;
    bool CanOpen(std::string_view formName) const override;
    ChildWindow* Open(std::string_view formName) override;
    void NoteRecentFile(const std::string& path) override;
    QWidget* InsertionTarget() const override { return insertionTarget_; }
    void SetInsertionTarget(QWidget* target) override { insertionTarget_ = target; }

    // --- Commands of the menus ---
    void ShowSettings();
    void Print();
    void Export();
    void Exit();
    void Cut();
    void Copy();
    void Paste();
    void CloseAll();
    void Cascade();
    void TileVertically();
    void TileHorizontally();
    void ArrangeAll();
    void AbortRun();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    /// What a run in progress puts off.
    enum class AfterRun { Nothing, CloseAll, Exit };

    void BuildMenuBar();
    void Choose(const MenuEntry& entry);
    void FollowFocus(QWidget* old, QWidget* now);
    bool PutOffWhileRunning(AfterRun what);
    const WindowKind* KindOf(std::string_view formName) const;
    ChildWindow* FindOpen(std::string_view formName) const;
    ChildWindow* ActiveChild() const;
    void AddChild(ChildWindow& child);
    /// The room for child windows.
    QSize InsideSize() const;

    const ServiceSet services_;
    const std::vector<WindowKind> windowKinds_;
    FontSettings fontSettings_;
    RecentFiles recentFiles_;
    QMdiArea* mdiArea_;
    ClipboardKeysToMenu* clipboardKeys_;
    std::unique_ptr<RunIndicator> runIndicator_;
    QPointer<QWidget> insertionTarget_;
    AfterRun afterRun_ = AfterRun::Nothing;
};

}  // namespace quenloft
