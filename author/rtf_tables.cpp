#include "author/rtf_tables.h"

#include <algorithm>

#include "author/code_page.h"

namespace quenloft {
namespace {

// More than any document has, so that a broken file cannot fill the memory with them.
constexpr std::size_t kMostFonts = 4096;
constexpr std::size_t kMostColors = 4096;
constexpr std::size_t kMostLists = 4096;
constexpr std::size_t kLongestFontName = 256;

std::uint32_t WithChannel(Color color, int shift, int value) {
    const auto channel = static_cast<std::uint32_t>(std::clamp(value, 0, 255));
    return (color.value_or(0) & ~(0xFFU << shift)) | (channel << shift);
}

}  // namespace

// --- Fonts ---

void RtfFontTable::ReadWord(const RtfToken& word) {
    if (word.text == "f") {
        EndFont();
        currentNumber_ = word.number;
    } else if (word.text == "fcharset") {
        current_.codePage = CodePageOfCharset(word.number);
    } else if (word.text == "cpg") {
        current_.codePage = word.number;
    }
}

void RtfFontTable::ReadText(std::string_view text) {
    const std::size_t end = text.find(';');
    const std::string_view part = text.substr(0, end);
    if (current_.name.size() + part.size() <= kLongestFontName) {
        current_.name += part;
    }
    if (end != std::string_view::npos) {
        EndFont();
    }
}

void RtfFontTable::EndFont() {
    const std::size_t start = current_.name.find_first_not_of(' ');
    if (start != std::string::npos && fonts_.size() < kMostFonts) {
        current_.name.erase(0, start);
        current_.name.erase(current_.name.find_last_not_of(' ') + 1);
        fonts_.insert_or_assign(currentNumber_, current_);
    }
    current_ = {};
}

std::string_view RtfFontTable::Name(int font) const {
    const auto found = fonts_.find(font);
    return found == fonts_.end() ? std::string_view() : found->second.name;
}

int RtfFontTable::CodePageOf(int font) const {
    const auto found = fonts_.find(font);
    return found == fonts_.end() ? 0 : found->second.codePage;
}

// --- Colours ---

void RtfColorTable::ReadWord(const RtfToken& word) {
    if (word.text == "red") {
        current_ = WithChannel(current_, 16, word.number);
    } else if (word.text == "green") {
        current_ = WithChannel(current_, 8, word.number);
    } else if (word.text == "blue") {
        current_ = WithChannel(current_, 0, word.number);
    }
}

void RtfColorTable::EndColor() {
    if (colors_.size() < kMostColors) {
        colors_.push_back(current_);
    }
    current_.reset();
}

Color RtfColorTable::At(int index) const {
    const bool isThere = index >= 0 && static_cast<std::size_t>(index) < colors_.size();
    return isThere ? colors_[static_cast<std::size_t>(index)] : Color();
}

// --- Lists ---

ListKind ListKindOfFormat(int format) {
    constexpr int kBullet = 23;
    constexpr int kPicture = 20;
    constexpr int kNone = 255;
    switch (format) {
        case 1:
            return ListKind::UpperRoman;
        case 2:
            return ListKind::LowerRoman;
        case 3:
            return ListKind::UpperLetter;
        case 4:
            return ListKind::LowerLetter;
        case kBullet:
        case kPicture:
            return ListKind::Bullet;
        case kNone:
            return ListKind::None;
        default:
            return ListKind::Decimal;  // There are dozens, of other scripts most of them.
    }
}

void RtfListTable::ReadWord(const RtfToken& word) {
    if (word.text == "list" || word.text == "listoverride") {
        currentList_ = {};
        currentId_ = 0;
    } else if (word.text == "listlevel") {
        currentList_.levelCount = std::min<std::size_t>(currentList_.levelCount + 1, kListLevels);
    } else if (word.text == "levelnfc" || word.text == "levelnfcn") {
        if (Level* level = CurrentLevel()) {
            level->kind = ListKindOfFormat(word.number);
        }
    } else if (word.text == "levelstartat") {
        if (Level* level = CurrentLevel()) {
            level->start = std::clamp(word.number, 0, kLargestListNumber);
        }
    } else if (word.text == "listid") {
        currentId_ = word.number;
        if (currentList_.levelCount > 0 && listOfId_.size() < kMostLists) {
            listOfId_.insert_or_assign(currentId_, currentList_);
        }
    } else if (word.text == "ls" && idOfNumber_.size() < kMostLists) {
        idOfNumber_.insert_or_assign(word.number, currentId_);
    }
}

ListKind RtfListTable::KindOf(int number, int level) const {
    const Level* found = Find(number, level);
    return found ? found->kind : ListKind::None;
}

int RtfListTable::StartOf(int number, int level) const {
    const Level* found = Find(number, level);
    return found ? found->start : 1;
}

const RtfListTable::Level* RtfListTable::Find(int number, int level) const {
    const auto id = idOfNumber_.find(number);
    const auto list = id == idOfNumber_.end() ? listOfId_.end() : listOfId_.find(id->second);
    const bool isThere = list != listOfId_.end() && level >= 0 &&
                         static_cast<std::size_t>(level) < list->second.levelCount;
    return isThere ? &list->second.levels[static_cast<std::size_t>(level)] : nullptr;
}

RtfListTable::Level* RtfListTable::CurrentLevel() {
    return currentList_.levelCount > 0 ? &currentList_.levels[currentList_.levelCount - 1]
                                       : nullptr;
}

}  // namespace quenloft
