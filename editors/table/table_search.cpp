#include "editors/table/table_search.h"

#include "editors/table/flex_grid_edit.h"
#include "editors/table/table_grid.h"
#include "editors/table/table_model.h"
#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

Qt::CaseSensitivity CaseOf(const SearchRequest& request) {
    return request.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

QString TextAt(const TableModel& model, int cell) {
    const TableRow& row = model.Content().rows[static_cast<std::size_t>(cell / kTableColumns)];
    return ToQt(CellText(row, cell % kTableColumns));
}

bool IsMatch(const TableModel& model, int cell, const SearchRequest& request) {
    return TextAt(model, cell).contains(request.text, CaseOf(request));
}

}  // namespace

QString TableSearch::SelectedLine() const {
    const auto* box = grid_.findChild<QLineEdit*>("tbFgEdit");
    return grid_.CellEditor().IsEditing() ? box->selectedText() : QString();
}

bool TableSearch::FindNext(const SearchRequest& request) {
    grid_.CellEditor().CommitAndHide();
    // Cells are counted row by row; the search ends where it began.
    const int count = model_.rowCount() * kTableColumns;
    const QModelIndex current = grid_.currentIndex();
    const int start = current.isValid() ? current.row() * kTableColumns + current.column()
                                        : (request.backwards ? 0 : count - 1);
    for (int step = 1; step <= count; ++step) {
        const int cell = (start + (request.backwards ? count - step : step)) % count;
        if (IsMatch(model_, cell, request)) {
            grid_.GoTo(cell / kTableColumns, cell % kTableColumns);
            return true;
        }
    }
    return false;
}

void TableSearch::ReplaceSelected(const SearchRequest& request, const QString& replacement) {
    grid_.CellEditor().CommitAndHide();
    const QModelIndex current = grid_.currentIndex();
    if (current.isValid()) {
        QString text = current.data(Qt::EditRole).toString();
        model_.setData(current, text.replace(request.text, replacement, CaseOf(request)));
    }
}

int TableSearch::ReplaceAll(const SearchRequest& request, const QString& replacement) {
    grid_.CellEditor().CommitAndHide();
    const int cells = model_.rowCount() * kTableColumns;
    RowsEdit edit{0, model_.Content().rows.size(), model_.Content().rows};
    int count = 0;
    for (int cell = 0; cell < cells; ++cell) {
        QString text = TextAt(model_, cell);
        const auto places = text.count(request.text, CaseOf(request));
        if (places > 0) {
            text.replace(request.text, replacement, CaseOf(request));
            CellText(edit.rows[static_cast<std::size_t>(cell / kTableColumns)],
                     cell % kTableColumns) = OneLine(FromQt(text));
            count += static_cast<int>(places);
        }
    }
    model_.EditRows(std::move(edit));
    return count;
}

void TableSearch::FocusSearched() {
    grid_.setFocus();
    grid_.CellEditor().FocusBox();
}

}  // namespace quenloft
