// Icons that are drawn when they are needed: sharp at any size.
#pragma once

#include <QIcon>
#include <functional>

class QPainter;

namespace quenloft {

/// The side of the square that an icon's drawing fills, in the drawing's units.
constexpr double kIconUnits = 16;

using IconDrawing = std::function<void(QPainter& painter, QIcon::Mode mode, QIcon::State state)>;

/// An icon of any size; `drawing` is called whenever a picture of it is wanted.
QIcon DrawnIcon(IconDrawing drawing);

}  // namespace quenloft
