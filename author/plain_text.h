// Notes that are no RTF.
#pragma once

#include <string>
#include <string_view>

#include "author/rtf_reader.h"

namespace quenloft {

/// The text alone: CR LF between paragraphs and where a line ends within one.
std::string PlainTextOf(const RichText& text);

/// UTF-8 where all of it is that, Windows-1252 otherwise; CR LF, LF and CR end a line. Bounded as
/// ReadRtf is.
RtfContent ReadPlainText(std::string_view bytes);

}  // namespace quenloft
