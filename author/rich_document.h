// Formatted text in the toolkit's documents, and out of them again.
#pragma once

#include "author/rich_text.h"

class QString;
class QTextBlockFormat;
class QTextCursor;
class QTextDocument;

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

/// Puts `text` in the place of the selection, in the form that is there. CR LF, LF and CR end
/// paragraphs.
void InsertPlainText(const QString& text, QTextCursor& cursor);

/// The form of a paragraph that is begun at the end of one of this form: not on a new page.
QTextBlockFormat NextParagraph(QTextBlockFormat format);

/// What the document shows, every font and size named. Pictures are left out; cells of a table are
/// parted by tabs, its rows are paragraphs.
RichText TextOf(const QTextDocument& document);

}  // namespace quenloft
