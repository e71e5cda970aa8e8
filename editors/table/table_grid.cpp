#include "editors/table/table_grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QShortcut>
#include <QSignalBlocker>
#include <algorithm>

#include "editors/table/cell_movement.h"
#include "editors/table/cell_text.h"
#include "editors/table/flex_grid_edit.h"
#include "editors/table/table_model.h"

namespace quenloft {
namespace {

/// Whether an event that may begin to edit a cell is the user's wish to do so: keys that type
/// nothing come here too.
bool AsksToEdit(const QEvent* event) {
    if (!event || event->type() != QEvent::KeyPress) {
        return true;
    }
    const auto* key = static_cast<const QKeyEvent*>(event);
    return key->key() == Qt::Key_F2 || (!key->text().isEmpty() && key->text().front().isPrint());
}

}  // namespace

TableGrid::TableGrid(TableModel& model, QWidget* parent)
    : QTableView(parent), model_(model), cellEditor_(new clsFlexGridEdit(this)) {
    setModel(&model);
    setAccessibleName(tr("Rows of the table"));
    cellEditor_->SetFlexGridControl(this);
    cellEditor_->SetEnterKeyBehaviour(kMoveRight);
    cellEditor_->SetTabKeyBehaviour(kMoveRight);
    setTabKeyNavigation(false);  // Between cells Tab belongs to the cell editor only.
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setWordWrap(false);
    setCornerButtonEnabled(true);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setSectionsMovable(true);
    verticalHeader()->setAccessibleName(tr("Rolls and shares of the rows"));
    connect(verticalHeader(), &QHeaderView::sectionMoved, this, &TableGrid::MoveDragged);
    connect(&model, &TableModel::modelReset, this, [this] { rowHeaderWidth_ = 0; });
    connect(&model, &TableModel::SumsChanged, this, &TableGrid::FitRowHeader);
    connect(&model, &TableModel::Edited, this, [this](int first, int count) {
        editedFirst_ = first;
        editedCount_ = count;
    });
    connect(cellEditor_, &clsFlexGridEdit::Typing, &model,
            [&model](const QModelIndex& cell, const QString& text) {
                if (cell.column() == kFrequencyColumn) {
                    model.PreviewFrequency(cell.row(), text);
                }
            });
    connect(cellEditor_, &clsFlexGridEdit::EditingEnded, &model, &TableModel::EndPreview);
    const auto onKey = [this](QKeySequence key, void (TableGrid::*handler)()) {
        new QShortcut(key, this, this, handler, Qt::WidgetShortcut);
    };
    onKey(Qt::Key_Insert, &TableGrid::InsertRow);
    onKey(Qt::CTRL | Qt::Key_Return, &TableGrid::InsertRowBehind);
    onKey(Qt::CTRL | Qt::Key_Enter, &TableGrid::InsertRowBehind);
    onKey(Qt::Key_Delete, &TableGrid::ClearSelected);
    onKey(Qt::CTRL | Qt::Key_Delete, &TableGrid::RemoveSelected);
    onKey(Qt::ALT | Qt::Key_Up, &TableGrid::MoveSelectedUp);
    onKey(Qt::ALT | Qt::Key_Down, &TableGrid::MoveSelectedDown);
    FitToFont();
}

void TableGrid::FitToFont() {
    constexpr int kRoom = 8;  // Above and below the text of a cell being edited.
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRoom);
    const QString widest = model_.headerData(kFrequencyColumn, Qt::Horizontal).toString();
    setColumnWidth(kFrequencyColumn, fontMetrics().horizontalAdvance(widest + "MMM"));
    FitRowHeader();
}

void TableGrid::InsertRow() { InsertRowAt(std::max(0, currentIndex().row())); }

void TableGrid::InsertRowBehind() { InsertRowAt(currentIndex().row() + 1); }

void TableGrid::ClearSelected() {
    cellEditor_->CommitAndHide();
    const SelectedCells selected = Selected();
    if (!selected.empty()) {
        model_.EditRows(ClearCells(model_.Content().rows, selected));
    }
}

void TableGrid::RemoveSelected() {
    cellEditor_->CommitAndHide();
    const SelectedCells selected = Selected();
    if (!selected.empty()) {
        model_.EditRows(RemoveRows(model_.Content().rows, selected));
        ShowRows(static_cast<int>(selected.begin()->first), 1);
    }
}

void TableGrid::MoveSelectedUp() { MoveSelected(-1); }

void TableGrid::MoveSelectedDown() { MoveSelected(1); }

void TableGrid::Undo() {
    cellEditor_->CommitAndHide();
    if (model_.Undo().canUndo()) {
        editedCount_ = 0;
        model_.Undo().undo();
        ShowRows(editedFirst_, editedCount_);
    }
}

void TableGrid::Redo() {
    cellEditor_->CommitAndHide();
    if (model_.Undo().canRedo()) {
        editedCount_ = 0;
        model_.Undo().redo();
        ShowRows(editedFirst_, editedCount_);
    }
}

std::string TableGrid::SelectedText() {
    cellEditor_->CommitAndHide();
    return FormatCells(TakeCells(model_.Content().rows, Selected()));
}

