// Finds what an editor colours in one line of a table or a script: comments, keywords, labels,
// marks, and marks that lack their partner. No Qt: places count UTF-16 units, as text boxes do.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quenloft {

enum class Language : std::uint8_t { Script, Table };

enum class Token : std::uint8_t {
    None,
    Comment,
    Keyword,    ///< Of a script, and AND and OR in its conditions.
    Label,      ///< The name behind GOTO: and LABEL:.
    Title,      ///< Of a table, in its header.
    Weight,     ///< The total in the header, the bound of an entry.
    Separator,  ///< "¤" and "§".
    Dice,       ///< "@2d6@", its marks among it; so are the next two.
    Variable,   ///< "??x??"
    Reference,  ///< "#names#"
    LineBreak,  ///< "|"
    Lonely      ///< A mark that has no partner: rolling this fails.
};

/// Kinds of marks that come in pairs, as bits.
using MarkSet = std::uint8_t;
inline constexpr MarkSet kDiceMarks = 1 << 0;
inline constexpr MarkSet kVariableMarks = 1 << 1;
inline constexpr MarkSet kReferenceMarks = 1 << 2;

/// What a line says of the text that goes on from it.
enum class Part : std::uint8_t {
    Start,      ///< Nothing: a line begins.
    Text,       ///< Marks are replaced here.
    Condition,  ///< Of an IF: variables only.
    Comment,
    Ignored  ///< Behind END:, ELSE and the like.
};

struct LineContext {
    Language language = Language::Script;
    bool isHeader = false;    ///< Of a table.
    Part part = Part::Start;  ///< Another one where the line goes on from the piece before.
    MarkSet open = 0;         ///< Marks before this line that have no partner yet.
    MarkSet later = 0;        ///< Kinds of marks that follow below in the same text.
};

struct Span {
    std::size_t start = 0;
    std::size_t length = 0;
    Token token = Token::None;

    bool operator==(const Span&) const = default;
};

struct ScannedLine {
    std::vector<Span> spans;  ///< From left to right; none overlaps another.
    Part part = Part::Text;   ///< How the line goes on, where it does.
    MarkSet open = 0;         ///< Marks that have no partner up to the end of this line.
};

ScannedLine ScanLine(std::u16string_view line, const LineContext& context);

/// A line of a table that begins an entry: the entry's text may go on in the lines below.
bool BeginsEntry(std::u16string_view line);
/// Lines that a reader of tables passes over before the header.
bool IsBeforeHeader(std::u16string_view line);
/// The kinds of marks in `line`.
MarkSet MarksIn(std::u16string_view line);

}  // namespace quenloft
