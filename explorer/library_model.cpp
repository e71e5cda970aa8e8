#include "explorer/library_model.h"

#include <QElapsedTimer>
#include <algorithm>

#include "engine/text_helpers.h"
#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

// So long a click may take before the rest of a folder is read between events.
constexpr int kFirstSliceMs = 8;
// Short enough that typing and drawing never wait.
constexpr int kSliceMs = 5;
// Beyond this the library is read only where the user opens it, or memory would fill.
constexpr std::size_t kMostNodesAhead = 200'000;

QString KindName(ItemKind kind) {
    switch (kind) {
        case ItemKind::Folder:
            return QStringLiteral("folder");
        case ItemKind::Table:
            return QStringLiteral("table");
        case ItemKind::Script:
            return QStringLiteral("script");
    }
    return {};
}

}  // namespace

struct LibraryModel::Node {
    enum class State { Unread, Reading, Read };

    LibraryItem item;
    Node* parent = nullptr;
    int row = 0;
    State state = State::Read;
    std::vector<std::unique_ptr<Node>> children;
    std::string realFolder;  // Of folders.
    std::string failure;
    std::unique_ptr<FolderReading> reading;

    bool LeadsBack() const {
        for (const Node* above = parent; above; above = above->parent) {
            if (above->realFolder == realFolder) {
                return true;
            }
        }
        return false;
    }
};

LibraryModel::LibraryModel(FileSystem& files, TitleReader readTitle, QObject* parent)
    : QAbstractItemModel(parent), files_(files), readTitle_(std::move(readTitle)) {
    connect(&readAhead_, &QTimer::timeout, this, &LibraryModel::ReadAhead);
}

LibraryModel::~LibraryModel() = default;

void LibraryModel::Reload(std::string_view root, bool showHidden) {
    beginResetModel();
    files_.LookAgain();
    showHidden_ = showHidden;
    wanted_.clear();
    ahead_.clear();
    aheadOf_.clear();
    nodeCount_ = 0;
    root_.reset();
    if (!root.empty()) {
        const std::string path = files_.AbsolutePath(root);
        const std::string name(FileName(path));
        root_ = MakeNode({ItemKind::Folder, path, name.empty() ? path : name}, nullptr);
    }
    endResetModel();
    if (root_) {
        fetchMore(IndexOf(*root_));
    }
}

void LibraryModel::ReloadFolder(const QModelIndex& folder) {
    Node* node = NodeOf(folder);
    if (!node || node->item.kind != ItemKind::Folder) {
        return;
    }
    files_.LookAgain();
    const auto isInside = [node](const Node* other) {
        while (other && other != node) {
            other = other->parent;
        }
        return other == node;
    };
    std::erase_if(wanted_, isInside);
    std::erase_if(ahead_, isInside);
    for (const auto& child : node->children) {
        aheadOf_.erase(child->realFolder);
    }
    if (!node->children.empty()) {
        beginRemoveRows(folder, 0, static_cast<int>(node->children.size()) - 1);
        node->children.clear();
        endRemoveRows();
    }
    node->reading.reset();
    node->state = Node::State::Unread;
    fetchMore(folder);
}

std::string LibraryModel::RootFailure() const { return root_ ? root_->failure : std::string(); }

ItemKind LibraryModel::KindOf(const QModelIndex& index) const { return NodeOf(index)->item.kind; }

std::string LibraryModel::PathOf(const QModelIndex& index) const {
    return index.isValid() ? NodeOf(index)->item.path : std::string();
}

std::string LibraryModel::LabelOf(const QModelIndex& index) const {
    return index.isValid() ? NodeOf(index)->item.label : std::string();
}

bool LibraryModel::IsFile(const QModelIndex& index) const {
    return index.isValid() && KindOf(index) != ItemKind::Folder;
}

QModelIndex LibraryModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    const Node* node = NodeOf(parent);
    return createIndex(row, column,
                       node ? node->children[static_cast<std::size_t>(row)].get() : root_.get());
}

QModelIndex LibraryModel::parent(const QModelIndex& child) const {
    const Node* node = NodeOf(child);
    return node && node->parent ? IndexOf(*node->parent) : QModelIndex();
}

int LibraryModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid()) {
        return root_ ? 1 : 0;
    }
    return static_cast<int>(NodeOf(parent)->children.size());
}

int LibraryModel::columnCount(const QModelIndex& /*parent*/) const { return 1; }

QVariant LibraryModel::data(const QModelIndex& index, int role) const {
    const Node* node = NodeOf(index);
    if (!node) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
            return IsWanted(*node)         ? tr("%1 (reading...)").arg(ToQt(node->item.label))
                   : node->failure.empty() ? ToQt(node->item.label)
                                           : tr("%1 (cannot be read)").arg(ToQt(node->item.label));
        case Qt::DecorationRole: {
            const auto icon = icons_.find(node->item.kind);
            return icon == icons_.end() ? QVariant() : icon->second;
        }
        case Qt::ToolTipRole:
            return ToolTipOf(*node);
        case Qt::AccessibleTextRole:
            return ToQt(node->item.label) + QLatin1String(", ") + KindName(node->item.kind);
        case KindRole:
            return static_cast<int>(node->item.kind);
        case PathRole:
            return ToQt(node->item.path);
        default:
            return {};
    }
}

