#include "editors/text/language_scanner.h"

#include <algorithm>
#include <array>

namespace quenloft {
namespace {

constexpr char16_t kHeaderSeparator = u'\u00A4';
constexpr char16_t kEntrySeparator = u'\u00A7';

struct PairedMark {
    std::u16string_view text;
    MarkSet bit;
    Token token;
};
constexpr std::array<PairedMark, 3> kPairedMarks{{{u"@", kDiceMarks, Token::Dice},
                                                  {u"??", kVariableMarks, Token::Variable},
                                                  {u"#", kReferenceMarks, Token::Reference}}};

const PairedMark* MarkAt(std::u16string_view line, std::size_t place) {
    for (const PairedMark& mark : kPairedMarks) {
        if (line.substr(place).starts_with(mark.text)) {
            return &mark;
        }
    }
    return nullptr;
}

/// The tokens of one line, letter by letter; what is painted later covers what is there.
class Painter {
  public:
    explicit Painter(std::size_t length) : tokens_(length, Token::None) {}

    void Paint(std::size_t start, std::size_t length, Token token) {
        const auto first = tokens_.begin() + static_cast<std::ptrdiff_t>(start);
        std::fill_n(first, std::min(length, tokens_.size() - start), token);
    }
    bool IsBlank(std::size_t place) const { return tokens_[place] == Token::None; }

    std::vector<Span> Spans() const {
        std::vector<Span> spans;
        for (std::size_t i = 0; i < tokens_.size(); ++i) {
            if (tokens_[i] == Token::None) {
                continue;
            }
            const bool goesOn = !spans.empty() && spans.back().token == tokens_[i] &&
                                spans.back().start + spans.back().length == i;
            if (goesOn) {
                ++spans.back().length;
            } else {
                spans.push_back({i, 1, tokens_[i]});
            }
        }
        return spans;
    }

  private:
    std::vector<Token> tokens_;
};

/// Pairs the marks of one line. Each kind is paired by itself, first with second, third with
/// fourth: one kind is replaced in the whole text before the next.
class MarkScanner {
  public:
    MarkScanner(std::u16string_view line, const LineContext& context, MarkSet kinds)
        : line_(line), context_(context), kinds_(kinds), open_(context.open) {}

    /// Returns the marks that are open at the end.
    MarkSet Scan(std::size_t from, Painter& painter) {
        FindPairs(from);
        CloseAtEnd();
        // What begins later stands inside.
        std::ranges::stable_sort(regions_, {}, &Span::start);
        for (const Span& region : regions_) {
            painter.Paint(region.start, region.length, region.token);
        }
        return open_;
    }

  private:
    void FindPairs(std::size_t from) {
        starts_.fill(kBeforeLine);
        for (std::size_t i = from; i < line_.size();) {
            const PairedMark* mark = MarkAt(line_, i);
            if (!mark || (mark->bit & kinds_) == 0) {
                ++i;
                continue;
            }
            std::size_t& start = starts_[static_cast<std::size_t>(mark - kPairedMarks.data())];
            const std::size_t end = i + mark->text.size();
            if ((open_ & mark->bit) != 0) {
                const std::size_t begin = start == kBeforeLine ? from : start;
                regions_.push_back({begin, end - begin, mark->token});
            } else {
                start = i;
            }
            open_ ^= mark->bit;
            i = end;
        }
    }

    void CloseAtEnd() {
        for (std::size_t kind = 0; kind < kPairedMarks.size(); ++kind) {
            const PairedMark& mark = kPairedMarks[kind];
            if ((open_ & mark.bit) == 0) {
                continue;
            }
            const bool beganHere = starts_[kind] != kBeforeLine;
            const std::size_t begin = beganHere ? starts_[kind] : 0;
            if ((context_.later & mark.bit) != 0) {
                regions_.push_back({begin, line_.size() - begin, mark.token});
            } else if (beganHere) {
                regions_.push_back({begin, mark.text.size(), Token::Lonely});
            }
        }
    }

    static constexpr std::size_t kBeforeLine = static_cast<std::size_t>(-1);

    std::u16string_view line_;
    const LineContext& context_;
    const MarkSet kinds_;
    MarkSet open_;
    std::array<std::size_t, kPairedMarks.size()> starts_{};
    std::vector<Span> regions_;
};

constexpr MarkSet kAllMarks = kDiceMarks | kVariableMarks | kReferenceMarks;

/// One line as it is taken apart.
struct Line {
    std::u16string_view text;
    const LineContext& context;
    Painter painter{text.size()};
    Part part = Part::Text;
    MarkSet open = context.open;

    void ScanText(std::size_t from) {
        open = MarkScanner(text, context, kAllMarks).Scan(from, painter);
        for (std::size_t i = text.find(u'|', from); i != text.npos; i = text.find(u'|', i + 1)) {
            if (painter.IsBlank(i)) {
                painter.Paint(i, 1, Token::LineBreak);
            }
        }
    }

