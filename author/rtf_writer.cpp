#include "author/rtf_writer.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "author/list_label.h"
#include "platform/letter_case.h"
#include "platform/text_encoding.h"

namespace quenloft {
namespace {

constexpr char kLineEnd[] = "\r\n";
constexpr char kFallbackFont[] = "Times New Roman";
constexpr int kDefaultHalfPoints = 24;

std::string Number(std::string_view word, int number) {
    return "\\" + std::string(word) + std::to_string(number);
}

std::string Flag(std::string_view word, bool on) {
    return "\\" + std::string(word) + (on ? "" : "0");
}

std::string HexByte(unsigned char byte) {
    constexpr char kDigits[] = "0123456789abcdef";
    return {'\\', '\'', kDigits[byte / 16], kDigits[byte % 16]};
}

// In the signed 16 bits that the format has for them; "?" is for readers without Unicode.
std::string Unicode(char32_t letter) {
    if (letter > 0xFFFF) {
        const char32_t rest = letter - 0x10000;
        return Unicode(0xD800 + (rest >> 10)) + Unicode(0xDC00 + (rest & 0x3FF));
    }
    return Number("u", static_cast<std::int16_t>(letter)) + "?";
}

std::string Letter(char32_t letter) {
    switch (letter) {
        case '\\':
            return "\\\\";
        case '{':
            return "\\{";
        case '}':
            return "\\}";
        case '\t':
            return "\\tab ";
        case 0x00A0:
            return "\\~";
        case 0x00AD:
            return "\\-";
        case 0x2011:
            return "\\_";
        case 0x2028:
            return "\\line ";
        default:
            break;
    }
    if (letter < 0x80) {
        return {static_cast<char>(letter)};
    }
    std::string utf8;
    AppendLetter(utf8, letter);
    const auto byte = ToWindows1252(utf8);
    return byte ? HexByte(static_cast<unsigned char>(byte->front())) : Unicode(letter);
}

std::string Escaped(std::string_view utf8) {
    std::string text;
    while (!utf8.empty()) {
        text += Letter(TakeLetter(utf8));
    }
    return text;
}

/// What the text refers to by number, in the order of its first use.
template <typename Value>
class Table {
  public:
    int IndexOf(const Value& value) {
        const auto found = std::find(values_.begin(), values_.end(), value);
        const auto index = static_cast<int>(found - values_.begin());
        if (found == values_.end()) {
            values_.push_back(value);
        }
        return index;
    }
    const std::vector<Value>& Values() const { return values_; }

  private:
    std::vector<Value> values_;
};

class Writer {
  public:
    std::string Write(const RichText& text);

  private:
    std::string Head() const;
    void WriteParagraph(const Paragraph& paragraph, const Paragraph* before);
    void WriteList(const ListItem& item, const Paragraph* before);
    void WriteParagraphFormat(const ParagraphFormat& format);
    void WriteLineSpacing(const ParagraphFormat& format);
    void ChangeTo(const CharFormat& format);
    std::string ChangesTo(const CharFormat& format);
    int FontIndex(const std::string& name) { return name.empty() ? 0 : fonts_.IndexOf(name); }
    int ColorIndex(const Color& color) { return color ? colors_.IndexOf(*color) + 1 : 0; }

