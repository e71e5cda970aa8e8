#include "editors/text/text_search.h"

#include <QTextBlock>
#include <algorithm>
#include <iterator>
#include <vector>

#include "shell/document_text.h"
#include "shell/text_box.h"

namespace quenloft {
namespace {

Qt::CaseSensitivity CaseOf(const SearchRequest& request) {
    return request.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

/// One line: its blocks, and the text in them.
class Line {
  public:
    /// The line that `block` belongs to.
    explicit Line(QTextBlock block) {
        while (IsContinued(block)) {
            block = block.previous();
        }
        previous_ = block.previous();
        for (bool goesOn = true; goesOn; block = block.next()) {
            pieces_.push_back({text_.size(), block.position()});
            goesOn = GoesOn(block);
            text_ += block.text();
            text_.chop(goesOn ? 1 : 0);
        }
        next_ = block;
    }

    const QString& Text() const { return text_; }
    QTextBlock Next() const { return next_; }
    QTextBlock Previous() const { return previous_; }

    int PositionOf(qsizetype offset) const {
        const auto behind = std::ranges::upper_bound(pieces_, offset, {}, &Piece::offset);
        const Piece& piece = *std::prev(behind);
        return piece.position + static_cast<int>(offset - piece.offset);
    }
    qsizetype OffsetOf(int position) const {
        const auto behind = std::ranges::upper_bound(pieces_, position, {}, &Piece::position);
        const Piece& piece = *std::prev(behind);
        const qsizetype end = behind == pieces_.end() ? text_.size() : behind->offset;
        return qMin(piece.offset + (position - piece.position), end);
    }

  private:
    struct Piece {
        qsizetype offset = 0;
        int position = 0;
    };

    QTextBlock previous_;
    QTextBlock next_;
    std::vector<Piece> pieces_;
    QString text_;
};

}  // namespace

QString TextSearch::SelectedLine() const {
    const QTextCursor cursor = box_.textCursor();
    constexpr int kMostLetters = 1000;  // More is not what somebody looks for.
    const int length = cursor.selectionEnd() - cursor.selectionStart();
    if (length == 0 || length > kMostLetters) {
        return {};
    }
    const QString text = TextBetween(*box_.document(), cursor.selectionStart(),
                                     cursor.selectionEnd(), QLatin1String("\n"));
    return text.contains(u'\n') ? QString() : text;
}

bool TextSearch::FindNext(const SearchRequest& request) {
    QTextCursor cursor = box_.textCursor();
    const int end = box_.document()->characterCount() - 1;
    std::optional<Match> match = request.backwards ? FindBefore(request, cursor.selectionStart())
                                                   : FindAfter(request, cursor.selectionEnd());
    if (!match) {
        match = request.backwards ? FindBefore(request, end) : FindAfter(request, 0);
    }
    if (!match) {
        return false;
    }
    cursor.setPosition(match->start);
    cursor.setPosition(match->end, QTextCursor::KeepAnchor);
    box_.setTextCursor(cursor);
    box_.ensureCursorVisible();
    return true;
}

void TextSearch::ReplaceSelected(const SearchRequest& request, const QString& replacement) {
    if (QString::compare(SelectedLine(), request.text, CaseOf(request)) == 0) {
        InsertText(box_, replacement);
    }
}

int TextSearch::ReplaceAll(const SearchRequest& request, const QString& replacement) {
    std::vector<Match> matches;
    for (QTextBlock block = box_.document()->begin(); block.isValid();) {
        const Line line(block);
        for (qsizetype i = line.Text().indexOf(request.text, 0, CaseOf(request)); i >= 0;
             i = line.Text().indexOf(request.text, i + request.text.size(), CaseOf(request))) {
            matches.push_back({line.PositionOf(i), line.PositionOf(i + request.text.size())});
        }
        block = line.Next();
    }
    // From the end: what was not replaced yet stays where it was found.
    QTextCursor cursor(box_.document());
    cursor.beginEditBlock();
    for (auto match = matches.rbegin(); match != matches.rend(); ++match) {
        cursor.setPosition(match->start);
        cursor.setPosition(match->end, QTextCursor::KeepAnchor);
        InsertText(cursor, replacement);
    }
    cursor.endEditBlock();
    return static_cast<int>(matches.size());
}

void TextSearch::FocusSearched() { box_.setFocus(); }

std::optional<TextSearch::Match> TextSearch::FindAfter(const SearchRequest& request,
                                                       int position) const {
    for (QTextBlock block = box_.document()->findBlock(position); block.isValid();) {
        const Line line(block);
        const qsizetype from = line.OffsetOf(position);
        const qsizetype found = line.Text().indexOf(request.text, from, CaseOf(request));
        if (found >= 0) {
            return Match{line.PositionOf(found), line.PositionOf(found + request.text.size())};
        }
        block = line.Next();
        position = block.isValid() ? block.position() : position;
    }
    return std::nullopt;
}

std::optional<TextSearch::Match> TextSearch::FindBefore(const SearchRequest& request,
                                                        int position) const {
    for (QTextBlock block = box_.document()->findBlock(position); block.isValid();) {
        const Line line(block);
        const qsizetype last = line.OffsetOf(position) - request.text.size();
        const qsizetype found =
            last < 0 ? -1 : line.Text().lastIndexOf(request.text, last, CaseOf(request));
        if (found >= 0) {
            return Match{line.PositionOf(found), line.PositionOf(found + request.text.size())};
        }
        block = line.Previous();
        position = block.isValid() ? block.position() + block.length() - 1 : position;
    }
    return std::nullopt;
}

}  // namespace quenloft
