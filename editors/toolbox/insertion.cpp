#include "editors/toolbox/insertion.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QTextEdit>

#include "shell/child_window.h"
#include "shell/text_box.h"

namespace quenloft {
namespace {

bool InsertIntoCell(const QAbstractItemView& grid, const QString& text) {
    const QModelIndex cell = grid.currentIndex();
    return cell.flags().testFlag(Qt::ItemIsEditable) &&
           grid.model()->setData(cell, text, Qt::EditRole);
}

bool Insert(QWidget* target, const QString& text) {
    if (auto* line = qobject_cast<QLineEdit*>(target); line && !line->isReadOnly()) {
        line->insert(text);
        return true;
    }
    if (auto* box = qobject_cast<QPlainTextEdit*>(target); box && !box->isReadOnly()) {
        InsertText(*box, text);
        return true;
    }
    if (auto* rich = qobject_cast<QTextEdit*>(target); rich && !rich->isReadOnly()) {
        rich->insertPlainText(text);
        return true;
    }
    const auto* grid = qobject_cast<QAbstractItemView*>(target);
    return grid && InsertIntoCell(*grid, text);
}

ChildWindow* WindowOf(const QWidget& widget) {
    for (QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* window = qobject_cast<ChildWindow*>(parent)) {
            return window;
        }
    }
    return nullptr;
}

void GiveFocusTo(QWidget& target) {
    if (ChildWindow* window = WindowOf(target)) {
        window->BringToFront();
    }
    target.setFocus();
}

}  // namespace

void InsertInto(QWidget* target, const QString& text) {
    if (Insert(target, text)) {
        GiveFocusTo(*target);
    }
}

}  // namespace quenloft
