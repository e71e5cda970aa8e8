// Putting text into the editing control that had the focus last.
#pragma once

#include <QWidget>

namespace quenloft {

/// Puts `text` in the place of the selection of a text box, plain or rich, or makes it the whole
/// text of the current cell of a grid; then gives `target` the focus back, so that typing goes on
/// there. Nothing happens without a target, or where it cannot be written to.
void InsertInto(QWidget* target, const QString& text);

}  // namespace quenloft
