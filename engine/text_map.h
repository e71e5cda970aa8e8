// What a look-up by text without a copy needs: std::unordered_map<std::string, T, TextHash,
// TextEqual>.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

namespace quenloft {

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
        return std::hash<std::string_view>{}(text);
    }
};

struct TextEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return a == b; }
};

}  // namespace quenloft
