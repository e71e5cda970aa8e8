// Find and replace in the cells of the grid.
#pragma once

#include "editors/shared/find_bar.h"

namespace quenloft {

class TableGrid;
class TableModel;

/// A match is a cell that holds the text; the current cell is what counts as selected.
class TableSearch : public Searchable {
  public:
    TableSearch(TableModel& model, TableGrid& grid) : model_(model), grid_(grid) {}

    QString SelectedLine() const override;
    bool FindNext(const SearchRequest& request) override;
    /// All places in the current cell.
    void ReplaceSelected(const SearchRequest& request, const QString& replacement) override;
    int ReplaceAll(const SearchRequest& request, const QString& replacement) override;
    void FocusSearched() override;

  private:
    TableModel& model_;
    TableGrid& grid_;
};

}  // namespace quenloft
