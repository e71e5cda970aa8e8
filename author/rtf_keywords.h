// The control words of RTF that this program understands.
#pragma once

#include <optional>
#include <string_view>
#include <variant>

#include "author/loss.h"
#include "author/rtf_state.h"

namespace quenloft {

/// On, or off with a 0 behind it.
struct RtfCharFlag {
    bool RtfCharState::*member;
};
struct RtfCharNumber {
    int RtfCharState::*member;
};
struct RtfCapitals {
    Capitals capitals;
};
/// A raised or lowered position; back to normal with a 0 behind it.
struct RtfPosition {
    ScriptPosition position;
};
/// Twips.
struct RtfParagraphNumber {
    int ParagraphFormat::*member;
};
struct RtfAlignment {
    Alignment alignment;
};
struct RtfCharacter {
    char32_t letter;
};
/// The group is one of the tables and other special places.
struct RtfGroup {
    RtfDestination destination;
};
/// The group is passed over.
struct RtfSkippedGroup {
    std::optional<Loss> loss;
};
/// What needs code of its own in the reader.
enum class RtfAction {
    CodePage,
    DefaultFont,
    FallbackLength,
    Unicode,
    Plain,
    Size,
    NoPosition,
    NoUnderline,
    ParagraphDefaults,
    ParagraphEnd,
    PageBreak,
    PageBreakBefore,
    LineHeight,
    LineHeightIsMultiple,
    TabStop,
    List,
    ListLevel,
    RowStart,
    CellEnd,
    RowEnd,
};

using RtfMeaning = std::variant<std::monostate, RtfCharFlag, RtfCharNumber, RtfCapitals,
                                RtfPosition, RtfParagraphNumber, RtfAlignment, RtfCharacter,
                                RtfGroup, RtfSkippedGroup, RtfAction>;

/// What the control word `name` (without its number) means; std::monostate for any other.
RtfMeaning MeaningOf(std::string_view name);

}  // namespace quenloft
