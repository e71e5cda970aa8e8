// The grid of the table editor: rows with their shares beside them, and what can be done with them.
#pragma once

#include <QTableView>
#include <string>

#include "editors/table/table_edits.h"

namespace quenloft {

class clsFlexGridEdit;
class TableModel;

/// Every operation stores the text of the cell being edited first, and shows what it did.
class TableGrid : public QTableView {
    Q_OBJECT

  public:
    TableGrid(TableModel& model, QWidget* parent);

    clsFlexGridEdit& CellEditor() { return *cellEditor_; }
    /// Called when the font has been set.
    void FitToFont();

    /// A new row before the current one, and begins to edit it.
    void InsertRow();
    /// The same behind the current row.
    void InsertRowBehind();
    void ClearSelected();
    void RemoveSelected();
    void MoveSelectedUp();
    void MoveSelectedDown();
    void Undo();
    void Redo();

    /// The selected cells as spreadsheets take them; empty when there are none.
    std::string SelectedText();
    /// From the first selected cell on, else behind the last row.
    void PasteText(std::string_view text);

    void GoTo(int row, int column);

  signals:
    /// The user wants to edit a cell whose text is too long for that.
    void TooLongToEdit();

  protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void InsertRowAt(int row);
    /// Puts an empty row there, which becomes the current one.
    void AddRow(int row);
    void MoveSelected(int by);
    void MoveDragged(int row, int from, int to);
    SelectedCells Selected() const;
    /// Selects these rows, and the first of them becomes the current one.
    void ShowRows(int first, int count);
    void FitRowHeader();

    TableModel& model_;
    clsFlexGridEdit* cellEditor_;
    int editedFirst_ = 0;  // The rows that were changed last.
    int editedCount_ = 0;
    int rowHeaderWidth_ = 0;
};

}  // namespace quenloft
