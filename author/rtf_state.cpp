#include "author/rtf_state.h"

#include <cstdlib>

namespace quenloft {

CharFormat FormatOf(const RtfCharState& chars, int defaultFont, const RtfFontTable& fonts,
                    const RtfColorTable& colors) {
    const int font = chars.font == RtfCharState::kDefaultFont ? defaultFont : chars.font;
    const int shade = chars.highlight > 0 ? chars.highlight
                      : chars.shading > 0 ? chars.shading
                                          : chars.background;
    return {
        .font = std::string(fonts.Name(font)),
        .halfPoints = chars.halfPoints,
        .bold = chars.bold,
        .italic = chars.italic,
        .underline = chars.underline,
        .strike = chars.strike,
        .position = chars.position,
        .capitals = chars.capitals,
        .color = colors.At(chars.color),
        .background = shade > 0 ? colors.At(shade) : Color(),
    };
}

ParagraphFormat FormatOf(const RtfParagraphState& paragraph) {
    constexpr int kSingle = 240;
    ParagraphFormat format = paragraph.format;
    format.list = {};
    format.lineHeight = std::abs(paragraph.lineHeight);
    const bool isSingle = paragraph.lineHeightIsMultiple && format.lineHeight == kSingle;
    if (paragraph.lineHeight == 0 || isSingle) {
        format.lineHeight = 0;
    } else if (paragraph.lineHeightIsMultiple) {
        format.lineSpacing = LineSpacing::Multiple;
    } else {
        format.lineSpacing = paragraph.lineHeight > 0 ? LineSpacing::AtLeast : LineSpacing::Exactly;
    }
    return format;
}

}  // namespace quenloft