bool LibraryModel::hasChildren(const QModelIndex& parent) const {
    const Node* node = NodeOf(parent);
    if (!node) {
        return root_ != nullptr;
    }
    return node->state != Node::State::Read || !node->children.empty();
}

bool LibraryModel::canFetchMore(const QModelIndex& parent) const {
    const Node* node = NodeOf(parent);
    return node && node->item.kind == ItemKind::Folder &&
           (node->state == Node::State::Unread ||
            (node->state == Node::State::Reading && !IsWanted(*node)));
}

void LibraryModel::fetchMore(const QModelIndex& parent) {
    if (!canFetchMore(parent)) {
        return;
    }
    Node& node = *NodeOf(parent);
    BeginReading(node);
    if (!ReadFor(node, kFirstSliceMs)) {
        wanted_.push_back(&node);
        emit dataChanged(parent, parent, {Qt::DisplayRole});
    }
    readAhead_.start(0);
}

LibraryModel::Node* LibraryModel::NodeOf(const QModelIndex& index) const {
    return static_cast<Node*>(index.internalPointer());
}

QModelIndex LibraryModel::IndexOf(const Node& node) const {
    return createIndex(node.row, 0, &node);
}

std::unique_ptr<LibraryModel::Node> LibraryModel::MakeNode(LibraryItem item, Node* parent) {
    auto node = std::make_unique<Node>();
    node->item = std::move(item);
    node->parent = parent;
    ++nodeCount_;
    if (node->item.kind == ItemKind::Folder) {
        node->realFolder = RealFolder(files_.NativePath(node->item.path),
                                      parent ? parent->realFolder : std::string());
        if (!node->LeadsBack()) {
            node->state = Node::State::Unread;
        }
    }
    return node;
}

void LibraryModel::BeginReading(Node& node) {
    if (node.state == Node::State::Unread) {
        node.reading = std::make_unique<FolderReading>(files_, node.item.path, showHidden_);
        node.state = Node::State::Reading;
    }
}

bool LibraryModel::ReadFor(Node& node, int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (node.reading->ReadOne(readTitle_)) {
        if (timer.elapsed() >= milliseconds) {
            return false;
        }
    }
    FinishReading(node);
    return true;
}

void LibraryModel::FinishReading(Node& node) {
    node.failure = node.reading->Failure();
    std::vector<LibraryItem> items = node.reading->TakeItems();
    node.reading.reset();
    node.state = Node::State::Read;
    const QModelIndex index = IndexOf(node);
    if (!items.empty()) {
        std::vector<std::unique_ptr<Node>> children;
        children.reserve(items.size());
        for (LibraryItem& item : items) {
            children.push_back(MakeNode(std::move(item), &node));
            children.back()->row = static_cast<int>(children.size()) - 1;
        }
        beginInsertRows(index, 0, static_cast<int>(children.size()) - 1);
        node.children = std::move(children);
        endInsertRows();
    }
    emit dataChanged(index, index);
    for (const auto& child : node.children) {
        if (child->state == Node::State::Unread && nodeCount_ < kMostNodesAhead &&
            aheadOf_.insert(child->realFolder).second) {
            ahead_.push_back(child.get());
        }
    }
}

void LibraryModel::ReadAhead() {
    QElapsedTimer slice;
    slice.start();
    while (slice.elapsed() < kSliceMs) {
        Node* node = NextToRead();
        if (!node) {
            readAhead_.stop();
            return;
        }
        BeginReading(*node);
        const bool isWanted = IsWanted(*node);
        if (ReadFor(*node, kSliceMs - static_cast<int>(slice.elapsed()))) {
            (isWanted ? wanted_ : ahead_).pop_front();
        }
    }
}

bool LibraryModel::IsWanted(const Node& node) const {
    return std::find(wanted_.begin(), wanted_.end(), &node) != wanted_.end();
}

LibraryModel::Node* LibraryModel::NextToRead() {
    if (!wanted_.empty()) {
        return wanted_.front();
    }
    while (!ahead_.empty() && ahead_.front()->state == Node::State::Read) {
        ahead_.pop_front();
    }
    return ahead_.empty() ? nullptr : ahead_.front();
}

QString LibraryModel::ToolTipOf(const Node& node) const {
    const QString path = ToQt(files_.NativePath(node.item.path));
    return node.failure.empty() ? path : path + QLatin1Char('\n') + ToQt(node.failure);
}

}  // namespace quenloft
