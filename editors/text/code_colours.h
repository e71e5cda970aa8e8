// The colours of tables and scripts, on whatever background the user's desktop has.
#pragma once

#include <QColor>
#include <QTextCharFormat>
#include <array>

#include "editors/text/language_scanner.h"

class QPalette;

namespace quenloft {

/// `colour` made lighter or darker until it can be read on `background`: a contrast of 4.5 to 1.
QColor ReadableOn(const QColor& background, QColor colour);
/// From 1 to 21; see the Web Content Accessibility Guidelines.
double Contrast(const QColor& first, const QColor& second);
/// `share` of `colour` (0 to 1), the rest `background`.
QColor Blend(const QColor& background, const QColor& colour, double share);

class CodeColours {
  public:
    explicit CodeColours(const QPalette& palette);

    const QTextCharFormat& FormatOf(Token token) const;
    const QColor& CaretLine() const { return caretLine_; }
    const QColor& MarkedLine() const { return markedLine_; }

  private:
    std::array<QTextCharFormat, static_cast<std::size_t>(Token::Lonely) + 1> formats_;
    QColor caretLine_;
    QColor markedLine_;
};

}  // namespace quenloft
