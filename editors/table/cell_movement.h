// Where the cell editor goes next.
#pragma once

#include <cstdint>

namespace quenloft {

struct GridCell {
    int row = 0;
    int column = 0;
    friend bool operator==(const GridCell&, const GridCell&) = default;
};

/// Rows and columns count the fixed ones, which come first and are never edited.
struct GridShape {
    int rows = 0;
    int columns = 0;
    int fixedRows = 0;
    int fixedColumns = 0;
};

/// What a key does in the cell editor.
enum CellMovement : std::int16_t {
    kBackToGrid = 0,  ///< Stores nothing and moves nowhere.
    kMoveRight = 1,
    kMoveDown = 2,
    kMoveUp = 3,
};

/// The cell after `cell` by a movement code: from the end of a row to the next row, of a column to
/// the next column, and from the last cell to the first (up: the other way round). `cell` itself
/// for other codes, and in a grid without cells.
GridCell NextCell(GridCell cell, GridShape shape, std::int16_t code);

/// The way back from kMoveRight.
GridCell CellToTheLeft(GridCell cell, GridShape shape);

}  // namespace quenloft
