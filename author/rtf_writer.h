// Writes Rich Text Format.
#pragma once

#include <string>

#include "author/rich_text.h"

namespace quenloft {

/// The bytes of an RTF file, pure ASCII, with CR LF between the lines. ReadRtf gives the same text
/// back, but that a missing font becomes the document's first and a missing size 12 points.
std::string WriteRtf(const RichText& text);

}  // namespace quenloft
