#include "editors/table/table_model.h"

#include <algorithm>
#include <span>
#include <utility>

#include "editors/table/table_commands.h"
#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

// Laying out a text costs time by its length at each paint; no screen shows more of a line.
constexpr std::size_t kMostBytesShown = 2000;

QString ShownText(std::string_view text) {
    const auto isInsideLetter = [text](std::size_t place) {
        return (static_cast<unsigned char>(text[place]) & 0xC0U) == 0x80;
    };
    if (text.size() > kMostBytesShown) {
        std::size_t end = kMostBytesShown;
        while (end > 0 && isInsideLetter(end)) {
            --end;
        }
        text = text.substr(0, end);
    }
    return ToQt(text);
}

}  // namespace

TableModel::TableModel(const QIcon& warning, QObject* parent)
    : QAbstractTableModel(parent), warning_(warning) {}

void TableModel::SetContent(TableContent content) {
    beginResetModel();
    previewedRow_ = -1;
    content_ = std::move(content);
    ++revision_;
    sums_.Replace(0, sums_.Count(), content_.rows);
    undo_.clear();
    endResetModel();
    emit FieldsChanged();
    emit SumsChanged();
}

void TableModel::SetField(Field field, std::string text) {
    if (content_.*field != text) {
        undo_.push(new FieldCommand(*this, field, std::move(text)));
    }
}

void TableModel::EditRows(RowsEdit edit) {
    EndPreview();
    const auto old = std::span(content_.rows).subspan(edit.first, edit.count);
    if (!std::ranges::equal(old, edit.rows)) {
        undo_.push(new RowsCommand(*this, std::move(edit)));
    }
}

void TableModel::MoveRows(int first, int count, int to) {
    EndPreview();
    if (to != first) {
        undo_.push(new MoveCommand(*this, first, count, to));
    }
}

void TableModel::PreviewFrequency(int row, const QString& text) {
    if (previewedRow_ != row) {
        EndPreview();
    }
    previewedRow_ = row;
    sums_.SetFrequency(static_cast<std::size_t>(row), FromQt(text));
    TellSums(row);
}

void TableModel::EndPreview() {
    if (previewedRow_ >= 0) {
        const int row = std::exchange(previewedRow_, -1);
        const auto place = static_cast<std::size_t>(row);
        sums_.SetFrequency(place, content_.rows[place].frequency);
        TellSums(row);
    }
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(content_.rows.size());
}

int TableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kTableColumns;
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    const auto text = [&]() -> const std::string& {
        return CellText(content_.rows[static_cast<std::size_t>(index.row())], index.column());
    };
    switch (role) {
        case Qt::DisplayRole:
            return ShownText(text());
        case Qt::EditRole:
            return ToQt(text());
        case Qt::ToolTipRole:
        case Qt::AccessibleDescriptionRole:
            return MarkText(index.row());
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(
                Qt::AlignVCenter |
                (index.column() == kFrequencyColumn ? Qt::AlignRight : Qt::AlignLeft));
        default:
            return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return RowHeader(section, role);
    }
    if (role == Qt::DisplayRole) {
        return section == kFrequencyColumn ? tr("Frequency") : tr("Entry");
    }
    return {};
}

Qt::ItemFlags TableModel::flags(const QModelIndex& index) const {
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

bool TableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::EditRole) {
        return false;
    }
    const auto row = static_cast<std::size_t>(index.row());
    RowsEdit edit{row, 1, {content_.rows[row]}};
    CellText(edit.rows[0], index.column()) = OneLine(FromQt(value.toString()));
    EditRows(std::move(edit));
    return true;
}

void TableModel::PutField(Field field, const std::string& text) {
    content_.*field = text;
    ++revision_;
    emit FieldsChanged();
}

void TableModel::PutRows(RowsEdit& edit) {
    const int first = static_cast<int>(edit.first);
    const int before = static_cast<int>(edit.count);
    const int after = static_cast<int>(edit.rows.size());
    if (after > before) {
        beginInsertRows({}, first + before, first + after - 1);
    } else if (after < before) {
        beginRemoveRows({}, first + after, first + before - 1);
    }
    SwapRows(content_.rows, edit);
    ++revision_;
    sums_.Replace(edit.first, static_cast<std::size_t>(before),
                  std::span(content_.rows).subspan(edit.first, edit.count));
    if (after > before) {
        endInsertRows();
    } else if (after < before) {
        endRemoveRows();
    }
    TellRows(first, first + std::min(before, after) - 1);
    emit Edited(first, after);
}

void TableModel::ShiftRows(int first, int count, int to) {
    const int begin = std::min(first, to);
    const int end = std::max(first, to) + count;
    const auto place = [this](int row) { return content_.rows.begin() + row; };
    ++revision_;
    std::rotate(place(begin), place(to < first ? first : first + count), place(end));
    const auto start = static_cast<std::size_t>(begin);
    const auto length = static_cast<std::size_t>(end - begin);
    sums_.Replace(start, length, std::span(content_.rows).subspan(start, length));
    TellRows(begin, end - 1);
    emit Edited(to, count);
}

void TableModel::TellRows(int first, int last) {
    if (first <= last) {
        emit dataChanged(index(first, 0), index(last, kTableColumns - 1));
    }
    TellSums(first);
}

void TableModel::TellSums(int firstRow) {
    if (firstRow < rowCount()) {
        emit headerDataChanged(Qt::Vertical, firstRow, rowCount() - 1);
    }
    emit SumsChanged();
}

QVariant TableModel::RowHeader(int row, int role) const {
    switch (role) {
        case Qt::DisplayRole:
            return ToQt(sums_.Label(static_cast<std::size_t>(row)));
        case Qt::DecorationRole:
            return MarkOf(row) == RowMark::None ? QVariant() : QVariant(warning_);
        case Qt::ToolTipRole:
        case Qt::AccessibleDescriptionRole:
            return MarkOf(row) == RowMark::None ? tr("Row %1").arg(row + 1) : MarkText(row);
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
        default:
            return {};
    }
}

RowMark TableModel::MarkOf(int row) const {
    const auto place = static_cast<std::size_t>(row);
    return sums_.Mark(place, content_.rows[place].entry);
}

QString TableModel::MarkText(int row) const {
    const std::string_view sentence = SentenceOf(MarkOf(row));
    return sentence.empty() ? QString() : tr("Row %1 %2.").arg(row + 1).arg(ToQt(sentence));
}

}  // namespace quenloft
