// What differs between two texts, line by line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quenloft {

struct DifferenceLine {
    enum class Kind {
        Both,
        Removed,  ///< In the former text alone.
        Added,    ///< In the latter alone.
        LeftOut   ///< Stands for equal lines; `text` is empty.
    };
    Kind kind = Kind::Both;
    std::string_view text;

    bool operator==(const DifferenceLine&) const = default;
};

/// Every line that differs, with up to `context` equal ones around it; empty for equal texts. A
/// last line without its "\n" counts as one with it. The fewest lines where those are up to a
/// thousand; texts that differ in more may give more than need be, in no time worth a thought. The
/// views live as long as the texts.
std::vector<DifferenceLine> DifferenceOf(std::string_view former, std::string_view latter,
                                         std::size_t context = 3);

}  // namespace quenloft
