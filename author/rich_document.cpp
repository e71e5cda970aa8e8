#include "author/rich_document.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextList>
#include <QTextTable>
#include <algorithm>
#include <array>

#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

constexpr double kTwipsPerPixel = 15;
constexpr double kTwipsPerPoint = 20;
// How far a list's text stands to the right of the text around it, for each of its levels.
constexpr int kListIndent = 360;
constexpr double kFullLine = 240;  // LineSpacing::Multiple counts in these parts of a line.

// What the toolkit has no place for.
constexpr int kFirstIndentOfItem = QTextFormat::UserProperty + 1;
constexpr int kListStart = QTextFormat::UserProperty + 2;

// Laying out a word takes a time that grows with the square of its length. Longer ones stand in
// several blocks, marked by this state, that are one paragraph again on their way out. Long
// paragraphs of ordinary words are parted far more seldom, at a blank.
constexpr qsizetype kLongestWord = 4096;
constexpr qsizetype kLongestBlock = 65536;
// Each change of form inside of a word makes it as slow as so many more characters do.
constexpr qsizetype kCharactersOfRun = 16;
constexpr int kGoesOn = 1;

double Pixels(int twips) { return twips / kTwipsPerPixel; }
int Twips(double pixels) {
    return std::clamp(qRound(pixels * kTwipsPerPixel), -kLargestTwips, kLargestTwips);
}

// --- Into the document ---

QTextCharFormat::VerticalAlignment VerticalAlignmentOf(ScriptPosition position) {
    switch (position) {
        case ScriptPosition::Super:
            return QTextCharFormat::AlignSuperScript;
        case ScriptPosition::Sub:
            return QTextCharFormat::AlignSubScript;
        case ScriptPosition::Normal:
            break;
    }
    return QTextCharFormat::AlignNormal;
}

QFont::Capitalization CapitalizationOf(Capitals capitals) {
    switch (capitals) {
        case Capitals::All:
            return QFont::AllUppercase;
        case Capitals::Small:
            return QFont::SmallCaps;
        case Capitals::AsTyped:
            break;
    }
    return QFont::MixedCase;
}

QTextCharFormat CharFormatOf(const CharFormat& format) {
    QTextCharFormat result;
    if (format == CharFormat()) {
        return result;  // All as the document's default has it, weight and slant too.
    }
    if (!format.font.empty()) {
        result.setFontFamilies({ToQt(format.font)});
    }
    if (format.halfPoints > 0) {
        result.setFontPointSize(format.halfPoints / 2.0);
    }
    result.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
    result.setFontItalic(format.italic);
    result.setFontUnderline(format.underline);
    result.setFontStrikeOut(format.strike);
    result.setVerticalAlignment(VerticalAlignmentOf(format.position));
    if (format.capitals != Capitals::AsTyped) {
        result.setFontCapitalization(CapitalizationOf(format.capitals));
    }
    if (format.color) {
        result.setForeground(QColor::fromRgb(*format.color));
    }
    if (format.background) {
        result.setBackground(QColor::fromRgb(*format.background));
    }
    return result;
}

Qt::Alignment FlagOf(Alignment alignment) {
    constexpr Qt::AlignmentFlag kFlags[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight,
                                            Qt::AlignJustify};
    return kFlags[static_cast<std::size_t>(alignment)];
}

void SetLineSpacing(QTextBlockFormat& result, const ParagraphFormat& format) {
    switch (format.lineSpacing) {
        case LineSpacing::Single:
            break;
        case LineSpacing::AtLeast:
            result.setLineHeight(Pixels(format.lineHeight), QTextBlockFormat::MinimumHeight);
            break;
        case LineSpacing::Exactly:
            result.setLineHeight(Pixels(format.lineHeight), QTextBlockFormat::FixedHeight);
            break;
        case LineSpacing::Multiple:
            result.setLineHeight(format.lineHeight * 100 / kFullLine,
                                 QTextBlockFormat::ProportionalHeight);
            break;
    }
}

