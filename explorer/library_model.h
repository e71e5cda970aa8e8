// The library as a tree that views can show.
#pragma once

#include <QAbstractItemModel>
#include <QTimer>
#include <deque>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "explorer/folder_reading.h"

namespace quenloft {

/// One row, the library's folder, and everything under it. A folder is read when a view wants its
/// rows; when nothing is wanted, the rest of the library is read ahead, a few milliseconds at a
/// time between events. A folder's rows appear all at once. A folder that leads back to one above
/// it has no rows.
class LibraryModel : public QAbstractItemModel {
    Q_OBJECT

  public:
    enum Role { KindRole = Qt::UserRole, PathRole };

    LibraryModel(FileSystem& files, TitleReader readTitle, QObject* parent = nullptr);
    ~LibraryModel() override;

    /// Shows the library at `root` (any path) as it is on disk now; nothing where `root` is empty.
    void Reload(std::string_view root, bool showHidden);
    /// Reads one folder again, with all that is under it.
    void ReloadFolder(const QModelIndex& folder);

    /// Why the library's folder could not be listed; empty when it could.
    std::string RootFailure() const;
    /// True while titles are still to be read.
    bool IsReading() const { return readAhead_.isActive(); }

    ItemKind KindOf(const QModelIndex& index) const;
    std::string PathOf(const QModelIndex& index) const;
    std::string LabelOf(const QModelIndex& index) const;
    bool IsFile(const QModelIndex& index) const;

    void SetIcon(ItemKind kind, const QVariant& icon) { icons_[kind] = icon; }

    QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool hasChildren(const QModelIndex& parent) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

  private:
    struct Node;

    Node* NodeOf(const QModelIndex& index) const;
    QModelIndex IndexOf(const Node& node) const;
    std::unique_ptr<Node> MakeNode(LibraryItem item, Node* parent);
    void BeginReading(Node& node);
    /// Reads on for `milliseconds`; true when the folder is done and its rows are in.
    bool ReadFor(Node& node, int milliseconds);
    void FinishReading(Node& node);
    void ReadAhead();
    bool IsWanted(const Node& node) const;
    Node* NextToRead();
    QString ToolTipOf(const Node& node) const;

    FileSystem& files_;
    TitleReader readTitle_;
    std::map<ItemKind, QVariant> icons_;
    bool showHidden_ = false;
    std::unique_ptr<Node> root_;
    std::deque<Node*> wanted_;       // By a view; being read.
    std::deque<Node*> ahead_;        // Not wanted yet.
    std::set<std::string> aheadOf_;  // Real folders that were in ahead_: each is read ahead once.
    std::size_t nodeCount_ = 0;
    QTimer readAhead_;
};

}  // namespace quenloft
