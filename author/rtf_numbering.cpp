#include "author/rtf_numbering.h"

#include <algorithm>
#include <iterator>

#include "author/list_label.h"

namespace quenloft {
namespace {

constexpr std::size_t kLongestLabel = 64;

}  // namespace

int ListCounter::Count(int list, int level, int start, int shown) {
    Last& last = last_[level];
    const int next = last.list == list ? last.number + 1 : start;
    last = {list, std::min(shown > 0 ? shown : next, kLargestListNumber)};
    std::fill(&last_[level] + 1, std::end(last_), Last());
    return last.number;
}

void ListCounter::Interrupt() {
    for (Last& last : last_) {
        last = last.list < 0 ? Last() : last;
    }
}

void RtfNumbering::BeginGroup(const RtfParagraphState& paragraph) {
    group_ = {.level = paragraph.format.list.level};
    groupStart_ = 1;
}

void RtfNumbering::ReadWord(const RtfToken& token) {
    struct KindWord {
        std::string_view name;
        ListKind kind;
    };
    constexpr KindWord kKindWords[] = {
        {"pnlvlblt", ListKind::Bullet},     {"pnlvlbody", ListKind::Decimal},
        {"pnlvl", ListKind::Decimal},       {"pnlvlcont", ListKind::None},
        {"pndec", ListKind::Decimal},       {"pnucltr", ListKind::UpperLetter},
        {"pnlcltr", ListKind::LowerLetter}, {"pnucrm", ListKind::UpperRoman},
        {"pnlcrm", ListKind::LowerRoman},
    };
    for (const KindWord& candidate : kKindWords) {
        if (candidate.name == token.text) {
            group_.kind = candidate.kind;
        }
    }
    if (token.text == "pnlvl") {
        group_.level = std::clamp(token.number - 1, 0, kListLevels - 1);
    } else if (token.text == "pnstart") {
        groupStart_ = std::clamp(token.number, 0, kLargestListNumber);
    }
}

void RtfNumbering::EndGroup(RtfParagraphState& paragraph) const {
    paragraph.format.list = group_;
    paragraph.listStart = groupStart_;
}

void RtfNumbering::AddToLabel(std::string_view utf8) {
    label_ += utf8.substr(0, kLongestLabel - std::min(kLongestLabel, label_.size()));
}

ListItem RtfNumbering::EndParagraph(const RtfParagraphState& paragraph) {
    ListItem item{KindOf(paragraph), paragraph.format.list.level, 0};
    if (item.kind == ListKind::None) {
        counter_.Interrupt();
        item = {};
    } else if (item.kind != ListKind::Bullet) {
        item.number = NumberOf(paragraph, item.kind);
    }
    label_.clear();
    return item;
}

ListKind RtfNumbering::KindOf(const RtfParagraphState& state) const {
    if (state.list == 0) {
        return state.format.list.kind;
    }
    if (table_.Has(state.list)) {
        return table_.KindOf(state.list, state.format.list.level);
    }
    // Not in the table: what stands before the paragraph tells.
    if (label_.empty()) {
        return ListKind::None;
    }
    return NumberOfLabel(ListKind::Decimal, label_) ? ListKind::Decimal : ListKind::Bullet;
}

int RtfNumbering::NumberOf(const RtfParagraphState& paragraph, ListKind kind) {
    const int level = paragraph.format.list.level;
    const bool inTable = paragraph.list > 0;
    const int list = inTable ? paragraph.list : -1 - static_cast<int>(kind);
    const int start = inTable ? table_.StartOf(paragraph.list, level) : paragraph.listStart;
    return counter_.Count(list, level, start, NumberOfLabel(kind, label_).value_or(0));
}

}  // namespace quenloft
