// Long texts.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

inline std::string Repeated(std::string_view piece, int times) {
    std::string text;
    for (; times > 0; --times) {
        text += piece;
    }
    return text;
}

}  // namespace quenloft
