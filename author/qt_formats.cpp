#include "author/qt_formats.h"

#include <QTextBlock>
#include <QTextList>
#include <algorithm>

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

double Pixels(int twips) { return twips / kTwipsPerPixel; }
int Twips(double pixels) {
    return std::clamp(qRound(pixels * kTwipsPerPixel), -kLargestTwips, kLargestTwips);
}

// --- Characters ---

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

// --- Paragraphs ---

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

}  // namespace

QTextCharFormat QtFormatOf(const CharFormat& format) {
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

CharFormat CharFormatOf(const QTextCharFormat& format) {
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

QTextBlockFormat QtFormatOf(const ParagraphFormat& format) {
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

ParagraphFormat ParagraphFormatOf(const QTextBlock& block, int itemsBefore) {
    const QTextBlockFormat format = block.blockFormat();
    ParagraphFormat result;
    result.list = ListItemOf(block, itemsBefore);
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

ListItem ListItemOf(const QTextBlock& block, int itemsBefore) {
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
            return {kind, level, std::min(start + itemsBefore, kLargestListNumber)};
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

double ListIndentWidth() { return Pixels(kListIndent); }

}  // namespace quenloft
