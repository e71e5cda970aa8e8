// The table editor: one table file as a grid of weights and entries.
#pragma once

#include <QLineEdit>
#include <QPointer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "editors/reference/choose_reference.h"
#include "editors/shared/edited_file.h"
#include "shell/child_window.h"

namespace quenloft {

namespace Ui {
class frmEdit_Table;
}
class TableGrid;
class TableModel;
class TableSearch;
struct TableContent;

/// Brings the file, the fields and the grid together, and asks about unsaved work. What the rows
/// mean is weight_sums' affair, how they stand in a file table_reading's and table_writing's.
class frmEdit_Table : public ChildWindow {
    Q_OBJECT

  public:
    /// As ChooseReference.
    using ReferenceChooser =
        std::function<std::string(Workspace&, const std::string& folder, QWidget* parent)>;

    explicit frmEdit_Table(Workspace& workspace, ReferenceChooser chooser = ChooseReference);
    ~frmEdit_Table() override;

    QSize OpeningSize(QSize area) const override;
    std::string Export() override;
    // These three act where the grid has the focus; a text box has been served already.
    void Copy() override;
    void Cut() override;
    void Paste() override;
    /// All rows to the clipboard, a tab between the cells.
    void CopyGridData();
    void OpenFile() override;
    void NewFile() override;
    void Load(const std::string& path) override;
    /// Rolls the saved table in a single list, the same one each time while it is open.
    void Run() override;
    /// As KeptTable gives it, with what is being typed into a cell.
    std::optional<UnsavedWork> Unsaved() const override;
    void PutBack(const KeptText& kept) override;
    bool AskToSave() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void New();
    bool Save();
    bool SaveAs();
    void TitleEdited();
    void ModifierEdited();
    void clsFGEdit_TextKeyDown(QLineEdit* editBox, int KeyCode, Qt::KeyboardModifiers Shift);

    void TellTooLong();

    /// Derives caption, marks and texts from the file and the rows.
    void Refresh();
    void ShowFields();

    void PlaceControls();
    void ConnectControls();
    void AddShortcuts();
    void StartNew();
    void Read(const std::string& path);
    bool SaveTo(const std::string& path);
    bool HasFault();
    /// Whether entries that the grid turns into lines of others may become that.
    bool AllowsZeros();
    bool IsChanged() const;
    /// The cell's text was changed and not stored yet.
    bool IsTyping() const;
    TableContent ContentWithTyped() const;
    bool IsGridFocused() const;
    /// Whether a key that a text box would take undoes or redoes a step of the table: the boxes
    /// outside the grid have no history of their own, the cell's has while it is being typed in.
    bool IsUndoOfTable(const QObject* watched, const QKeyEvent& key) const;
    ChildWindow* OpenList();
    void InsertReference(QLineEdit& editBox);
    QString StateText() const;

    std::unique_ptr<Ui::frmEdit_Table> ui_;
    const ReferenceChooser chooseReference_;
    EditedFile file_;
    std::vector<std::string> leftOut_;  // Of the file as it was read, when it is saved.
    bool hasEntryWithoutWeight_ = false;
    TableModel* model_;
    TableGrid* grdTable_;
    QLineEdit* tbFgEdit_;
    std::unique_ptr<TableSearch> search_;
    QPointer<ChildWindow> list_;
};

}  // namespace quenloft
