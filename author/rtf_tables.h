// The tables at the head of an RTF file: fonts, colours and lists. Each is fed the tokens of its
// group and then looked up by number; what it does not hold has a harmless answer.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "author/rich_text.h"
#include "author/rtf_tokenizer.h"

namespace quenloft {

class RtfFontTable {
  public:
    void ReadWord(const RtfToken& word);
    /// A part of a font's name, in UTF-8; ";" ends it.
    void ReadText(std::string_view text);
    void EndFont();

    /// Empty where the table has no such font.
    std::string_view Name(int font) const;
    /// The code page of its text; 0 where the font leaves it to the file.
    int CodePageOf(int font) const;
    /// That of the name being read.
    int CurrentCodePage() const { return current_.codePage; }

  private:
    struct Font {
        std::string name;
        int codePage = 0;
    };
    std::unordered_map<int, Font> fonts_;
    Font current_;
    int currentNumber_ = 0;
};

class RtfColorTable {
  public:
    void ReadWord(const RtfToken& word);
    void EndColor();

    /// Automatic where the table has no such colour.
    Color At(int index) const;

  private:
    std::vector<Color> colors_;
    Color current_;
};

/// The list table and the table that gives its lists the numbers paragraphs know them by.
class RtfListTable {
  public:
    void ReadWord(const RtfToken& word);

    /// Whether paragraphs may name the list `number`.
    bool Has(int number) const { return idOfNumber_.contains(number); }
    /// ListKind::None where a table says so, or has no such list or level.
    ListKind KindOf(int number, int level) const;
    int StartOf(int number, int level) const;

  private:
    struct Level {
        ListKind kind = ListKind::None;
        int start = 1;
    };
    struct List {
        std::array<Level, kListLevels> levels;
        std::size_t levelCount = 0;
    };
    const Level* Find(int number, int level) const;
    Level* CurrentLevel();

    std::unordered_map<int, List> listOfId_;
    std::unordered_map<int, int> idOfNumber_;
    List currentList_;
    int currentId_ = 0;
};

/// The kind of numbering that a list level's "\levelnfc" names.
ListKind ListKindOfFormat(int format);

}  // namespace quenloft
