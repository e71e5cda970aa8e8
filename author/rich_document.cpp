#include "author/rich_document.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <algorithm>
#include <array>
#include <unordered_map>

#include "author/qt_formats.h"
#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

// Laying out a word takes a time that grows with the square of its length. Longer ones stand in
// several blocks, marked by a property, that are one paragraph again on their way out. Long
// paragraphs of ordinary words are parted far more seldom, at a blank.
constexpr qsizetype kLongestWord = 4096;
constexpr qsizetype kLongestBlock = 65536;
// Each change of form inside of a word makes it as slow as so many more characters do.
constexpr qsizetype kCharactersOfRun = 16;
// A property and no state of the block: copies keep it, and what is undone and done again. Those
// before it are of qt_formats.
constexpr int kGoesOn = QTextFormat::UserProperty + 3;

/// Joins items that count on to lists.
class ListMaker {
  public:
    void Add(const QTextCursor& at, const ListItem& item) {
        if (item.kind == ListKind::None) {
            EndBullets();
            return;
        }
        auto& open = open_[static_cast<std::size_t>(item.level)];
        const bool goesOn = open.list && open.kind == item.kind &&
                            (item.kind == ListKind::Bullet || open.next == item.number);
        if (goesOn) {
            open.list->add(at.block());
        } else {
            QTextCursor cursor(at);
            open = {cursor.createList(ListFormatOf(item.kind, item.level, item.number)), item.kind,
                    0};
        }
        open.next = item.number + 1;
        std::fill(open_.begin() + item.level + 1, open_.end(), Open());
    }

  private:
    struct Open {
        QTextList* list = nullptr;
        ListKind kind = ListKind::None;
        int next = 0;
    };
    void EndBullets() {
        for (Open& open : open_) {
            open = open.kind == ListKind::Bullet ? Open() : open;
        }
    }
    std::array<Open, kListLevels> open_;
};

// How much of `text`, which goes into a block that holds `before` characters of the same word and
// `inBlock` in all, the block still takes.
qsizetype PieceLength(QStringView text, qsizetype before, qsizetype inBlock) {
    qsizetype word = before;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isBlank = text[i].isSpace();
        word = isBlank ? 0 : word + 1;
        const bool isFull = word > kLongestWord || (isBlank && inBlock + i > kLongestBlock);
        if (isFull && !text[i].isLowSurrogate()) {
            return i;
        }
    }
    return text.size();
}

qsizetype LastWordLength(QStringView text) {
    const auto last = std::find_if(text.rbegin(), text.rend(), [](QChar c) { return c.isSpace(); });
    return last - text.rbegin();
}

/// Puts the runs of one paragraph in at a cursor. What the block holds is counted along: asking the
/// block for its text, run by run, would take a time that grows with the square of their number.
class RunInserter {
  public:
    explicit RunInserter(QTextCursor& cursor) : cursor_(cursor) {
        Count(cursor.block().text().left(cursor.positionInBlock()));
    }

    void Insert(QStringView rest, const QTextCharFormat& format) {
        while (!rest.isEmpty()) {
            const QStringView piece = rest.left(PieceLength(rest, lastWord_, inBlock_));
            cursor_.insertText(piece.toString(), format);
            Count(piece);
            rest = rest.mid(piece.size());
            if (!rest.isEmpty()) {
                GoOnInNextBlock();
            }
        }
        lastWord_ += lastWord_ > 0 ? kCharactersOfRun : 0;
    }

  private:
    void Count(QStringView piece) {
        const qsizetype last = LastWordLength(piece);
        lastWord_ = last == piece.size() ? lastWord_ + last : last;
        inBlock_ += piece.size();
    }
    void GoOnInNextBlock() {
        QTextBlockFormat goesOn = cursor_.blockFormat();
        goesOn.clearProperty(QTextFormat::ObjectIndex);  // One item has one number.
        goesOn.clearProperty(QTextFormat::PageBreakPolicy);
        goesOn.setProperty(kGoesOn, true);
        cursor_.insertBlock(goesOn);
        lastWord_ = 0;
        inBlock_ = 0;
    }

    QTextCursor& cursor_;
    qsizetype lastWord_ = 0;  // Characters since the last blank, and what its runs count for.
    qsizetype inBlock_ = 0;
};

/// Whether `text` goes on in the item at the cursor rather than making it what its first paragraph
/// is: one item of several keeps what it was copied as, anything else becomes part of the list.
bool GoesIntoItem(const RichText& text, const QTextCursor& cursor) {
    return cursor.currentList() && (text.paragraphs.size() == 1 ||
                                    text.paragraphs.front().format.list.kind == ListKind::None);
}

void AddText(Paragraph& paragraph, QString text, const CharFormat& format) {
    text.remove(QChar::ObjectReplacementCharacter);
    if (text.isEmpty()) {
        return;
    }
    if (!paragraph.runs.empty() && paragraph.runs.back().format == format) {
        paragraph.runs.back().text += FromQt(text);
    } else {
        paragraph.runs.push_back({FromQt(text), format});
    }
}

