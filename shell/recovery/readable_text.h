// What of a kept text and of its file a user can read and compare.
#pragma once

#include <string>
#include <string_view>

#include "shell/recovery/kept_text.h"

namespace quenloft {

/// Lines with "\n" between them: of a table its cells, of notes the text without its form.
std::string ReadableKept(const KeptText& kept);
/// The same of a file with these `bytes`, read as the window `form` reads it.
std::string ReadableFile(std::string_view form, std::string_view bytes);

}  // namespace quenloft
