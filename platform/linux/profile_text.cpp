#include "platform/linux/profile_text.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "platform/letter_case.h"
#include "platform/linux/text_lines.h"
#include "platform/text_encoding.h"

namespace quenloft {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kLineEnd = "\r\n";

std::string_view TrimFront(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

std::string_view Trim(std::string_view text) {
    return TrimFront(text.substr(0, text.find_last_not_of(kBlanks) + 1));
}

/// One line of the file: a section's head, a key with its value, or anything else.
struct Line {
    enum class Kind { Section, Key, Other };

    Kind kind = Kind::Other;
    std::size_t begin = 0;     ///< Place of its first byte in the file.
    std::string_view content;  ///< Without its end.
    std::size_t fullSize = 0;  ///< With its end.
    std::string_view name;     ///< Of the section or key, in the file's bytes.
    std::string_view value;    ///< Without the blanks around it, with its quotes.

    std::size_t End() const { return begin + fullSize; }
    bool IsBlank() const { return Trim(content).empty(); }
    /// A part of the line as text: the line as a whole shows its encoding.
    std::string Decode(std::string_view part) const {
        return IsUtf8(content) ? std::string(part) : FromWindows1252(part);
    }
};

void Classify(Line& line) {
    const std::string_view text = Trim(line.content);
    if (text.starts_with(';')) {
        return;
    }
    const std::size_t close = text.rfind(']');
    if (text.starts_with('[') && close != std::string_view::npos) {
        line.kind = Line::Kind::Section;
        line.name = Trim(text.substr(1, close - 1));
        return;
    }
    const std::size_t equals = text.find('=');
    if (equals != std::string_view::npos) {
        line.kind = Line::Kind::Key;
        line.name = Trim(text.substr(0, equals));
        line.value = Trim(text.substr(equals + 1));
    }
}

/// Goes through the lines of a file.
class LineWalk {
  public:
    explicit LineWalk(std::string_view bytes)
        : bytes_(bytes), next_(bytes.size() - WithoutByteOrderMark(bytes).size()) {}

    bool Next(Line& line) {
        if (next_ == bytes_.size()) {
            return false;
        }
        line = Line();
        line.begin = next_;
        const std::size_t feed = bytes_.find('\n', next_);
        next_ = feed == std::string_view::npos ? bytes_.size() : feed + 1;
        line.fullSize = next_ - line.begin;
        line.content = bytes_.substr(line.begin, std::min(feed, next_) - line.begin);
        if (line.content.ends_with('\r')) {
            line.content.remove_suffix(1);
        }
        Classify(line);
        return true;
    }

  private:
    std::string_view bytes_;
    std::size_t next_;
};

/// A name as an argument: compared with names in the file.
class Name {
  public:
    explicit Name(std::string_view utf8) : folded_(FoldCase(Trim(utf8))) {}
    bool IsEmpty() const { return folded_.empty(); }
    bool IsNameOf(const Line& line) const { return FoldCase(line.Decode(line.name)) == folded_; }

  private:
    std::string folded_;
};

/// Goes through the lines behind the head of the first section of a name, up to the next section.
class SectionWalk {
  public:
    SectionWalk(std::string_view bytes, const Name& section) : lines_(bytes) {
        while (!section.IsEmpty() && !isFound_ && lines_.Next(head_)) {
            isFound_ = head_.kind == Line::Kind::Section && section.IsNameOf(head_);
        }
    }
    bool IsFound() const { return isFound_; }
    const Line& Head() const { return head_; }
    bool Next(Line& line) {
        return isFound_ && lines_.Next(line) && line.kind != Line::Kind::Section;
    }

  private:
    LineWalk lines_;
    Line head_;
    bool isFound_ = false;
};

std::string_view WithoutQuotes(std::string_view value) {
    const bool isQuoted =
        value.size() >= 2 && (value[0] == '"' || value[0] == '\'') && value.front() == value.back();
    return isQuoted ? value.substr(1, value.size() - 2) : value;
}

/// The encoding that `line` shows by itself, otherwise the file's.
TextEncoding EncodingOf(std::string_view line, std::string_view file) {
    const bool isPlain = std::all_of(line.begin(), line.end(),
                                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    if (isPlain) {
        return DetectEncoding(file);
    }
    return IsUtf8(line) ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

std::string Encode(const std::string& utf8, TextEncoding encoding) {
    if (encoding == TextEncoding::Windows1252) {
        const std::optional<std::string> bytes = ToWindows1252(utf8);
        // Some texts in the code page happen to look like UTF-8 and would be read as that.
        if (bytes && DecodeText(*bytes) == utf8) {
            return *bytes;
        }
    }
    return utf8;
}

std::string ReplaceIn(std::string_view file, const Line& line, std::string_view value) {
    const std::size_t equals = line.content.find('=');
    const std::string_view rest = line.content.substr(equals + 1);
    const std::size_t valueBegin = equals + 1 + (rest.size() - TrimFront(rest).size());
    const std::string content =
        line.Decode(line.content.substr(0, valueBegin)) + std::string(value);
    std::string result(file.substr(0, line.begin));
    result += Encode(content, EncodingOf(line.content, file));
    result += file.substr(line.begin + line.content.size());
    return result;
}

/// Puts new lines (UTF-8) at a place where a line begins or the file ends.
std::string InsertAt(std::string_view file, std::size_t place,
                     std::initializer_list<std::string> lines) {
    std::string result(file.substr(0, place));
    if (place > 0 && !WithoutByteOrderMark(result).empty() && !result.ends_with('\n')) {
        result += kLineEnd;
    }
    for (const std::string& line : lines) {
        result += Encode(line, DetectEncoding(file));
        result += kLineEnd;
    }
    result += file.substr(place);
    return result;
}

bool CanBeWritten(std::string_view section, std::string_view key, std::string_view value) {
    constexpr std::string_view kNever("\r\n\0", 3);
    for (const std::string_view text : {section, key, value}) {
        if (text.find_first_of(kNever) != std::string_view::npos) {
            return false;
        }
    }
    const bool looksLikeOther =
        key.starts_with(';') ||
        (key.starts_with('[') && value.find(']') != std::string_view::npos) ||
        (key.starts_with('[') && key.find(']') != std::string_view::npos);
    return !section.empty() && !key.empty() && !looksLikeOther &&
           key.find('=') == std::string_view::npos;
}

}  // namespace

std::string_view FirstCharacters(std::string_view utf8, std::size_t count) {
    std::string_view rest = utf8;
    for (std::size_t i = 0; i < count && !rest.empty(); ++i) {
        TakeLetter(rest);
    }
    return utf8.substr(0, utf8.size() - rest.size());
}

std::optional<std::string> FindProfileValue(std::string_view fileBytes, std::string_view section,
                                            std::string_view key) {
    const Name name(key);
    SectionWalk walk(fileBytes, Name(section));
    for (Line line; !name.IsEmpty() && walk.Next(line);) {
        if (line.kind == Line::Kind::Key && name.IsNameOf(line)) {
            const std::string_view value = WithoutQuotes(line.value);
            return line.Decode(value.substr(0, value.find('\0')));
        }
    }
    return std::nullopt;
}

std::string ListProfileKeys(std::string_view fileBytes, std::string_view section) {
    std::string keys;
    SectionWalk walk(fileBytes, Name(section));
    for (Line line; walk.Next(line);) {
        if (line.kind == Line::Kind::Key && !line.name.empty()) {
            keys += line.Decode(line.name) + '\0';
        }
    }
    return keys;
}

std::optional<std::string> ReplaceProfileValue(std::string_view fileBytes, std::string_view section,
                                               std::string_view key, std::string_view value) {
    section = Trim(section);
    key = Trim(key);
    value = TrimFront(value);
    if (!CanBeWritten(section, key, value)) {
        return std::nullopt;
    }
    const std::string newLine = std::string(key) + "=" + std::string(value);
    const Name name(key);
    SectionWalk walk(fileBytes, Name(section));
    if (!walk.IsFound()) {
        const std::string head = "[" + std::string(section) + "]";
        return InsertAt(fileBytes, fileBytes.size(), {head, newLine});
    }
    std::size_t place = walk.Head().End();
    for (Line line; walk.Next(line);) {
        if (line.kind == Line::Kind::Key && name.IsNameOf(line)) {
            return ReplaceIn(fileBytes, line, value);
        }
        if (!line.IsBlank()) {
            place = line.End();
        }
    }
    return InsertAt(fileBytes, place, {newLine});
}

}  // namespace quenloft