/// The formats of a document's characters, of which notes use few again and again.
class CharFormats {
  public:
    explicit CharFormats(const QTextDocument& document) : formats_(document.allFormats()) {}

    /// `index` is that of a format in the document.
    const CharFormat& At(int index) {
        const auto [place, isNew] = known_.try_emplace(index);
        if (isNew) {
            place->second = CharFormatOf(formats_.at(index).toCharFormat());
        }
        return place->second;
    }

  private:
    const QList<QTextFormat> formats_;
    std::unordered_map<int, CharFormat> known_;
};

void AddRuns(Paragraph& paragraph, const QTextBlock& block, CharFormats& formats) {
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (fragment.isValid()) {
            AddText(paragraph, fragment.text(), formats.At(fragment.charFormatIndex()));
        }
    }
    paragraph.endFormat = formats.At(block.charFormatIndex());
}

/// Where a block stands in a table; the same for the blocks of one cell.
struct CellPlace {
    const QTextTable* table = nullptr;
    int row = 0;
    int column = 0;
};

CellPlace CellOf(const QTextBlock& block) {
    const QTextCursor cursor(block);
    const QTextTable* table = cursor.currentTable();
    if (!table) {
        return {};
    }
    const QTextTableCell cell = table->cellAt(cursor);
    return {table, cell.row(), cell.column()};
}

bool IsNextCell(const CellPlace& place, const CellPlace& before) {
    return place.table && place.table == before.table && place.row == before.row &&
           place.column != before.column;
}

}  // namespace

void PrepareDocument(QTextDocument& document) { document.setIndentWidth(ListIndentWidth()); }

void ShowText(const RichText& text, QTextDocument& document) {
    document.setUndoRedoEnabled(false);
    document.clear();
    PrepareDocument(document);
    QTextCursor cursor(&document);
    InsertText(text, cursor);
    document.setUndoRedoEnabled(true);
    document.setModified(false);
}

void InsertText(const RichText& text, QTextCursor& cursor) {
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    ListMaker lists;
    const bool goesOn =
        cursor.block().length() > 1 || (!text.paragraphs.empty() && GoesIntoItem(text, cursor));
    bool isFirst = true;
    for (const Paragraph& paragraph : text.paragraphs) {
        if (!isFirst) {
            cursor.insertBlock(QtFormatOf(paragraph.format), QtFormatOf(paragraph.endFormat));
            lists.Add(cursor, paragraph.format.list);
        } else if (!goesOn) {
            cursor.setBlockFormat(QtFormatOf(paragraph.format));
            cursor.setBlockCharFormat(QtFormatOf(paragraph.endFormat));
            lists.Add(cursor, paragraph.format.list);
        }
        RunInserter inserter(cursor);
        for (const TextRun& run : paragraph.runs) {
            inserter.Insert(ToQt(run.text), QtFormatOf(run.format));
        }
        isFirst = false;
    }
    cursor.endEditBlock();
}

void InsertPlainText(const QString& text, QTextCursor& cursor) {
    // All that the document would take for the end of a block.
    static const QRegularExpression kParagraphEnd(
        QStringLiteral("\\r\\n|[\\r\\n\\x{2029}\\x{FDD0}\\x{FDD1}]"));
    const QTextCharFormat format = cursor.charFormat();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    bool isFirst = true;
    for (const QStringView line : QStringView(text).split(kParagraphEnd)) {
        if (!isFirst) {
            cursor.insertBlock(NextParagraph(cursor.blockFormat()), format);
        }
        RunInserter(cursor).Insert(line, format);
        isFirst = false;
    }
    cursor.endEditBlock();
}

QTextBlockFormat NextParagraph(QTextBlockFormat format) {
    format.clearProperty(QTextFormat::PageBreakPolicy);
    format.clearProperty(kGoesOn);
    return format;
}

RichText TextOf(const QTextDocument& document) {
    RichText text;
    CharFormats formats(document);
    const bool hasTables = !document.rootFrame()->childFrames().isEmpty();
    std::unordered_map<const QTextList*, int> itemCounts;
    CellPlace before;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const CellPlace place = hasTables ? CellOf(block) : CellPlace();
        const bool nextCell = IsNextCell(place, before);
        const QTextList* list = block.textList();
        const int itemsBefore = list ? itemCounts[list]++ : 0;
        const bool goesOn = nextCell || block.blockFormat().boolProperty(kGoesOn);
        if (!goesOn || text.paragraphs.empty()) {
            text.paragraphs.push_back(
                {.format = ParagraphFormatOf(block, itemsBefore), .runs = {}, .endFormat = {}});
        }
        Paragraph& paragraph = text.paragraphs.back();
        if (nextCell) {
            AddText(paragraph, QStringLiteral("\t"), formats.At(block.charFormatIndex()));
        }
        AddRuns(paragraph, block, formats);
        before = place;
    }
    return text;
}

}  // namespace quenloft
