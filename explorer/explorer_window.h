// The library explorer: the folder tree of the user's tables and scripts, and one box for results.
#pragma once

#include <memory>

#include "explorer/library_item.h"
#include "shell/child_window.h"
#include "shell/library_icons.h"

class QModelIndex;

namespace quenloft {

class LibraryModel;
class TreeMemory;
class clsPopup;
namespace Ui {
class frmExplorer;
}

/// Runs, deletes and creates here; opening a file in a window of its own and editing are left to
/// the windows that do so. Reading the library is LibraryModel's part.
class frmExplorer : public ChildWindow {
    Q_OBJECT

  public:
    explicit frmExplorer(Workspace& workspace);
    ~frmExplorer() override;

    QSize OpeningSize(QSize area) const override;
    std::string Export() override;
    /// Runs the selected file as often as txtTimes says.
    void Run() override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void ConnectControls();
    void AddShortcuts();
    void SetIcons();

    void RunClicked(const QModelIndex& index);
    void EnterPressed();
    void RunAsNew();
    void Edit();
    void Delete();
    void NewDirectory();
    void RefreshTree();
    void ShowPopup(const QPoint& place);
    void objRightClickPopup_ItemClick(const QString& key);
    void objRightClickDirectoryPopup_ItemClick(const QString& key);

    /// Derives what is enabled from what is selected.
    void Refresh();

    void RunFile(const LibraryItem& file);
    void EnterFolderOf(const std::string& path);
    void BuildPopupMenu(clsPopup& popup);
    QModelIndex Selected() const;
    LibraryItem SelectedItem() const;
    std::string SelectedFile() const;
    /// The form names of the windows that show and edit the selected file; empty for a folder.
    const char* RunnerForm() const;
    const char* EditorForm() const;

    std::unique_ptr<Ui::frmExplorer> ui_;
    const CommandPictures pictures_;
    LibraryModel* model_;
    std::unique_ptr<TreeMemory> treeMemory_;
    std::string missingText_;  // What the output box says while there is no library to show.
};

}  // namespace quenloft
