#include "editors/text/visible_colouring.h"

#include <QTextDocument>
#include <QTextLayout>

#include "shell/document_text.h"

namespace quenloft {
namespace {

// How far a text's beginning and the partners of its marks are looked for. No entry that a person
// wrote is longer; in others the colours may be off.
constexpr int kMostBlocks = 100;

// How far the header of a table is looked for. Within the time of a paint, and below any comment
// that a person would head a table with.
constexpr int kMostBlocksBeforeHeader = 10'000;

std::u16string_view View(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.constData()),
            static_cast<std::size_t>(text.size())};
}

QTextBlock FindHeader(const QTextDocument& table) {
    QTextBlock block = table.firstBlock();
    for (int i = 0; i < kMostBlocksBeforeHeader && block.isValid(); ++i, block = block.next()) {
        const QString text = block.text();
        if (!IsContinued(block) && !IsBeforeHeader(View(text))) {
            return block;
        }
    }
    return {};
}

}  // namespace

VisibleColouring::VisibleColouring(QTextDocument& document, const CodeColours& colours)
    : document_(document), colours_(colours) {}

void VisibleColouring::SetLanguage(Language language) {
    generation_ += language == language_ ? 0 : 1;
    language_ = language;
}

void VisibleColouring::SetColours(const CodeColours& colours) {
    colours_ = colours;
    ++generation_;
}

void VisibleColouring::Colour(const QTextBlock& first, const QTextBlock& last) {
    header_ = language_ == Language::Table ? FindHeader(document_) : QTextBlock();
    Carry carry = CarryInto(first);
    int changedFrom = -1;
    int changedTo = -1;
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        LineContext context;
        const ScannedLine line = Scan(block, carry, context);
        if (Apply(block, line, context)) {
            changedFrom = changedFrom < 0 ? block.position() : changedFrom;
            changedTo = block.position() + block.length();
        }
        if (block == last) {
            break;
        }
        carry = {line.part, line.open};
    }
    if (changedFrom >= 0) {
        document_.markContentsDirty(changedFrom, changedTo - changedFrom);
    }
}

VisibleColouring::Carry VisibleColouring::CarryInto(const QTextBlock& block) const {
    QTextBlock start = block;
    for (int i = 0; i < kMostBlocks && start.previous().isValid() && !BeginsText(start); ++i) {
        start = start.previous();
    }
    Carry carry;
    for (; start != block; start = start.next()) {
        const QString text = start.text();
        const ScannedLine line = ScanLine(View(text), ContextOf(start, text, carry));
        carry = {line.part, line.open};
    }
    return carry;
}

LineContext VisibleColouring::ContextOf(const QTextBlock& block, const QString& text,
                                        Carry carry) const {
    LineContext context{.language = language_};
    if (IsContinued(block)) {
        context.part = carry.part;
        context.open = carry.open;
        return context;
    }
    context.isHeader = IsHeader(block);
    const bool goesOn = language_ == Language::Table && !context.isHeader &&
                        !BeginsEntry(View(text)) && !IsHeader(block.previous());
    context.open = goesOn ? carry.open : MarkSet{0};
    return context;
}

/// Marks are paired from here on: in a script each line is a text of its own, in a table each
/// entry.
bool VisibleColouring::BeginsText(const QTextBlock& block) const {
    if (IsContinued(block)) {
        return false;
    }
    const QString text = block.text();
    return language_ == Language::Script || BeginsEntry(View(text)) || IsHeader(block);
}

bool VisibleColouring::IsHeader(const QTextBlock& block) const {
    return block.isValid() && block == header_;
}

MarkSet VisibleColouring::LaterMarks(const QTextBlock& block, bool isHeader) const {
    MarkSet marks = 0;
    QTextBlock below = block.next();
    for (int i = 0; i < kMostBlocks && below.isValid(); ++i, below = below.next()) {
        const QString text = below.text();
        if (!IsContinued(below)) {
            if (language_ == Language::Script || isHeader || BeginsEntry(View(text))) {
                break;
            }
            if (text.startsWith(u';')) {
                continue;
            }
        }
        marks |= MarksIn(View(text));
    }
    return marks;
}

ScannedLine VisibleColouring::Scan(const QTextBlock& block, Carry carry,
                                   LineContext& context) const {
    const QString text = block.text();
    context = ContextOf(block, text, carry);
    ScannedLine line = ScanLine(View(text), context);
    if (line.open != 0) {
        context.later = LaterMarks(block, context.isHeader);
        line = ScanLine(View(text), context);
    }
    return line;
}

/// True when the block has other colours now.
bool VisibleColouring::Apply(const QTextBlock& block, const ScannedLine& line,
                             const LineContext& context) {
    const int stamp = StampOf(block, context);
    if (block.userState() == stamp) {
        return false;
    }
    QTextBlock(block).setUserState(stamp);
    QList<QTextLayout::FormatRange> formats;
    for (const Span& span : line.spans) {
        formats.append({static_cast<int>(span.start), static_cast<int>(span.length),
                        colours_.FormatOf(span.token)});
    }
    if (block.layout()->formats() == formats) {
        return false;
    }
    block.layout()->setFormats(formats);
    return true;
}

/// Never -1, the state of blocks that were not coloured yet.
int VisibleColouring::StampOf(const QTextBlock& block, const LineContext& context) const {
    unsigned stamp = static_cast<unsigned>(block.revision());
    stamp = stamp << 4 | (generation_ & 0xF);
    stamp = stamp << 3 | static_cast<unsigned>(context.part);
    stamp = stamp << 3 | context.open;
    stamp = stamp << 3 | context.later;
    stamp = stamp << 1 | (context.isHeader ? 1U : 0U);
    constexpr unsigned kPositive = 0x7FFFFFFF;
    return static_cast<int>(stamp & kPositive);
}

}  // namespace quenloft
