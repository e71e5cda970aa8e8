// What stands in front of the items of a numbered list.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "author/rich_text.h"

namespace quenloft {

/// "3", "c", "III"; "\u2022" for bullets, empty for no list. `number` is from 1 on; what cannot be
/// written in the list's own figures (0, a Roman 4000) is written in decimal ones.
std::string ListLabel(ListKind kind, int number);

/// The number that the last word of a label such as "(iii)", "2.3." or "c)" stands for in a list of
/// this kind. Nothing where it is none.
std::optional<int> NumberOfLabel(ListKind kind, std::string_view label);

}  // namespace quenloft
