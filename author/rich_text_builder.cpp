#include "author/rich_text_builder.h"

#include <utility>

#include "platform/letter_case.h"

namespace quenloft {
namespace {

// Thousands of pages. A window with more could not be worked in, and would need gigabytes.
constexpr std::size_t kMostBytes = std::size_t{16} << 20;
constexpr std::size_t kMostRuns = 500'000;
constexpr std::size_t kMostParagraphs = 250'000;

constexpr char32_t kLineSeparator = 0x2028;
constexpr char32_t kParagraphSeparator = 0x2029;
constexpr char32_t kObjectReplacement = 0xFFFC;

bool IsNoncharacter(char32_t letter) {
    return (letter & 0xFFFE) == 0xFFFE || (letter >= 0xFDD0 && letter <= 0xFDEF);
}

bool IsOfText(char32_t letter) {
    const bool isControl = letter < 0x20 && letter != '\t';
    const bool isSurrogate = letter >= 0xD800 && letter <= 0xDFFF;
    return !isControl && !isSurrogate && letter != 0x7F && letter != kObjectReplacement &&
           !IsNoncharacter(letter);
}

std::string Cleaned(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const char32_t letter = TakeLetter(utf8);
        if (IsOfText(letter)) {
            AppendLetter(text, letter == kParagraphSeparator ? kLineSeparator : letter);
        }
    }
    return text;
}

}  // namespace

void RichTextBuilder::AddText(std::string_view utf8, const CharFormat& format) {
    const std::string text = Cleaned(utf8);
    isFull_ = isFull_ || bytes_ + text.size() > kMostBytes || runs_ >= kMostRuns;
    if (isFull_ || text.empty()) {
        return;
    }
    bytes_ += text.size();
    if (!current_.runs.empty() && current_.runs.back().format == format) {
        current_.runs.back().text += text;
    } else {
        current_.runs.push_back({text, format});
        ++runs_;
    }
}

void RichTextBuilder::EndParagraph(const CharFormat& endFormat, const ParagraphFormat& format) {
    if (text_.paragraphs.size() >= kMostParagraphs) {
        isFull_ = true;
        return;
    }
    current_.format = format;
    current_.endFormat = endFormat;
    text_.paragraphs.push_back(std::exchange(current_, {}));
}

RichText RichTextBuilder::Take() {
    if (text_.paragraphs.empty()) {
        text_.paragraphs.emplace_back();
    }
    return std::exchange(text_, {});
}

}  // namespace quenloft
