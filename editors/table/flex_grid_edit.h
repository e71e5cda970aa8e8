// The text box that is laid over the current cell of a grid, and its keys.
#pragma once

#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>
#include <cstdint>

class QTableView;

namespace quenloft {

/// Stays over its cell while another window has the focus; a click on another cell stores its text.
class clsFlexGridEdit : public QStyledItemDelegate {
    Q_OBJECT

  public:
    explicit clsFlexGridEdit(QObject* parent);
    ~clsFlexGridEdit() override;

    // --- Properties. ---

    QTableView* FlexGridControl() const { return grid_; }
    /// Makes the text box, called tbFgEdit, on `grid`, and becomes the grid's delegate.
    void SetFlexGridControl(QTableView* grid);
    std::int16_t EditBoxBorderStyle() const { return borderStyle_; }
    /// 0 none, 1 a single line.
    void SetEditBoxBorderStyle(std::int16_t style);
    std::int16_t EnterKeyBehaviour() const { return enterKey_; }
    void SetEnterKeyBehaviour(std::int16_t code) { enterKey_ = code; }
    std::int16_t TabKeyBehaviour() const { return tabKey_; }
    /// Codes are those of CellMovement. With 0, Tab leaves the text box for the next control;
    /// otherwise Shift+Tab goes the other way.
    void SetTabKeyBehaviour(std::int16_t code) { tabKey_ = code; }

    // --- Operations. ---

    bool IsEditing() const { return cell_.isValid(); }
    /// Invalid when not editing.
    QModelIndex EditedCell() const { return cell_; }
    /// A text box takes its time over each key by the length of its text: longer ones it does not
    /// get, and it closes over one that has become longer, which is stored.
    static constexpr int kMostLetters = 20000;
    static bool CanEdit(const QModelIndex& cell);
    /// Edits the current cell, its text selected.
    void StartEditing();
    /// Stores the text in the cell and hides the text box; does nothing when not editing.
    void CommitAndHide();
    /// Stores, moves by a code and goes on editing there; code 0 only gives the focus back.
    void CommitAndMove(std::int16_t code);
    /// Gives the text box the focus; does nothing when not editing.
    void FocusBox();
    /// Called from TextKeyDown: the text box does not get the key any more.
    void SwallowKey() { swallowed_ = true; }

    // --- QStyledItemDelegate ---
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

  signals:
    /// For every key in the text box, once it has been handled here and before it types anything.
    /// `KeyCode` is a Qt::Key; where the key types a "#", by whatever keys of the layout, it is
    /// Key_NumberSign.
    void TextKeyDown(QLineEdit* editBox, int KeyCode, Qt::KeyboardModifiers Shift);
    /// The text in the box is another one now.
    void Typing(const QModelIndex& cell, const QString& text);
    void EditingEnded() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// True where the key is one that moves.
    bool HandleKey(const QKeyEvent& key);
    void CommitAndEdit(const QModelIndex& next);
    void MoveLeft();
    void TextChanged(const QString& text);
    void CloseIfTooLong();

    QPointer<QTableView> grid_;
    QPointer<QLineEdit> editBox_;
    mutable QPersistentModelIndex cell_;  // Being edited.
    std::int16_t borderStyle_ = 0;
    std::int16_t enterKey_ = 0;
    std::int16_t tabKey_ = 0;
    bool busy_ = false;
    bool swallowed_ = false;
};

}  // namespace quenloft
