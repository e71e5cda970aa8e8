// Cascading and tiling of child windows by geometry of our own: the toolkit's tiling is a grid,
// tiles again whenever the main window changes, and may widen it.
#pragma once

#include <QRect>
#include <vector>

class QMdiArea;

namespace quenloft {

enum class Arrangement { Cascade = 0, TileHorizontally = 1, TileVertically = 2 };

/// The places of `count` windows, first to last, inside `area`. Cascade: equal windows, each `step`
/// pixels right of and below the one before, beginning again at the corner where the lower right
/// one would leave the area. Horizontally: rows. Vertically: columns. Tiles cover the area exactly.
std::vector<QRect> WindowPlaces(Arrangement arrangement, const QRect& area, int count, int step);

/// Arranges the visible windows, the active one in front. Maximised ones become normal; minimised
/// ones keep their strip at the bottom, which stays free.
void ArrangeWindows(QMdiArea& area, Arrangement arrangement);

/// Makes minimised and maximised windows normal.
void RestoreWindows(QMdiArea& area);

}  // namespace quenloft
