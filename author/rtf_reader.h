// Reads Rich Text Format.
#pragma once

#include <string_view>
#include <vector>

#include "author/loss.h"
#include "author/rich_text.h"

namespace quenloft {

struct RtfContent {
    RichText text;
    std::vector<Loss> losses;  ///< In the order of Loss, each once.
};

/// Whether `bytes` begin as RTF does.
bool IsRtf(std::string_view bytes);

/// Reads all text there is, however broken the file, in a time that grows with its length alone.
/// Text past 16 MiB is not read (Loss::RestOfText). Cells of tables are parted by tabs, their rows
/// are paragraphs.
RtfContent ReadRtf(std::string_view bytes);

}  // namespace quenloft
