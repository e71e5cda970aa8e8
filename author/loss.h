// What of a file notes cannot keep.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace quenloft {

/// What a file held that a RichText does not.
enum class Loss {
    Pictures,
    Objects,
    Drawings,
    TableForm,
    HeadersAndFooters,
    Footnotes,
    Comments,
    Fields,
    HiddenText,
    RestOfText,
};
inline constexpr std::size_t kLossCount = 10;

/// "its pictures, its comments and the form of its tables"; empty for none.
std::string NamesOf(const std::vector<Loss>& losses);

}  // namespace quenloft
