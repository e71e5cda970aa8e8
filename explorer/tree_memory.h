// Keeps a tree's open folders and its selection while the library is read anew.
#pragma once

#include <QObject>
#include <QSet>
#include <QString>

class QModelIndex;
class QTreeView;

namespace quenloft {

class LibraryModel;

class TreeMemory : public QObject {
    Q_OBJECT

  public:
    /// Both outlive this object.
    TreeMemory(QTreeView& view, LibraryModel& model);

    /// Notes what is open and selected now. As folders appear again they are opened and selected.
    void Remember();
    /// Selects the row of `path` (a library path) now, or when its folder has been read.
    void SelectWhenThere(const std::string& path);

  private:
    void RememberOpen(const QModelIndex& folder);
    void Restore(const QModelIndex& folder);
    void RestoreRow(const QModelIndex& index);

    QTreeView& view_;
    LibraryModel& model_;
    QSet<QString> open_;
    QString selected_;
};

}  // namespace quenloft
