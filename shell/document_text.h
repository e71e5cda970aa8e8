// How the text of a plain text box stands in its document, to the character.
//
// Laying out a word takes a time that grows with the square of its length: one of a million letters
// would hold up the program for minutes. So longer lines stand in several blocks: an invisible
// character at a block's end says that its line goes on in the next. Since that is text like any
// other, undo, cutting and joining keep it right. Characters that the document would take for ends
// of blocks, and that invisible one, stand as lone surrogates, which no text holds.
#pragma once

#include <QLatin1String>
#include <QString>
#include <functional>
#include <string>

class QTextBlock;
class QTextCursor;
class QTextDocument;

namespace quenloft {

/// Ends a block whose line goes on in the next one. A deprecated formatting character, never drawn.
inline constexpr QChar kGoesOn(0x206F);

/// The line of `block` goes on in the next block.
bool GoesOn(const QTextBlock& block);
/// `block` goes on with the line of the block before it.
bool IsContinued(const QTextBlock& block);

/// Puts `text` in the place of the selection, as one step to undo. CR LF, LF and CR end its lines.
void InsertText(QTextCursor& cursor, QString text);

/// What stands from position `start` to `end`, with `lineBreak` between the lines.
QString TextBetween(const QTextDocument& document, int start, int end, QLatin1String lineBreak);
QString WholeText(const QTextDocument& document, QLatin1String lineBreak);
/// The same as UTF-8 with "\n" between the lines, for another thread: only the copy of what stands
/// in the document is made now, in some milliseconds for ten million letters.
std::function<std::string()> LinesLater(const QTextDocument& document);

}  // namespace quenloft