void TableGrid::PasteText(std::string_view text) {
    cellEditor_->CommitAndHide();
    const std::vector<CellLine> lines = ParseCells(text);
    if (lines.empty()) {
        return;
    }
    const SelectedCells selected = Selected();
    std::size_t row = model_.Content().rows.size();
    int column = lines[0].size() > 1 ? kFrequencyColumn : kEntryColumn;
    if (!selected.empty()) {
        const auto& [first, columns] = *selected.begin();
        row = first;
        column = columns[kFrequencyColumn] ? kFrequencyColumn : kEntryColumn;
    }
    editedCount_ = 0;
    model_.EditRows(PasteCells(model_.Content().rows, row, column, lines));
    ShowRows(editedFirst_, editedCount_);
}

void TableGrid::GoTo(int row, int column) {
    const QModelIndex cell = model_.index(row, column);
    // Not the view's own way, which looks at Ctrl and Shift: the command that comes here has them.
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect);
    scrollTo(cell);
}

bool TableGrid::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    if (!(trigger & editTriggers()) || clsFlexGridEdit::CanEdit(index)) {
        return QTableView::edit(index, trigger, event);
    }
    if (AsksToEdit(event)) {
        emit TooLongToEdit();
    }
    return true;  // Or the letter would look for a row that begins with it.
}

void TableGrid::focusInEvent(QFocusEvent* event) {
    // The keys would go to other cells while the text box is open: a click beside it closes it, and
    // who comes from another control goes on in it. With any other reason the box is being closed.
    if (event->reason() == Qt::MouseFocusReason) {
        cellEditor_->CommitAndHide();
    } else if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
        cellEditor_->FocusBox();
    }
    QTableView::focusInEvent(event);
}

void TableGrid::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isAlone = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    constexpr auto kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const bool isCommand = event->modifiers() & kCommands;
    if (model_.rowCount() == 0 && !isCommand && (isEnter || AsksToEdit(event))) {
        AddRow(0);  // An empty table has no cell to type into.
    }
    if (isEnter && isAlone && currentIndex().isValid()) {
        cellEditor_->StartEditing();
        return;
    }
    QTableView::keyPressEvent(event);
}

void TableGrid::mousePressEvent(QMouseEvent* event) {
    cellEditor_->CommitAndHide();
    QTableView::mousePressEvent(event);
}

void TableGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    if (model_.rowCount() == 0) {
        InsertRow();
    } else {
        QTableView::mouseDoubleClickEvent(event);
    }
}

void TableGrid::InsertRowAt(int row) {
    cellEditor_->CommitAndHide();
    AddRow(row);
    cellEditor_->StartEditing();
}

void TableGrid::AddRow(int row) {
    model_.EditRows({static_cast<std::size_t>(row), 0, {TableRow()}});
    GoTo(row, kFrequencyColumn);
}

void TableGrid::MoveSelected(int by) {
    cellEditor_->CommitAndHide();
    const SelectedCells selected = Selected();
    if (selected.empty()) {
        return;
    }
    const int first = static_cast<int>(selected.begin()->first);
    const int count = static_cast<int>(selected.rbegin()->first) - first + 1;
    const int to = first + by;
    if (to >= 0 && to + count <= model_.rowCount()) {
        model_.MoveRows(first, count, to);
        ShowRows(to, count);
    }
}

void TableGrid::MoveDragged(int row, int from, int to) {
    cellEditor_->CommitAndHide();
    {
        // The header shows the rows in the model's order; it is the model that changes.
        const QSignalBlocker blocker(verticalHeader());
        verticalHeader()->moveSection(to, from);
    }
    model_.MoveRows(row, 1, to);
    ShowRows(to, 1);
    viewport()->update();
    verticalHeader()->viewport()->update();
}

SelectedCells TableGrid::Selected() const {
    SelectedCells selected;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            auto& columns = selected[static_cast<std::size_t>(row)];
            std::fill(columns.begin() + range.left(), columns.begin() + range.right() + 1, true);
        }
    }
    return selected;
}

void TableGrid::ShowRows(int first, int count) {
    if (count == 0 || model_.rowCount() == 0) {
        return;
    }
    const int last = model_.rowCount() - 1;
    first = std::min(first, last);
    GoTo(first, std::max(0, currentIndex().column()));
    if (count > 1) {
        const QItemSelection rows(
            model_.index(first, 0),
            model_.index(std::min(first + count - 1, last), kTableColumns - 1));
        selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    }
}

void TableGrid::FitRowHeader() {
    // Wide enough for any row, and never narrower again in the same table: nothing moves while the
    // user scrolls or types.
    constexpr double kWidestTotal = 2147483647;
    constexpr int kRoom = 16;
    const QString number =
        QString::number(std::clamp(model_.Sums().Total(), 0.0, kWidestTotal), 'f', 0);
    const QString widest = number + '-' + number + "  <0.001 %";
    const int width = verticalHeader()->fontMetrics().horizontalAdvance(widest) +
                      style()->pixelMetric(QStyle::PM_SmallIconSize) + kRoom;
    rowHeaderWidth_ = std::max(rowHeaderWidth_, width);
    verticalHeader()->setFixedWidth(rowHeaderWidth_);
}

}  // namespace quenloft
