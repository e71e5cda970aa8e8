// A document as one line, for comparing: "<qc li720>plain {b i Arial:formatted}|next paragraph".
#pragma once

#include <ostream>
#include <string>

#include "author/list_label.h"
#include "author/rich_text.h"

namespace quenloft {

inline std::string OutlineOf(const CharFormat& format) {
    constexpr const char* kPositions[] = {"", " super", " sub"};
    constexpr const char* kCapitals[] = {"", " caps", " scaps"};
    const auto color = [](const char* name, const Color& value) {
        return value ? std::string(" ") + name + std::to_string(*value >> 16) + "," +
                           std::to_string(*value >> 8 & 0xFF) + "," + std::to_string(*value & 0xFF)
                     : std::string();
    };
    std::string text;
    text += format.bold ? " b" : "";
    text += format.italic ? " i" : "";
    text += format.underline ? " u" : "";
    text += format.strike ? " s" : "";
    text += kPositions[static_cast<int>(format.position)];
    text += kCapitals[static_cast<int>(format.capitals)];
    text += format.halfPoints == 24 ? "" : " " + std::to_string(format.halfPoints);
    text += format.font.empty() ? "" : " " + format.font;
    text += color("on ", format.background) + color("", format.color);
    return text.empty() ? text : text.substr(1);
}

inline std::string OutlineOf(const ParagraphFormat& format) {
    constexpr const char* kAlignments[] = {"", " qc", " qr", " qj"};
    constexpr const char* kSpacings[] = {"", " at least ", " exactly ", " multiple "};
    const auto number = [](const char* name, int value) {
        return value == 0 ? std::string() : std::string(" ") + name + std::to_string(value);
    };
    std::string text = format.pageBreakBefore ? " page" : "";
    if (format.list.kind != ListKind::None) {
        text += " " + ListLabel(format.list.kind, format.list.number) +
                number("level", format.list.level);
    }
    text += kAlignments[static_cast<int>(format.alignment)];
    text += number("li", format.leftIndent) + number("ri", format.rightIndent) +
            number("fi", format.firstIndent) + number("sb", format.spaceBefore) +
            number("sa", format.spaceAfter);
    if (format.lineSpacing != LineSpacing::Single) {
        text += kSpacings[static_cast<int>(format.lineSpacing)] + std::to_string(format.lineHeight);
    }
    for (const int place : format.tabStops) {
        text += number("tx", place);
    }
    return text.empty() ? text : "<" + text.substr(1) + ">";
}

inline std::string OutlineOf(const RichText& text) {
    std::string outline;
    for (const Paragraph& paragraph : text.paragraphs) {
        outline += &paragraph == &text.paragraphs.front() ? "" : "|";
        outline += OutlineOf(paragraph.format);
        for (const TextRun& run : paragraph.runs) {
            const std::string format = OutlineOf(run.format);
            outline += format.empty() ? run.text : "{" + format + ":" + run.text + "}";
        }
    }
    return outline;
}

// How a failed comparison shows a document.
inline void PrintTo(const RichText& text, std::ostream* out) { *out << OutlineOf(text); }

}  // namespace quenloft
