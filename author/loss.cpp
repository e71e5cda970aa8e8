#include "author/loss.h"

#include <string_view>

namespace quenloft {
namespace {

constexpr std::string_view kLossNames[kLossCount] = {"pictures",
                                                     "embedded objects",
                                                     "drawings",
                                                     "the form of tables",
                                                     "headers and footers",
                                                     "footnotes",
                                                     "comments",
                                                     "links and other fields",
                                                     "hidden text",
                                                     "the text past the first 16 MiB"};

}  // namespace

std::string NamesOf(const std::vector<Loss>& losses) {
    std::string names;
    for (std::size_t i = 0; i < losses.size(); ++i) {
        names += i == 0 ? "" : i + 1 == losses.size() ? " and " : ", ";
        names += kLossNames[static_cast<std::size_t>(losses[i])];
    }
    return names;
}

}  // namespace quenloft
