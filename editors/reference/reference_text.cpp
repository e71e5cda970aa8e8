#include "editors/reference/reference_text.h"

#include <algorithm>
#include <limits>

#include "engine/numbers.h"
#include "engine/text_helpers.h"
#include "platform/letter_case.h"

namespace quenloft {
namespace {

// Where the last letter of `utf8` begins; 0 where there is none.
std::size_t LastLetter(std::string_view utf8) {
    std::string_view rest = utf8;
    std::size_t last = 0;
    while (!rest.empty()) {
        last = utf8.size() - rest.size();
        TakeLetter(rest);
    }
    return last;
}

std::string FirstAndLastUpper(std::string_view name) {
    const std::string lower = LowerCase(name);
    const std::size_t last = LastLetter(lower);
    return UpperCaseFirst(lower.substr(0, last)) + UpperCase(lower.substr(last));
}

}  // namespace

std::string InNameCase(NameCase nameCase, std::string_view name) {
    switch (nameCase) {
        case NameCase::Default:
            return LowerCase(name);
        case NameCase::First:
            return UpperCaseFirst(LowerCase(name));
        case NameCase::Upper:
            return UpperCase(name);
        case NameCase::EveryWord:
            return FirstAndLastUpper(name);
    }
    return std::string(name);
}

std::string InFileNameCase(NameCase nameCase, std::string_view fileName) {
    std::string result;
    if (fileName.starts_with('~')) {
        result = "~";
        fileName.remove_prefix(1);
    }
    const bool keepsExtension =
        nameCase == NameCase::EveryWord && (IsTablePath(fileName) || IsScriptPath(fileName));
    constexpr std::size_t kExtension = 4;
    const std::size_t end = fileName.size() - (keepsExtension ? kExtension : 0);
    result += InNameCase(nameCase, fileName.substr(0, end));
    return result.append(fileName.substr(end));
}

std::string ReferenceText(std::string_view name, double count, std::string_view repeatMark) {
    std::string text = "#";
    text += name;
    if (count > 1) {
        text += repeatMark;
        // A number of hundreds of digits counts as the largest there is.
        text += NumberToText(std::min(count, std::numeric_limits<double>::max()));
    }
    return text + "#";
}

}  // namespace quenloft
