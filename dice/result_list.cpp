#include "dice/result_list.h"

#include <QApplication>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <utility>

#include "dice/report_lines.h"
#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

// What is shown of a line: the faces of a large pool fill megabytes.
constexpr std::size_t kLongestShown = 2000;
constexpr int kMargin = 4;
constexpr int kColumns = 8;

/// Draws tabs as columns, which the toolkit's delegate gives the same few pixels in any font.
class ColumnDelegate : public QStyledItemDelegate {
  public:
    ColumnDelegate(ResultModel& model, QObject* parent)
        : QStyledItemDelegate(parent), model_(model) {}

    void SetNarrowFirstColumn() { narrowFirstColumn_ = true; }

    void paint(QPainter* painter, const QStyleOptionViewItem& item,
               const QModelIndex& index) const override {
        QStyleOptionViewItem option = item;
        initStyleOption(&option, index);
        const QString text = std::exchange(option.text, QString());
        const QStyle& style = option.widget ? *option.widget->style() : *QApplication::style();
        style.drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        const auto group =
            option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
        painter->save();
        painter->setFont(option.font);
        painter->setPen(
            option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(QRectF(option.rect).adjusted(kMargin, 0, 0, 0), text,
                          Columns(option.fontMetrics));
        painter->restore();
    }

    /// The same for all lines: as wide as the longest.
    QSize sizeHint(const QStyleOptionViewItem& option,
                   const QModelIndex& /*index*/) const override {
        const int row = model_.LongestRow();
        if (row < 0) {
            return {0, option.fontMetrics.height()};
        }
        const QString text = model_.data(model_.index(row), Qt::DisplayRole).toString();
        QTextLayout layout(text, option.font);
        layout.setTextOption(Columns(option.fontMetrics));
        layout.beginLayout();
        const QTextLine line = layout.createLine();
        layout.endLayout();
        return {static_cast<int>(line.naturalTextWidth()) + 2 * kMargin,
                option.fontMetrics.height() + 1};
    }

  private:
    QTextOption Columns(const QFontMetrics& font) const {
        const int width = font.horizontalAdvance(QStringLiteral("% of Total  "));
        const int narrow = font.horizontalAdvance(QStringLiteral("0000"));
        QList<QTextOption::Tab> tabs;
        if (narrowFirstColumn_) {
            tabs << QTextOption::Tab(narrow, QTextOption::LeftTab);
        }
        for (int column = 1; column <= kColumns; ++column) {
            tabs << QTextOption::Tab(column * width, QTextOption::LeftTab);
        }
        QTextOption option(Qt::AlignLeft | Qt::AlignVCenter);
        option.setWrapMode(QTextOption::NoWrap);
        option.setTabs(tabs);
        return option;
    }

    ResultModel& model_;
    bool narrowFirstColumn_ = false;
};

}  // namespace

ResultModel::ResultModel(QObject* parent) : QAbstractListModel(parent) {}

int ResultModel::Add(std::vector<std::string> lines) {
    const int first = newestFirst_ ? 0 : static_cast<int>(lines_.size());
    if (lines.empty()) {
        return first;
    }
    beginInsertRows({}, first, first + static_cast<int>(lines.size()) - 1);
    const std::size_t before = lines_.size();
    if (lines_.empty()) {
        lines_ = std::move(lines);
    } else {
        lines_.insert(lines_.end(), std::make_move_iterator(lines.begin()),
                      std::make_move_iterator(lines.end()));
    }
    for (std::size_t i = before; i < lines_.size(); ++i) {
        longest_ = lines_[i].size() > lines_[longest_].size() ? i : longest_;
        bytes_ += ReportLines::BytesOf(lines_[i]);
    }
    endInsertRows();
    return first;
}

void ResultModel::Clear() {
    beginResetModel();
    lines_ = {};
    longest_ = 0;
    bytes_ = 0;
    endResetModel();
}

const std::string& ResultModel::Line(std::size_t row) const { return lines_[Place(row)]; }

int ResultModel::LongestRow() const {
    return lines_.empty() ? -1 : static_cast<int>(Place(longest_));
}

int ResultModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant ResultModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole) {
        return {};
    }
    const std::string& line = Line(static_cast<std::size_t>(index.row()));
    return line.size() <= kLongestShown
               ? ToQt(line)
               : ToQt(std::string_view(line).substr(0, kLongestShown)) + QChar(0x2026);
}

ResultList::ResultList(QWidget* parent) : QListView(parent), model_(new ResultModel(this)) {
    setModel(model_);
    setItemDelegate(new ColumnDelegate(*model_, this));
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
}

void ResultList::UseNarrowFirstColumn() {
    static_cast<ColumnDelegate*>(itemDelegate())->SetNarrowFirstColumn();
}

void ResultList::Add(std::vector<std::string> lines) {
    const int first = model_->Add(std::move(lines));
    scrollTo(model_->index(first), QAbstractItemView::PositionAtTop);
}

std::string ResultList::Text() const {
    std::string text = TextOfWholeLines();
    text.resize(text.size() - std::min<std::size_t>(text.size(), 2));
    return text;
}

std::string ResultList::TextOfWholeLines() const {
    std::string text;
    for (std::size_t row = 0; row < model_->Size(); ++row) {
        text += model_->Line(row);
        text += "\r\n";
    }
    return text;
}

}  // namespace quenloft
