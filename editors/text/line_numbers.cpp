#include "editors/text/line_numbers.h"

#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

#include "shell/document_text.h"

namespace quenloft {
namespace {

int EndOf(const QTextBlock& block) { return block.position() + block.length(); }

}  // namespace

LineNumbers::LineNumbers(QTextDocument& document) : document_(document) {
    Follow(0, 0, document.characterCount());
    connect(&document, &QTextDocument::contentsChange, this, &LineNumbers::Follow);
}

int LineNumbers::LineOf(const QTextBlock& block) const {
    const auto first = std::ranges::lower_bound(breaks_, block.position());
    return block.blockNumber() + 1 - static_cast<int>(first - breaks_.begin());
}

QTextBlock LineNumbers::FirstBlockOf(int line) const {
    int number = std::clamp(line, 1, LineCount()) - 1;
    for (const int place : breaks_) {
        if (document_.findBlock(place).blockNumber() >= number) {
            break;
        }
        ++number;
    }
    return document_.findBlockByNumber(number);
}

int LineNumbers::LineCount() const {
    return document_.blockCount() - static_cast<int>(breaks_.size());
}

// Whole blocks are looked at anew: what is typed behind the last character of a block decides
// whether that one still ends it.
void LineNumbers::Follow(int position, int removed, int added) {
    const int end = std::min(position + added, document_.characterCount() - 1);
    const QTextBlock first = document_.findBlock(position);
    const QTextBlock behind = document_.findBlock(end).next();
    const int newEnd = behind.isValid() ? behind.position() : document_.characterCount();
    const int oldEnd = newEnd - added + removed;
    const auto from = std::ranges::lower_bound(breaks_, first.position());
    const auto to = std::lower_bound(from, breaks_.end(), oldEnd);
    std::for_each(to, breaks_.end(), [&](int& place) { place += added - removed; });
    std::vector<int> found;
    for (QTextBlock block = first; block.isValid() && block != behind; block = block.next()) {
        if (GoesOn(block)) {
            found.push_back(EndOf(block) - 2);
        }
    }
    breaks_.insert(breaks_.erase(from, to), found.begin(), found.end());
}

}  // namespace quenloft