QTextBlockFormat BlockFormatOf(const ParagraphFormat& format) {
    QTextBlockFormat result;
    int left = format.leftIndent;
    if (format.list.kind == ListKind::None) {
        result.setTextIndent(Pixels(format.firstIndent));
    } else {
        // The number stands to the left of the text by itself.
        left = std::max(left - kListIndent * (format.list.level + 1), 0);
        result.setProperty(kFirstIndentOfItem, format.firstIndent);
    }
    result.setLeftMargin(Pixels(left));
    result.setRightMargin(Pixels(format.rightIndent));
    result.setTopMargin(Pixels(format.spaceBefore));
    result.setBottomMargin(Pixels(format.spaceAfter));
    result.setAlignment(FlagOf(format.alignment));
    SetLineSpacing(result, format);
    if (format.pageBreakBefore) {
        result.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    }
    QList<QTextOption::Tab> tabs;
    for (const int place : format.tabStops) {
        tabs.append(QTextOption::Tab(Pixels(place), QTextOption::LeftTab));
    }
    if (!tabs.isEmpty()) {
        result.setTabPositions(tabs);
    }
    return result;
}

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

    void Insert(const TextRun& run) {
        const QTextCharFormat format = CharFormatOf(run.format);
        const QString text = ToQt(run.text);
        QStringView rest(text);
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
        cursor_.insertBlock(goesOn);
        cursor_.block().setUserState(kGoesOn);
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

// --- Out of the document ---

Color ColorOf(const QTextFormat& format, QTextFormat::Property property) {
    const QBrush brush = format.brushProperty(property);
    if (brush.style() != Qt::SolidPattern || brush.color().alpha() == 0) {
        return {};
    }
    return brush.color().rgb() & 0xFFFFFFU;
}

int HalfPointsOf(const QFont& font) {
    constexpr double kPointsPerPixel = 0.75;
    const double points =
        font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * kPointsPerPixel;
    return std::clamp(qRound(points * 2), 1, kLargestHalfPoints);
}

// A format in a document knows the document's default font.
CharFormat FromQtFormat(const QTextCharFormat& format) {
    const QFont font = format.font();
    const auto position = format.verticalAlignment();
    const auto capitals = font.capitalization();
    return {
        .font = FromQt(font.families().value(0, font.family())),
        .halfPoints = HalfPointsOf(font),
        .bold = font.weight() >= QFont::DemiBold,
        .italic = font.italic(),
        .underline = format.fontUnderline(),
        .strike = font.strikeOut(),
        .position = position == QTextCharFormat::AlignSuperScript ? ScriptPosition::Super
                    : position == QTextCharFormat::AlignSubScript ? ScriptPosition::Sub
                                                                  : ScriptPosition::Normal,
        .capitals = capitals == QFont::AllUppercase ? Capitals::All
                    : capitals == QFont::SmallCaps  ? Capitals::Small
                                                    : Capitals::AsTyped,
        .color = ColorOf(format, QTextFormat::ForegroundBrush),
        .background = ColorOf(format, QTextFormat::BackgroundBrush),
    };
}

Alignment AlignmentOf(const QTextBlockFormat& format) {
    const Qt::Alignment alignment = format.alignment();
    if (alignment.testFlag(Qt::AlignRight)) {
        return Alignment::Right;
    }
    if (alignment.testFlag(Qt::AlignHCenter)) {
        return Alignment::Center;
    }
    return alignment.testFlag(Qt::AlignJustify) ? Alignment::Justify : Alignment::Left;
}

void ReadLineSpacing(const QTextBlockFormat& format, ParagraphFormat& result) {
    switch (format.lineHeightType()) {
        case QTextBlockFormat::ProportionalHeight:
            result.lineHeight = qRound(format.lineHeight() * kFullLine / 100);
            result.lineSpacing = LineSpacing::Multiple;
            break;
        case QTextBlockFormat::FixedHeight:
            result.lineHeight = Twips(format.lineHeight());
            result.lineSpacing = LineSpacing::Exactly;
            break;
        case QTextBlockFormat::MinimumHeight:
            result.lineHeight = Twips(format.lineHeight());
            result.lineSpacing = LineSpacing::AtLeast;
            break;
        default:
            break;
    }
    const bool isSingle =
        result.lineSpacing == LineSpacing::Multiple && result.lineHeight == kFullLine;
    if (isSingle || result.lineHeight <= 0) {
        result.lineSpacing = LineSpacing::Single;
        result.lineHeight = 0;
    }
}

ParagraphFormat FormatOf(const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    ParagraphFormat result;
    result.list = ListItemOf(block);
    const bool isItem = result.list.kind != ListKind::None;
    const int levels = format.indent() + (isItem ? result.list.level + 1 : 0);
    result.alignment = AlignmentOf(format);
    result.leftIndent = Twips(format.leftMargin()) + kListIndent * levels;
    result.rightIndent = Twips(format.rightMargin());
    result.firstIndent = !isItem ? Twips(format.textIndent())
                         : format.hasProperty(kFirstIndentOfItem)
                             ? format.intProperty(kFirstIndentOfItem)
                             : -kListIndent;
    result.spaceBefore = Twips(format.topMargin());
    result.spaceAfter = Twips(format.bottomMargin());
    ReadLineSpacing(format, result);
    result.pageBreakBefore = format.pageBreakPolicy().testFlag(QTextFormat::PageBreak_AlwaysBefore);
    for (const QTextOption::Tab& tab : format.tabPositions()) {
        result.tabStops.push_back(Twips(tab.position));
    }
    return result;
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

void AddRuns(Paragraph& paragraph, const QTextBlock& block) {
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (fragment.isValid()) {
            AddText(paragraph, fragment.text(), FromQtFormat(fragment.charFormat()));
        }
    }
    paragraph.endFormat = FromQtFormat(block.charFormat());
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

void PrepareDocument(QTextDocument& document) { document.setIndentWidth(Pixels(kListIndent)); }

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
            cursor.insertBlock(BlockFormatOf(paragraph.format), CharFormatOf(paragraph.endFormat));
            lists.Add(cursor, paragraph.format.list);
        } else if (!goesOn) {
            cursor.setBlockFormat(BlockFormatOf(paragraph.format));
            cursor.setBlockCharFormat(CharFormatOf(paragraph.endFormat));
            lists.Add(cursor, paragraph.format.list);
        }
        RunInserter inserter(cursor);
        for (const TextRun& run : paragraph.runs) {
            inserter.Insert(run);
        }
        isFirst = false;
    }
    cursor.endEditBlock();
}

