// Documents of any form, the same for the same seed.
#pragma once

#include <iterator>
#include <random>
#include <string>

#include "author/rich_text.h"

namespace quenloft {

class RandomText {
  public:
    explicit RandomText(unsigned seed) : random_(seed) {}

    RichText Make() {
        RichText text;
        for (int count = Below(8) + 1; count > 0; --count) {
            text.paragraphs.push_back(MakeParagraph());
        }
        return text;
    }

  private:
    int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }
    bool Seldom() { return Below(4) == 0; }
    int Length() { return Seldom() ? Below(4001) - 2000 : 0; }
    Color MakeColor() {
        return Seldom() ? Color(static_cast<std::uint32_t>(Below(0x1000000))) : Color();
    }

    std::string MakeWords() {
        const char* const kPieces[] = {
            "word",   " ",      "\\",     "{",          "}",      "\t",    "\u2028", "7",
            "-5",     "\u00E9", "?",      "'",          ";",      "*",     "  ",     "\u00A0",
            "\u2011", "\u20AC", "\u4E2D", "\U0001F600", "\uFFFD", "\u0081"};
        std::string text;
        for (int count = Below(6) + 1; count > 0; --count) {
            text += kPieces[Below(std::size(kPieces))];
        }
        return text;
    }

    CharFormat MakeFormat() {
        const char* const kFonts[] = {"Serif", "DejaVu Sans", "M\u00FCller {1}", "\u660E\u671D"};
        return {.font = kFonts[Below(4)],
                .halfPoints = Seldom() ? Below(100) + 1 : 24,
                .bold = Seldom(),
                .italic = Seldom(),
                .underline = Seldom(),
                .strike = Seldom(),
                .position = static_cast<ScriptPosition>(Below(3)),
                .capitals = static_cast<Capitals>(Below(3)),
                .color = MakeColor(),
                .background = MakeColor()};
    }

    ListItem MakeItem() {
        const auto kind = static_cast<ListKind>(Below(7));
        const bool isNumbered = kind > ListKind::Bullet;
        return kind == ListKind::None
                   ? ListItem()
                   : ListItem{kind, Below(kListLevels), isNumbered ? Below(60) + 1 : 0};
    }

    Paragraph MakeParagraph() {
        Paragraph paragraph;
        paragraph.format = {.alignment = static_cast<Alignment>(Below(4)),
                            .leftIndent = Length(),
                            .rightIndent = Length(),
                            .firstIndent = Length(),
                            .spaceBefore = Length(),
                            .spaceAfter = Length(),
                            .lineSpacing = static_cast<LineSpacing>(Below(4)),
                            .lineHeight = 0,
                            .pageBreakBefore = Seldom(),
                            .list = MakeItem(),
                            .tabStops = {}};
        paragraph.format.lineHeight =
            paragraph.format.lineSpacing == LineSpacing::Single ? 0 : Below(500) + 241;
        for (int count = Below(3); count > 0; --count) {
            paragraph.format.tabStops.push_back(Below(9000));
        }
        for (int count = Below(5); count > 0; --count) {
            const CharFormat format = MakeFormat();
            if (paragraph.runs.empty() || paragraph.runs.back().format != format) {
                paragraph.runs.push_back({MakeWords(), format});
            }
        }
        paragraph.endFormat = MakeFormat();
        return paragraph;
    }

    std::mt19937 random_;
};

}  // namespace quenloft