    void ScanCondition(std::size_t from) {
        part = Part::Condition;
        for (const std::u16string_view word : {u" AND ", u" OR "}) {
            for (std::size_t i = text.find(word, from); i != text.npos;
                 i = text.find(word, i + word.size() - 1)) {
                painter.Paint(i + 1, word.size() - 2, Token::Keyword);
            }
        }
        open = MarkScanner(text, context, kVariableMarks).Scan(from, painter);
    }

    void ScanComment() {
        part = Part::Comment;
        painter.Paint(0, text.size(), Token::Comment);
    }
};

void GoOn(Line& line) {
    line.part = line.context.part;
    switch (line.part) {
        case Part::Comment:
            line.ScanComment();
            break;
        case Part::Condition:
            line.ScanCondition(0);
            break;
        case Part::Start:
        case Part::Text:
            line.ScanText(0);
            break;
        case Part::Ignored:
            break;
    }
}

enum class Behind { Nothing, Label, Condition };

struct Keyword {
    std::u16string_view text;
    Behind behind;
};
// Whatever begins with one of these is one: "IFFY" is a condition.
constexpr Keyword kKeywords[] = {{u"END:", Behind::Nothing},   {u"GOTO:", Behind::Label},
                                 {u"IF", Behind::Condition},   {u"ELSE", Behind::Nothing},
                                 {u"END IF", Behind::Nothing}, {u"LABEL:", Behind::Label}};

const Keyword* KeywordAt(std::u16string_view trimmed) {
    for (const Keyword& keyword : kKeywords) {
        if (trimmed.starts_with(keyword.text)) {
            return &keyword;
        }
    }
    return nullptr;
}

void PaintLabel(Line& line, std::size_t from) {
    const std::size_t last = line.text.find_last_not_of(u' ');
    if (last >= from) {
        line.painter.Paint(from, last + 1 - from, Token::Label);
    }
}

void ScanScriptLine(Line& line) {
    const std::size_t start = std::min(line.text.find_first_not_of(u' '), line.text.size());
    const Keyword* keyword = KeywordAt(line.text.substr(start));
    if (!keyword) {
        line.ScanText(0);
        return;
    }
    const std::size_t end = start + keyword->text.size();
    line.part = Part::Ignored;
    switch (keyword->behind) {
        case Behind::Nothing:
            break;
        case Behind::Label:
            PaintLabel(line, end);
            break;
        case Behind::Condition:
            line.ScanCondition(end);
            break;
    }
    line.painter.Paint(start, keyword->text.size(), Token::Keyword);
}

void PaintNumber(Line& line, std::size_t from, std::size_t to) {
    const std::size_t first = std::min(line.text.find_first_not_of(u" \t", from), to);
    const std::size_t behind = std::min(line.text.find_first_not_of(u"0123456789.", first), to);
    line.painter.Paint(first, behind - first, Token::Weight);
}

void ScanHeader(Line& line) {
    const std::size_t separator = line.text.find(kHeaderSeparator);
    if (separator == line.text.npos) {
        return;
    }
    line.ScanText(separator + 1);
    line.painter.Paint(0, separator, Token::Title);
    line.painter.Paint(separator, 1, Token::Separator);
    PaintNumber(line, separator + 1, line.text.size());
}

void ScanEntry(Line& line) {
    const std::size_t separator = line.text.find(kEntrySeparator);
    line.ScanText(separator + 1);
    line.painter.Paint(separator, 1, Token::Separator);
    PaintNumber(line, 0, separator);
}

void ScanTableLine(Line& line) {
    if (line.context.isHeader) {
        ScanHeader(line);
    } else if (BeginsEntry(line.text)) {
        ScanEntry(line);
    } else {
        line.ScanText(0);
    }
}

}  // namespace

ScannedLine ScanLine(std::u16string_view text, const LineContext& context) {
    Line line{text, context};
    if (context.part != Part::Start) {
        GoOn(line);
    } else if (text.starts_with(u';')) {
        line.ScanComment();
    } else if (context.language == Language::Script) {
        ScanScriptLine(line);
    } else {
        ScanTableLine(line);
    }
    return {line.painter.Spans(), line.part, line.open};
}

bool BeginsEntry(std::u16string_view line) { return line.find(kEntrySeparator) != line.npos; }

bool IsBeforeHeader(std::u16string_view line) { return line.empty() || line.starts_with(u';'); }

MarkSet MarksIn(std::u16string_view line) {
    MarkSet marks = 0;
    for (const PairedMark& mark : kPairedMarks) {
        marks |= line.find(mark.text) != line.npos ? mark.bit : MarkSet{0};
    }
    return marks;
}

}  // namespace quenloft
