// What a group of an RTF file inherits from the one around it, and may change for itself.
#pragma once

#include "author/rich_text.h"
#include "author/rtf_tables.h"

namespace quenloft {

/// Where the text of a group goes. Groups that mean nothing to this program are passed over whole.
enum class RtfDestination { Text, Fonts, Colors, Lists, Label, Numbering };

/// Fonts and colours by their place in the file's tables; cheap to compare and to copy.
struct RtfCharState {
    static constexpr int kDefaultFont = -1;
    static constexpr int kAutomatic = -1;

    int font = kDefaultFont;
    int halfPoints = 24;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    bool hidden = false;
    ScriptPosition position = ScriptPosition::Normal;
    Capitals capitals = Capitals::AsTyped;
    int color = kAutomatic;
    // Three ways to say the same; the first that names a colour counts.
    int highlight = 0;
    int shading = 0;
    int background = 0;

    bool operator==(const RtfCharState&) const = default;
};

struct RtfParagraphState {
    ParagraphFormat format;  ///< Without number and line spacing, which follow from those below.
    int list = 0;            ///< In the list table; 0 for none.
    int listStart = 1;
    int lineHeight = 0;
    bool lineHeightIsMultiple = false;
};

struct RtfState {
    RtfCharState chars;
    RtfParagraphState paragraph;
    RtfDestination destination = RtfDestination::Text;
    int fallbackLength = 1;  ///< Characters behind a "\u" for readers without Unicode.
};

/// What the state amounts to.
CharFormat FormatOf(const RtfCharState& chars, int defaultFont, const RtfFontTable& fonts,
                    const RtfColorTable& colors);
/// Without the item of a list, which RtfNumbering knows.
ParagraphFormat FormatOf(const RtfParagraphState& paragraph);

}  // namespace quenloft
