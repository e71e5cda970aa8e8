#include "shell/document_text.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <array>
#include <utility>

#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

constexpr qsizetype kLongestLine = 4096;
// Of what stands in one row everything is drawn, however little of it is seen.
constexpr qsizetype kLongestPiece = 1024;
// Blocks grow by what is typed and inserted in them; beyond this an insertion gets blocks of its
// own.
constexpr qsizetype kLongestBlock = 2 * kLongestLine;

// Paragraph separator, the document's own frame marks, and kGoesOn; the stand-in of each is the
// low surrogate at its index.
constexpr std::array<char16_t, 4> kReserved{0x2029, 0xFDD0, 0xFDD1, 0x206F};
constexpr char16_t kFirstStandIn = 0xDC00;

void PutStandIns(QString& text) {
    const auto isReserved = [](QChar c) {
        return c.unicode() >= kReserved[0] &&
               std::ranges::find(kReserved, c.unicode()) != kReserved.end();
    };
    const auto first = std::find_if(text.cbegin(), text.cend(), isReserved);
    for (qsizetype i = first - text.cbegin(); i < text.size(); ++i) {
        const auto* place = std::ranges::find(kReserved, text.at(i).unicode());
        if (place != kReserved.end()) {
            text[i] = QChar(static_cast<char16_t>(kFirstStandIn + (place - kReserved.begin())));
        }
    }
}

bool IsStandIn(QStringView text, qsizetype place) {
    const char16_t c = text[place].unicode();
    return c >= kFirstStandIn && c < kFirstStandIn + kReserved.size() &&
           (place == 0 || !text[place - 1].isHighSurrogate());
}

QChar ReservedOf(QChar standIn) {
    return QChar(kReserved[static_cast<std::size_t>(standIn.unicode()) - kFirstStandIn]);
}

void TakeStandInsBack(QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i).isLowSurrogate() && IsStandIn(text, i)) {
            text[i] = ReservedOf(text.at(i));
        }
    }
}

/// `raw` is what stands in a document, its marks and stand-ins included.
QString TextOfRaw(QStringView raw, QLatin1String lineBreak) {
    const auto isPlain = [](QChar c) {
        return c != kGoesOn && c != QChar::ParagraphSeparator && !c.isLowSurrogate();
    };
    QString text;
    text.reserve(raw.size() + raw.size() / 16);  // Line breaks may be longer there.
    for (qsizetype i = 0; i < raw.size(); ++i) {
        const auto* rest = raw.begin() + i;
        const qsizetype plain = std::find_if_not(rest, raw.end(), isPlain) - rest;
        text += raw.mid(i, plain);
        i += plain;
        if (i == raw.size() || raw[i] == kGoesOn) {
            continue;
        }
        if (raw[i] != QChar::ParagraphSeparator) {
            text += IsStandIn(raw, i) ? ReservedOf(raw[i]) : raw[i];
        } else if (i == 0 || raw[i - 1] != kGoesOn) {
            text += lineBreak;
        }
    }
    return text;
}

void UnifyLineEnds(QString& text) {
    if (text.contains(u'\r')) {
        text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        text.replace(u'\r', u'\n');
    }
}

// The length of the next piece of `line`: up to the last blank.
qsizetype PieceLength(QStringView line) {
    const QStringView head = line.left(kLongestPiece);
    const qsizetype blank = head.lastIndexOf(u' ');
    if (blank >= 0) {
        return blank + 1;
    }
    return head.back().isHighSurrogate() ? head.size() - 1 : head.size();
}

void AppendInPieces(QStringView line, QString& text) {
    while (line.size() > kLongestPiece) {
        const QStringView piece = line.left(PieceLength(line));
        text += piece;
        text += kGoesOn;
        text += u'\n';
        line = line.mid(piece.size());
    }
    text += line;
}

bool HasLongLines(QStringView text) {
    for (qsizetype start = 0; text.size() - start > kLongestLine;) {
        const qsizetype feed = text.indexOf(u'\n', start);
        if ((feed < 0 ? text.size() : feed) - start > kLongestLine) {
            return true;
        }
        start = feed + 1;
    }
    return false;
}

void BreakLongLines(QString& text) {
    if (!HasLongLines(text)) {
        return;
    }
    QString broken;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        if (line.size() > kLongestLine) {
            AppendInPieces(line, broken);
        } else {
            broken += line;
        }
        broken += u'\n';
    }
    broken.chop(1);
    text = std::move(broken);
}

// A line into which much was inserted already goes on in a new block.
void KeepBlocksShort(QString& text, const QTextCursor& cursor) {
    const qsizetype before = cursor.positionInBlock();
    const qsizetype after = cursor.block().length() - 1 - before;
    const qsizetype firstFeed = text.indexOf(u'\n');
    const qsizetype firstLine = firstFeed < 0 ? text.size() : firstFeed;
    const qsizetype lastLine = text.size() - 1 - text.lastIndexOf(u'\n');
    const bool isOneLine = firstFeed < 0;
    if (after > 0 && (isOneLine ? before : 0) + lastLine + after > kLongestBlock) {
        text.append(kGoesOn).append(u'\n');
    }
    if (before > 0 && before + firstLine > kLongestBlock) {
        text.prepend(u'\n').prepend(kGoesOn);
    }
}

}  // namespace

bool GoesOn(const QTextBlock& block) {
    const QTextDocument* document = block.document();
    return block.length() > 1 &&
           document->characterAt(block.position() + block.length() - 2) == kGoesOn;
}

bool IsContinued(const QTextBlock& block) {
    const QTextBlock before = block.previous();
    return before.isValid() && GoesOn(before);
}

void InsertText(QTextCursor& cursor, QString text) {
    UnifyLineEnds(text);
    PutStandIns(text);
    BreakLongLines(text);
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    KeepBlocksShort(text, cursor);
    cursor.insertText(text);  // In one piece: each piece costs a time that grows with the document.
    cursor.endEditBlock();
}

QString TextBetween(const QTextDocument& document, int start, int end, QLatin1String lineBreak) {
    // Block by block: the document's own functions turn no-break spaces into blanks.
    QString text;
    text.reserve(end - start);
    bool goesOn = true;  // The first block begins no line.
    for (QTextBlock block = document.findBlock(start); block.isValid() && block.position() <= end;
         block = block.next()) {
        if (!goesOn) {
            text += lineBreak;
        }
        const QString whole = block.text();
        goesOn = whole.endsWith(kGoesOn);
        const int from = std::max(start - block.position(), 0);
        const QStringView part = QStringView(whole).mid(from, end - block.position() - from);
        if (whole.contains(kGoesOn)) {
            text += part.toString().remove(kGoesOn);
        } else {
            text += part;
        }
    }
    TakeStandInsBack(text);
    return text;
}

QString WholeText(const QTextDocument& document, QLatin1String lineBreak) {
    return TextOfRaw(document.toRawText(), lineBreak);
}

std::function<std::string()> LinesLater(const QTextDocument& document) {
    return [raw = document.toRawText()] { return FromQt(TextOfRaw(raw, QLatin1String("\n"))); };
}

}  // namespace quenloft
