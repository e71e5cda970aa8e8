#include "dice/cls_roll.h"

#include "platform/letter_case.h"

namespace quenloft {

void clsRoll::Reset() { counts_.fill(0); }

void clsRoll::FillValue(std::string_view text) {
    std::size_t begin = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isLast = i + 1 == text.size();
        if (text[i] != '+' && !isLast) {
            continue;
        }
        // The last character belongs to its name, whatever it is.
        const std::string name = UpperCase(text.substr(begin, i - begin + (isLast ? 1 : 0)));
        for (std::size_t kind = 0; kind < kDieKinds.size(); ++kind) {
            if (name == "D" + std::to_string(kDieKinds[kind])) {
                ++counts_[kind];
            }
        }
        begin = i + 1;
    }
}

std::string clsRoll::Text() const {
    std::string text;
    for (std::size_t kind = 0; kind < kDieKinds.size(); ++kind) {
        if (counts_[kind] > 0) {
            text += text.empty() ? "" : "+";
            text += std::to_string(counts_[kind]) + "D" + std::to_string(kDieKinds[kind]);
        }
    }
    return text;
}

}  // namespace quenloft
