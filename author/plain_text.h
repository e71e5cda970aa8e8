// Notes that are no RTF.
#pragma once

#include <string_view>

#include "author/rtf_reader.h"

namespace quenloft {

/// UTF-8 where all of it is that, Windows-1252 otherwise; CR LF, LF and CR end a line. Bounded as
/// ReadRtf is.
RtfContent ReadPlainText(std::string_view bytes);

}  // namespace quenloft
