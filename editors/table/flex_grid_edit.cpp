#include "editors/table/flex_grid_edit.h"

#include <QKeyEvent>
#include <QTableView>
#include <limits>

#include "editors/table/cell_movement.h"

namespace quenloft {
namespace {

/// Keeps its selection while the focus is elsewhere: the toolbox puts its text there.
class CellBox : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;

  protected:
    void focusOutEvent(QFocusEvent* event) override {
        const int start = selectionStart();
        const int end = selectionEnd();
        const int caret = cursorPosition();
        QLineEdit::focusOutEvent(event);
        if (start >= 0) {
            const int anchor = caret == start ? end : start;
            setSelection(anchor, caret - anchor);
        }
    }
};

}  // namespace

clsFlexGridEdit::clsFlexGridEdit(QObject* parent) : QStyledItemDelegate(parent) {}

clsFlexGridEdit::~clsFlexGridEdit() { delete editBox_; }

void clsFlexGridEdit::SetFlexGridControl(QTableView* grid) {
    delete editBox_;
    grid_ = grid;
    // One for all cells: who holds on to it while it is hidden finds it again.
    editBox_ = new CellBox(grid->viewport());
    editBox_->setObjectName(QStringLiteral("tbFgEdit"));
    editBox_->setAccessibleName(tr("Cell"));
    editBox_->setMaxLength(std::numeric_limits<int>::max());
    editBox_->setAcceptDrops(false);  // A file's address is no entry.
    editBox_->hide();
    connect(editBox_, &QLineEdit::textChanged, this, &clsFlexGridEdit::TextChanged);
    SetEditBoxBorderStyle(borderStyle_);
    grid->setItemDelegate(this);
}

void clsFlexGridEdit::SetEditBoxBorderStyle(std::int16_t style) {
    borderStyle_ = style;
    if (editBox_) {
        editBox_->setFrame(style != 0);
    }
}

bool clsFlexGridEdit::CanEdit(const QModelIndex& cell) {
    return cell.data(Qt::EditRole).toString().size() <= kMostLetters;
}

void clsFlexGridEdit::StartEditing() {
    grid_->setFocus();
    grid_->edit(grid_->currentIndex());
}

void clsFlexGridEdit::CommitAndHide() {
    if (IsEditing() && !busy_) {
        emit commitData(editBox_);
        emit closeEditor(editBox_, NoHint);
    }
}

void clsFlexGridEdit::CommitAndMove(std::int16_t code) {
    if (code == kBackToGrid) {
        grid_->setFocus();
        return;
    }
    const QAbstractItemModel& model = *grid_->model();
    const GridCell next =
        NextCell({cell_.row(), cell_.column()}, {model.rowCount(), model.columnCount()}, code);
    CommitAndEdit(model.index(next.row, next.column));
}

void clsFlexGridEdit::FocusBox() {
    if (IsEditing()) {
        editBox_->setFocus();
    }
}

QWidget* clsFlexGridEdit::createEditor(QWidget* /*parent*/, const QStyleOptionViewItem& /*option*/,
                                       const QModelIndex& index) const {
    cell_ = index;
    return editBox_;
}

void clsFlexGridEdit::destroyEditor(QWidget* /*editor*/, const QModelIndex& /*index*/) const {
    cell_ = QModelIndex();
    emit EditingEnded();
}

void clsFlexGridEdit::setEditorData(QWidget* /*editor*/, const QModelIndex& index) const {
    editBox_->setAlignment(Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt()));
    editBox_->setText(index.data(Qt::EditRole).toString());
}

void clsFlexGridEdit::setModelData(QWidget* /*editor*/, QAbstractItemModel* model,
                                   const QModelIndex& index) const {
    model->setData(index, editBox_->text(), Qt::EditRole);
}

void clsFlexGridEdit::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                           const QModelIndex& /*index*/) const {
    editor->setGeometry(option.rect);
}

bool clsFlexGridEdit::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress: {
            const auto& key = static_cast<const QKeyEvent&>(*event);
            swallowed_ = HandleKey(key);
            const bool isNumberSign = key.text() == QLatin1String("#");
            const QPointer<clsFlexGridEdit> self = this;
            emit TextKeyDown(editBox_, isNumberSign ? Qt::Key_NumberSign : key.key(),
                             key.modifiers());
            return !self || swallowed_;  // The owner may have closed everything.
        }
        case QEvent::FocusOut:
        case QEvent::Hide:
            return false;  // The text stays open while the user is elsewhere.
        default:
            return QStyledItemDelegate::eventFilter(watched, event);
    }
}

bool clsFlexGridEdit::HandleKey(const QKeyEvent& key) {
    constexpr auto kOthers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (key.modifiers() & kOthers) {
        return false;
    }
    switch (key.key()) {
        case Qt::Key_Tab:
            if (tabKey_ == kBackToGrid) {
                return false;
            }
            CommitAndMove(tabKey_);
            return true;
        case Qt::Key_Backtab:
            if (tabKey_ == kBackToGrid) {
                return false;
            }
            MoveLeft();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            CommitAndMove(enterKey_);
            return true;
        case Qt::Key_Escape:
            emit closeEditor(editBox_, RevertModelCache);
            return true;
        case Qt::Key_Up:
            CommitAndMove(kMoveUp);
            return true;
        case Qt::Key_Down:
            CommitAndMove(kMoveDown);
            return true;
        default:
            return false;
    }
}

void clsFlexGridEdit::CommitAndEdit(const QModelIndex& next) {
    if (!IsEditing() || busy_) {
        return;
    }
    busy_ = true;
    const QPersistentModelIndex cell = next;
    emit commitData(editBox_);
    emit closeEditor(editBox_, NoHint);
    grid_->selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect);
    if (CanEdit(cell)) {
        grid_->edit(cell);
    }
    busy_ = false;
}

void clsFlexGridEdit::MoveLeft() {
    const QAbstractItemModel& model = *grid_->model();
    const GridCell next =
        CellToTheLeft({cell_.row(), cell_.column()}, {model.rowCount(), model.columnCount()});
    CommitAndEdit(model.index(next.row, next.column));
}

void clsFlexGridEdit::TextChanged(const QString& text) {
    if (IsEditing()) {
        emit Typing(cell_, text);
    }
    if (text.size() > kMostLetters) {
        // Later: who puts the text in goes on with the box.
        QMetaObject::invokeMethod(this, &clsFlexGridEdit::CloseIfTooLong, Qt::QueuedConnection);
    }
}

void clsFlexGridEdit::CloseIfTooLong() {
    if (editBox_ && editBox_->text().size() > kMostLetters) {
        CommitAndHide();
    }
}

}  // namespace quenloft
