// Formats of characters, paragraphs and lists as the toolkit has them, and the other way round.
#pragma once

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextListFormat>

#include "author/rich_text.h"

class QTextBlock;

namespace quenloft {

/// What the format leaves open (no font, no size) is left to the document.
QTextCharFormat QtFormatOf(const CharFormat& format);
/// Every font and size is named: a format in a document knows the document's own.
CharFormat CharFormatOf(const QTextCharFormat& format);

/// The paragraph's list is not in it, but its indent counts on that.
QTextBlockFormat QtFormatOf(const ParagraphFormat& format);
/// `itemsBefore`: how many items of its list stand before `block`, from which its number follows.
/// The toolkit would count them anew for each block.
ParagraphFormat ParagraphFormatOf(const QTextBlock& block, int itemsBefore);

/// The list that `block` is an item of; ListKind::None where it is of none.
ListItem ListItemOf(const QTextBlock& block, int itemsBefore = 0);
/// A list of this kind and level that begins with item `start`.
QTextListFormat ListFormatOf(ListKind kind, int level, int start = 1);
/// How far a list stands in, for each of its levels; in pixels, for QTextDocument::setIndentWidth.
double ListIndentWidth();

}  // namespace quenloft
