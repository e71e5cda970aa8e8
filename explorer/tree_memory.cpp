#include "explorer/tree_memory.h"

#include <QTreeView>

#include "explorer/library_model.h"
#include "platform/qt/qt_text.h"

namespace quenloft {

TreeMemory::TreeMemory(QTreeView& view, LibraryModel& model) : view_(view), model_(model) {
    connect(&model, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex& folder) {
        // Queued: the view may be about to lay out the very rows that it asked for, and would do so
        // twice if one of them were selected now.
        QMetaObject::invokeMethod(
            this, [this, folder = QPersistentModelIndex(folder)] { Restore(folder); },
            Qt::QueuedConnection);
    });
}

void TreeMemory::Remember() {
    // What is still to be restored since the last time stays so.
    RememberOpen(QModelIndex());
    if (view_.currentIndex().isValid()) {
        selected_ = view_.currentIndex().data(LibraryModel::PathRole).toString();
    }
}

void TreeMemory::SelectWhenThere(const std::string& path) {
    selected_ = ToQt(path);
    // The parent may be there already, with all its rows.
    for (QModelIndex folder = view_.currentIndex(); folder.isValid(); folder = folder.parent()) {
        Restore(folder);
    }
}

void TreeMemory::RememberOpen(const QModelIndex& folder) {
    for (int row = 0; row < model_.rowCount(folder); ++row) {
        const QModelIndex index = model_.index(row, 0, folder);
        if (view_.isExpanded(index)) {
            open_.insert(index.data(LibraryModel::PathRole).toString());
            RememberOpen(index);
        }
    }
}

void TreeMemory::Restore(const QModelIndex& folder) {
    if (open_.isEmpty() && selected_.isEmpty()) {
        return;
    }
    for (int row = 0; row < model_.rowCount(folder); ++row) {
        RestoreRow(model_.index(row, 0, folder));
    }
}

void TreeMemory::RestoreRow(const QModelIndex& index) {
    const QString path = index.data(LibraryModel::PathRole).toString();
    if (path == selected_) {
        selected_.clear();
        view_.setCurrentIndex(index);
    }
    // Last: opening a folder may insert rows, and so come back here.
    if (open_.remove(path)) {
        view_.expand(index);
    }
}

}  // namespace quenloft
