#include "editors/reference/reference_model.h"

#include <QElapsedTimer>

#include "platform/qt/qt_text.h"
#include "shell/library_icons.h"

namespace quenloft {
namespace {

// So long a folder may take before it is shown: the titles of most are known by then.
constexpr int kFirstSliceMs = 60;
// Short enough that typing and drawing never wait.
constexpr int kSliceMs = 5;

QIcon IconOf(ReferenceItem::Kind kind) {
    switch (kind) {
        case ReferenceItem::Kind::Folder:
            return FolderIcon();
        case ReferenceItem::Kind::Table:
            return TableIcon();
        case ReferenceItem::Kind::Script:
            return ScriptIcon();
    }
    return {};
}

}  // namespace

ReferenceModel::ReferenceModel(Engine& engine, QObject* parent)
    : QAbstractTableModel(parent), list_(engine) {
    connect(&reading_, &QTimer::timeout, this, &ReferenceModel::ReadOn);
}

void ReferenceModel::Fill(const ReferencePlace& place, bool showHidden) {
    beginResetModel();
    list_.Fill(place, showHidden);
    if (ReadFor(kFirstSliceMs)) {
        reading_.stop();
        list_.Arrange();
    } else {
        reading_.start(0);
    }
    endResetModel();
}

void ReferenceModel::SetFilter(std::string_view text) {
    beginResetModel();
    list_.SetFilter(text);
    endResetModel();
}

int ReferenceModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(list_.RowCount());
}

int ReferenceModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant ReferenceModel::data(const QModelIndex& index, int role) const {
    const ReferenceItem& item = list_.Row(static_cast<std::size_t>(index.row()));
    switch (role) {
        case Qt::DisplayRole:
            return Text(item, index.column());
        case Qt::ToolTipRole:
            return QStringLiteral("<qt>%1</qt>").arg(ToQt(item.title).toHtmlEscaped());
        case Qt::DecorationRole:
            return index.column() == kTitle ? IconOf(item.kind) : QVariant();
        default:
            return {};
    }
}

QVariant ReferenceModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal) {
        return {};
    }
    return section == kTitle ? tr("Title") : tr("File");
}

void ReferenceModel::sort(int column, Qt::SortOrder order) {
    beginResetModel();
    list_.SetOrder(column == kTitle ? ReferenceList::Order::Title : ReferenceList::Order::File,
                   order == Qt::DescendingOrder);
    endResetModel();
}

QVariant ReferenceModel::Text(const ReferenceItem& item, int column) const {
    if (column == kTitle) {
        return ToQt(item.title);
    }
    return item.kind == ReferenceItem::Kind::Folder ? QString() : ToQt(item.name);
}

bool ReferenceModel::ReadFor(int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    while (list_.ReadOne()) {
        if (clock.elapsed() >= milliseconds) {
            return false;
        }
    }
    return true;
}

void ReferenceModel::ReadOn() {
    if (ReadFor(kSliceMs)) {
        reading_.stop();
        if (list_.DependsOnTitles()) {
            beginResetModel();
            list_.Arrange();
            endResetModel();
        }
    }
    emit TitlesRead();
}

}  // namespace quenloft
