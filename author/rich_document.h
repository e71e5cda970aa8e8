// Formatted text in the toolkit's documents, and out of them again.
#pragma once

#include "author/rich_text.h"

class QTextBlock;
class QTextCursor;
class QTextDocument;
class QTextListFormat;

namespace quenloft {

/// To be called once for each document that shows notes: lists are then indented as TextOf expects.
void PrepareDocument(QTextDocument& document);

/// Replaces everything; nothing is left to undo. What the text leaves open (no font, no size) shows
/// as the document's default.
void ShowText(const RichText& text, QTextDocument& document);

/// Puts `text` in the place of the selection. Its first paragraph continues the one at the cursor,
/// unless that is empty; an empty item of a list remains one, unless `text` begins with a list of
/// several paragraphs itself.
void InsertText(const RichText& text, QTextCursor& cursor);

/// What the document shows, every font and size named. Pictures are left out; cells of a table are
/// parted by tabs, its rows are paragraphs.
RichText TextOf(const QTextDocument& document);

/// The list that `block` is an item of; ListKind::None where it is of none.
ListItem ListItemOf(const QTextBlock& block);

/// A list of this kind and level, as ShowText makes them, that begins with item `start`.
QTextListFormat ListFormatOf(ListKind kind, int level, int start = 1);

}  // namespace quenloft