RichText TextOf(const QTextDocument& document) {
    RichText text;
    CellPlace before;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const CellPlace place = CellOf(block);
        const bool nextCell = IsNextCell(place, before);
        const bool goesOn = nextCell || block.userState() == kGoesOn;
        if (!goesOn || text.paragraphs.empty()) {
            text.paragraphs.push_back({.format = FormatOf(block), .runs = {}, .endFormat = {}});
        }
        Paragraph& paragraph = text.paragraphs.back();
        if (nextCell) {
            AddText(paragraph, QStringLiteral("\t"), FromQtFormat(block.charFormat()));
        }
        AddRuns(paragraph, block);
        before = place;
    }
    return text;
}

ListItem ListItemOf(const QTextBlock& block) {
    const QTextList* list = block.textList();
    if (!list) {
        return {};
    }
    constexpr std::pair<QTextListFormat::Style, ListKind> kKinds[] = {
        {QTextListFormat::ListDecimal, ListKind::Decimal},
        {QTextListFormat::ListLowerAlpha, ListKind::LowerLetter},
        {QTextListFormat::ListUpperAlpha, ListKind::UpperLetter},
        {QTextListFormat::ListLowerRoman, ListKind::LowerRoman},
        {QTextListFormat::ListUpperRoman, ListKind::UpperRoman},
    };
    const QTextListFormat format = list->format();
    const int level = std::clamp(format.indent() - 1, 0, kListLevels - 1);
    for (const auto& [style, kind] : kKinds) {
        if (format.style() == style) {
            const int start = format.hasProperty(kListStart) ? format.intProperty(kListStart) : 1;
            return {kind, level, std::min(start + list->itemNumber(block), kLargestListNumber)};
        }
    }
    return {ListKind::Bullet, level, 0};
}

QTextListFormat ListFormatOf(ListKind kind, int level, int start) {
    constexpr QTextListFormat::Style kStyles[] = {
        QTextListFormat::ListStyleUndefined, QTextListFormat::ListDisc,
        QTextListFormat::ListDecimal,        QTextListFormat::ListLowerAlpha,
        QTextListFormat::ListUpperAlpha,     QTextListFormat::ListLowerRoman,
        QTextListFormat::ListUpperRoman,
    };
    constexpr QTextListFormat::Style kBullets[] = {
        QTextListFormat::ListDisc, QTextListFormat::ListCircle, QTextListFormat::ListSquare};
    QTextListFormat format;
    format.setStyle(kind == ListKind::Bullet
                        ? kBullets[static_cast<std::size_t>(level) % std::size(kBullets)]
                        : kStyles[static_cast<std::size_t>(kind)]);
    format.setIndent(level + 1);
    if (kind != ListKind::Bullet && start != 1) {
        format.setProperty(kListStart, start);
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
        format.setStart(start);
#endif
    }
    return format;
}

}  // namespace quenloft