    std::string body_;
    Table<std::string> fonts_;
    Table<std::uint32_t> colors_;  // Of places from 1 on: 0 is the automatic colour.
    CharFormat now_;
    int listStart_ = 1;
};

std::string Writer::Write(const RichText& text) {
    const Paragraph* before = nullptr;
    for (const Paragraph& paragraph : text.paragraphs) {
        WriteParagraph(paragraph, before);
        before = &paragraph;
    }
    return Head() + body_ + "}" + kLineEnd;
}

std::string Writer::Head() const {
    std::string head =
        std::string("{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1") + kLineEnd + "{\\fonttbl";
    int index = 0;
    for (const std::string& name : fonts_.Values()) {
        head += "{" + Number("f", index++) + "\\fnil\\fcharset0 " + Escaped(name) + ";}";
    }
    if (index == 0) {
        head += std::string("{\\f0\\fnil\\fcharset0 ") + kFallbackFont + ";}";
    }
    head += std::string("}") + kLineEnd + "{\\colortbl ;";
    for (const std::uint32_t color : colors_.Values()) {
        head += Number("red", static_cast<int>(color >> 16 & 0xFF)) +
                Number("green", static_cast<int>(color >> 8 & 0xFF)) +
                Number("blue", static_cast<int>(color & 0xFF)) + ";";
    }
    return head + "}" + kLineEnd;
}

void Writer::WriteParagraph(const Paragraph& paragraph, const Paragraph* before) {
    // The list's marks come behind: some word processors drop those that stand before.
    body_ += "\\pard";
    WriteList(paragraph.format.list, before);
    WriteParagraphFormat(paragraph.format);
    body_ += body_.back() == '}' ? "" : " ";  // Behind a group it would be text.
    for (const TextRun& run : paragraph.runs) {
        ChangeTo(run.format);
        body_ += Escaped(run.text);
    }
    ChangeTo(paragraph.endFormat);
    body_ += std::string("\\par") + kLineEnd;
}

void Writer::WriteList(const ListItem& item, const Paragraph* before) {
    if (item.kind == ListKind::None) {
        return;
    }
    if (item.level > 0) {
        body_ += Number("ilvl", item.level);
    }
    if (item.kind == ListKind::Bullet) {
        const std::string bullet = Escaped(ListLabel(item.kind, 0));
        body_ += "{\\pntext " + bullet + "\\tab}{\\*\\pn\\pnlvlblt\\pnf0\\pnindent0{\\pntxtb" +
                 bullet + "}}";
        return;
    }
    constexpr std::string_view kWords[] = {"pndec", "pnlcltr", "pnucltr", "pnlcrm", "pnucrm"};
    const auto place =
        static_cast<std::size_t>(item.kind) - static_cast<std::size_t>(ListKind::Decimal);
    const bool goesOn = before && before->format.list.kind == item.kind &&
                        before->format.list.level == item.level &&
                        before->format.list.number + 1 == item.number;
    listStart_ = goesOn ? listStart_ : item.number;
    body_ += "{\\pntext " + ListLabel(item.kind, item.number) + ".\\tab}{\\*\\pn\\pnlvlbody\\pnf0" +
             Number("pnindent", 0) + Number("pnstart", listStart_) + "\\" +
             std::string(kWords[place]) + "{\\pntxta.}}";
}

void Writer::WriteParagraphFormat(const ParagraphFormat& format) {
    constexpr std::string_view kAlignments[] = {"", "\\qc", "\\qr", "\\qj"};
    constexpr std::pair<const char*, int ParagraphFormat::*> kNumbers[] = {
        {"fi", &ParagraphFormat::firstIndent}, {"li", &ParagraphFormat::leftIndent},
        {"ri", &ParagraphFormat::rightIndent}, {"sb", &ParagraphFormat::spaceBefore},
        {"sa", &ParagraphFormat::spaceAfter},
    };
    body_ += format.pageBreakBefore ? "\\pagebb" : "";
    body_ += kAlignments[static_cast<std::size_t>(format.alignment)];
    for (const auto& [word, member] : kNumbers) {
        body_ += format.*member != 0 ? Number(word, format.*member) : "";
    }
    WriteLineSpacing(format);
    for (const int place : format.tabStops) {
        body_ += Number("tx", place);
    }
}

void Writer::WriteLineSpacing(const ParagraphFormat& format) {
    if (format.lineSpacing == LineSpacing::Single) {
        return;
    }
    const bool isExact = format.lineSpacing == LineSpacing::Exactly;
    body_ += Number("sl", isExact ? -format.lineHeight : format.lineHeight) +
             Number("slmult", format.lineSpacing == LineSpacing::Multiple ? 1 : 0);
}

void Writer::ChangeTo(const CharFormat& format) {
    const std::string changes = ChangesTo(format);
    if (!changes.empty()) {
        body_ += changes + ' ';
        now_ = format;
    }
}

std::string Writer::ChangesTo(const CharFormat& format) {
    constexpr std::pair<const char*, bool CharFormat::*> kFlags[] = {
        {"b", &CharFormat::bold},
        {"i", &CharFormat::italic},
        {"ul", &CharFormat::underline},
        {"strike", &CharFormat::strike},
    };
    constexpr std::string_view kPositions[] = {"\\nosupersub", "\\super", "\\sub"};
    std::string changes;
    if (FontIndex(format.font) != FontIndex(now_.font)) {
        changes += Number("f", FontIndex(format.font));
    }
    const int size = format.halfPoints > 0 ? format.halfPoints : kDefaultHalfPoints;
    if (size != (now_.halfPoints > 0 ? now_.halfPoints : kDefaultHalfPoints)) {
        changes += Number("fs", size);
    }
    for (const auto& [word, member] : kFlags) {
        changes += format.*member != now_.*member ? Flag(word, format.*member) : "";
    }
    if (format.position != now_.position) {
        changes += kPositions[static_cast<std::size_t>(format.position)];
    }
    if (format.capitals != now_.capitals) {
        const Capitals shown =
            format.capitals == Capitals::AsTyped ? now_.capitals : format.capitals;
        changes +=
            Flag(shown == Capitals::All ? "caps" : "scaps", format.capitals != Capitals::AsTyped);
    }
    if (format.color != now_.color) {
        changes += Number("cf", ColorIndex(format.color));
    }
    if (format.background != now_.background) {
        const int index = ColorIndex(format.background);
        // No word processor minds all three of them, and none knows fewer than one.
        changes += Number("highlight", index) + Number("cb", index) + Number("chcbpat", index);
    }
    return changes;
}

}  // namespace

std::string WriteRtf(const RichText& text) { return Writer().Write(text); }

}  // namespace quenloft
