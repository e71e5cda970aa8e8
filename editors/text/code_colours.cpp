#include "editors/text/code_colours.h"

#include <QPalette>
#include <cmath>

namespace quenloft {
namespace {

constexpr double kReadable = 4.5;

struct TokenColour {
    Token token;
    QRgb colour;
};
constexpr QRgb kFault = 0xD02020;
constexpr TokenColour kTokenColours[] = {
    {Token::Comment, 0x5F8A5F},   {Token::Keyword, 0x2A62C8},  {Token::Label, 0x8A5A00},
    {Token::Title, 0x2A62C8},     {Token::Weight, 0x007878},   {Token::Separator, 0x808080},
    {Token::Dice, 0xB04A10},      {Token::Variable, 0x9038A8}, {Token::Reference, 0x00789A},
    {Token::LineBreak, 0xB04A10}, {Token::Lonely, kFault},
};

double Linear(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

}  // namespace

double Contrast(const QColor& first, const QColor& second) {
    const double a = Luminance(first);
    const double b = Luminance(second);
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}

QColor Blend(const QColor& background, const QColor& colour, double share) {
    const auto mix = [share](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share));
    };
    return {mix(background.red(), colour.red()), mix(background.green(), colour.green()),
            mix(background.blue(), colour.blue())};
}

QColor ReadableOn(const QColor& background, QColor colour) {
    const QColor farthest = Contrast(background, Qt::black) > Contrast(background, Qt::white)
                                ? QColor(Qt::black)
                                : QColor(Qt::white);
    constexpr int kSteps = 20;
    for (int i = 1; i <= kSteps && Contrast(background, colour) < kReadable; ++i) {
        colour = Blend(colour, farthest, static_cast<double>(i) / kSteps);
    }
    return colour;
}

CodeColours::CodeColours(const QPalette& palette) {
    const QColor base = palette.color(QPalette::Base);
    constexpr double kCaretLineShare = 0.06;
    constexpr double kMarkedLineShare = 0.15;
    caretLine_ = Blend(base, palette.color(QPalette::Text), kCaretLineShare);
    markedLine_ = Blend(base, QColor(kFault), kMarkedLineShare);
    for (const TokenColour& entry : kTokenColours) {
        QTextCharFormat& format = formats_[static_cast<std::size_t>(entry.token)];
        const QColor onCaretLine = ReadableOn(caretLine_, QColor(entry.colour));
        format.setForeground(ReadableOn(markedLine_, onCaretLine));
    }
    QTextCharFormat& lonely = formats_[static_cast<std::size_t>(Token::Lonely)];
    lonely.setFontWeight(QFont::Bold);
    lonely.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    lonely.setUnderlineColor(lonely.foreground().color());
}

const QTextCharFormat& CodeColours::FormatOf(Token token) const {
    return formats_[static_cast<std::size_t>(token)];
}

}  // namespace quenloft
