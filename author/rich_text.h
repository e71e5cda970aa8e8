// Formatted text as notes hold it: paragraphs of runs. It knows no file format and no widget.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quenloft {

/// Bounds of what a document may ask for; larger values are cut to them. A font of 1638 points and
/// an indent of 22 inches fill any page; the editing widget numbers lists with 16 bits.
inline constexpr int kLargestHalfPoints = 3276;
inline constexpr int kLargestTwips = 31680;
inline constexpr int kLargestListNumber = 32767;
inline constexpr int kListLevels = 9;

/// 0xRRGGBB; nothing is the automatic colour, which follows the reader's screen or paper.
using Color = std::optional<std::uint32_t>;

enum class ScriptPosition { Normal, Super, Sub };
enum class Capitals { AsTyped, All, Small };

struct CharFormat {
    std::string font;    ///< Family; empty where the document names none.
    int halfPoints = 0;  ///< 0 where the document names no size.
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    ScriptPosition position = ScriptPosition::Normal;
    Capitals capitals = Capitals::AsTyped;
    Color color = {};
    Color background = {};

    bool operator==(const CharFormat&) const = default;
};

/// `text` is UTF-8. A tab is '\t', a line break inside a paragraph U+2028.
struct TextRun {
    std::string text;
    CharFormat format;

    bool operator==(const TextRun&) const = default;
};

enum class Alignment { Left, Center, Right, Justify };
enum class ListKind { None, Bullet, Decimal, LowerLetter, UpperLetter, LowerRoman, UpperRoman };
enum class LineSpacing { Single, AtLeast, Exactly, Multiple };

struct ListItem {
    ListKind kind = ListKind::None;
    int level = 0;   ///< Below kListLevels; 0 is the outermost.
    int number = 0;  ///< The number that is shown; 0 for bullets.

    bool operator==(const ListItem&) const = default;
};

/// Lengths are in twips, 1440 to the inch.
struct ParagraphFormat {
    Alignment alignment = Alignment::Left;
    int leftIndent = 0;
    int rightIndent = 0;
    int firstIndent = 0;  ///< Of the first line, on top of `leftIndent`; negative where it hangs.
    int spaceBefore = 0;
    int spaceAfter = 0;
    LineSpacing lineSpacing = LineSpacing::Single;
    int lineHeight = 0;  ///< Twips; in 240ths of a line for Multiple; 0 for Single.
    bool pageBreakBefore = false;
    ListItem list;
    std::vector<int> tabStops = {};

    bool operator==(const ParagraphFormat&) const = default;
};

struct Paragraph {
    ParagraphFormat format;
    std::vector<TextRun> runs;  ///< None empty, neighbours differ in format.
    CharFormat endFormat;       ///< What text typed into an empty paragraph looks like.

    bool operator==(const Paragraph&) const = default;
};

struct RichText {
    std::vector<Paragraph> paragraphs;

    bool operator==(const RichText&) const = default;
};

}  // namespace quenloft
