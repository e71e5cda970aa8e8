// The pictures of the format bar, drawn: desktops without an icon theme have none of them.
#pragma once

#include <QIcon>

#include "author/rich_text.h"

class QPalette;
class QTextCharFormat;

namespace quenloft {

/// All in the colour of `palette`'s button text, at any size and scale.
QIcon AlignmentIcon(Alignment alignment, const QPalette& palette);
QIcon BulletsIcon(const QPalette& palette);
QIcon NumbersIcon(const QPalette& palette);
QIcon UndoIcon(const QPalette& palette);
QIcon RedoIcon(const QPalette& palette);
/// `letter` as text of this font looks.
QIcon LetterIcon(QChar letter, const QFont& font, const QPalette& palette);
/// A letter above a bar of `color`; above one of the text's own where it is automatic.
QIcon ColorIcon(const Color& color, const QPalette& palette);
/// A field of `color` for a menu.
QIcon SwatchIcon(const Color& color, const QPalette& palette);

}  // namespace quenloft
