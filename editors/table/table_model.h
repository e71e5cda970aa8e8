// The rows, title and modifier of the table editor, every change of them a step to undo.
#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QUndoStack>
#include <cstdint>
#include <string>

#include "editors/table/table_edits.h"
#include "editors/table/table_rows.h"
#include "editors/table/weight_sums.h"

namespace quenloft {

/// The row headers show which rolls pick a row and how likely it is. What is wrong with a row
/// stands in the tool tips of its header and cells.
class TableModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    /// A text of the table that stands outside the grid.
    using Field = std::string TableContent::*;

    /// `warning` marks the headers of rows with a fault.
    TableModel(const QIcon& warning, QObject* parent);

    const TableContent& Content() const { return content_; }
    /// With the frequency being typed.
    const WeightSums& Sums() const { return sums_; }
    /// Another number after each change of the content.
    std::uint64_t Revision() const { return revision_; }
    /// Clean while the content is the one that was loaded or saved last.
    QUndoStack& Undo() { return undo_; }

    /// Begins anew: nothing is left to undo, and nothing counts as changed.
    void SetContent(TableContent content);
    /// Letters typed one after the other are one step.
    void SetField(Field field, std::string text);
    void EditRows(RowsEdit edit);
    /// Moves `count` rows from `first` on; `to` is where the first of them stands then.
    void MoveRows(int first, int count, int to);

    /// Counts with a frequency that is being typed into a row.
    void PreviewFrequency(int row, const QString& text);
    void EndPreview();

    // --- QAbstractTableModel ---
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// A line end in the text becomes a blank.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

  signals:
    void FieldsChanged();
    /// The row headers say something else.
    void SumsChanged();
    /// What was just done or undone: the rows that are there in its place now.
    void Edited(int first, int count);

  private:
    class FieldCommand;
    class RowsCommand;
    class MoveCommand;

    // What the commands do.
    void PutField(Field field, const std::string& text);
    void PutRows(RowsEdit& edit);
    void ShiftRows(int first, int count, int to);

    void TellRows(int first, int last);
    void TellSums(int firstRow);
    QVariant RowHeader(int row, int role) const;
    RowMark MarkOf(int row) const;
    /// "Row 3 has a frequency that is no number."; empty for a row in order.
    QString MarkText(int row) const;

    TableContent content_;
    std::uint64_t revision_ = 0;
    WeightSums sums_;
    QUndoStack undo_;
    QIcon warning_;
    int previewedRow_ = -1;
};

}  // namespace quenloft
