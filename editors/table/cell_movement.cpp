#include "editors/table/cell_movement.h"

namespace quenloft {
namespace {

/// One step of `number` between `first` and `last`; `carry` when it went round the end.
struct Step {
    int number;
    bool carry;
};

Step Forwards(int number, int first, int last) {
    return number < last ? Step{number + 1, false} : Step{first, true};
}

Step Backwards(int number, int first, int last) {
    return number > first ? Step{number - 1, false} : Step{last, true};
}

using Direction = Step (*)(int, int, int);

GridCell AlongRow(GridCell cell, GridShape shape, Direction step) {
    const Step column = step(cell.column, shape.fixedColumns, shape.columns - 1);
    const int row =
        column.carry ? step(cell.row, shape.fixedRows, shape.rows - 1).number : cell.row;
    return {row, column.number};
}

GridCell AlongColumn(GridCell cell, GridShape shape, Direction step) {
    const Step row = step(cell.row, shape.fixedRows, shape.rows - 1);
    const int column =
        row.carry ? step(cell.column, shape.fixedColumns, shape.columns - 1).number : cell.column;
    return {row.number, column};
}

bool HasCells(GridShape shape) {
    return shape.rows > shape.fixedRows && shape.columns > shape.fixedColumns;
}

}  // namespace

GridCell NextCell(GridCell cell, GridShape shape, std::int16_t code) {
    if (!HasCells(shape)) {
        return cell;
    }
    switch (code) {
        case kMoveRight:
            return AlongRow(cell, shape, Forwards);
        case kMoveDown:
            return AlongColumn(cell, shape, Forwards);
        case kMoveUp:
            return AlongColumn(cell, shape, Backwards);
        default:
            return cell;
    }
}

GridCell CellToTheLeft(GridCell cell, GridShape shape) {
    return HasCells(shape) ? AlongRow(cell, shape, Backwards) : cell;
}

}  // namespace quenloft
