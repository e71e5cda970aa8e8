#include "engine/text_helpers.h"

#include <algorithm>
#include <iterator>

#include "engine/failure.h"
#include "platform/letter_case.h"

namespace quenloft {

namespace {

bool IsCapital(std::string_view text, std::size_t index) {
    return index < text.size() && text[index] >= 'A' && text[index] <= 'Z';
}

/// The file name without one leading "~" and without the extension from the last "." on.
std::string_view NameForCase(std::string_view path) {
    std::string_view name = FileName(path);
    if (name.starts_with('~')) {
        name.remove_prefix(1);
    }
    return name.substr(0, name.rfind('.'));
}

bool EndsWithExtension(std::string_view path, std::string_view extension) {
    if (path.size() <= extension.size() || path[path.size() - extension.size() - 1] != '.') {
        return false;
    }
    return std::equal(extension.begin(), extension.end(), path.end() - std::ssize(extension),
                      [](char lower, char c) { return c == lower || c == lower - 'a' + 'A'; });
}

}  // namespace

bool IsCommentLine(std::string_view line) { return line.starts_with(';'); }

bool IsEmptyLine(std::string_view line) { return line.empty(); }

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool StartsWithTrimmed(std::string_view text, std::string_view prefix) {
    return Trimmed(text).starts_with(Trimmed(prefix));
}

bool HasDrive(std::string_view path) { return path.size() >= 3 && path.substr(1, 2) == ":\\"; }

std::string_view DriveLetter(std::string_view path) { return path.substr(0, 1); }

std::string_view DirectoryPart(std::string_view path) {
    const std::size_t separator = path.rfind('\\');
    return separator == std::string_view::npos ? std::string_view{} : path.substr(0, separator);
}

std::string_view FileName(std::string_view path) {
    const std::size_t separator = path.rfind('\\');
    return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

std::string_view FileBaseName(std::string_view path) {
    const std::string_view name = FileName(path);
    return name.substr(0, name.find('.'));
}

std::string_view FileExtension(std::string_view path) {
    const std::string_view name = FileName(path);
    const std::size_t dot = name.find('.');
    return dot == std::string_view::npos ? name : name.substr(dot + 1);
}

std::string CapitaliseWords(std::string_view text) {
    if (text.empty()) {
        throw Failure(FailureNumber::InvalidArgument);
    }
    if (text.find(' ') == std::string_view::npos) {
        return UpperCaseFirst(text);
    }
    std::string result;
    result.reserve(text.size());
    bool atWordStart = true;
    while (!text.empty()) {
        const char32_t letter = TakeLetter(text);
        AppendLetter(result, atWordStart ? UpperLetter(letter) : letter);
        atWordStart = letter == U' ' || letter == U'\n';
    }
    return result;
}

LetterCase LetterCaseOfName(std::string_view path) {
    const std::string_view name = NameForCase(path);
    if (!IsCapital(name, 0)) {
        return LetterCase::AsItStands;
    }
    if (name.size() == 1) {
        return LetterCase::OneCapital;
    }
    if (IsCapital(name, 1)) {
        return LetterCase::AllLetters;
    }
    return IsCapital(name, name.size() - 1) ? LetterCase::EveryWord : LetterCase::FirstLetter;
}

std::string ApplyCaseOfTableName(LetterCase letterCase, std::string text) {
    if (letterCase == LetterCase::OneCapital) {
        throw Failure(FailureNumber::InvalidArgument,
                      "The table's name is one capital letter: a second letter must say which case "
                      "is meant");
    }
    return ApplyCaseOfScriptName(letterCase, std::move(text));
}

std::string ApplyCaseOfScriptName(LetterCase letterCase, std::string text) {
    switch (letterCase) {
        case LetterCase::AsItStands:
            break;
        case LetterCase::FirstLetter:
            return UpperCaseFirst(text);
        case LetterCase::EveryWord:
        case LetterCase::OneCapital:
            return CapitaliseWords(text);
        case LetterCase::AllLetters:
            return UpperCase(text);
    }
    return text;
}

std::string ShownTitle(std::string_view title, std::size_t mostLetters) {
    constexpr char32_t kDelete = 0x7F;
    std::string shown;
    for (std::size_t letters = 0; !title.empty(); ++letters) {
        if (letters == mostLetters) {
            return shown + "…";
        }
        const char32_t letter = TakeLetter(title);
        AppendLetter(shown, letter < U' ' || letter == kDelete ? U' ' : letter);
    }
    return shown;
}

bool IsScriptPath(std::string_view path) { return EndsWithExtension(path, "spt"); }

bool IsTablePath(std::string_view path) { return EndsWithExtension(path, "tbl"); }

}  // namespace quenloft
