// The text box of notes: formatted text in, formatted text out.
#pragma once

#include <QTextEdit>

#include "author/rich_text.h"

namespace quenloft {

/// What is pasted is turned into what notes can hold. Copies carry RTF for word processors too.
/// Files dropped here are left to the window.
class RichTextBox : public QTextEdit {
    Q_OBJECT

  public:
    explicit RichTextBox(QWidget* parent = nullptr);

    RichText Text() const;
    /// Replaces everything, caret at the start; the text counts as unchanged and nothing is left to
    /// undo.
    void SetText(const RichText& text);

    RichText SelectedText() const;
    /// In the place of the selection, in the form that is there.
    void PasteText(const QString& text);

    /// Of the text that is typed next, or of the whole selection.
    void ChangeFormat(const QTextCharFormat& change);
    /// The automatic colour where there is none.
    void ChangeColor(const Color& color);
    /// The paragraphs of the selection become items of one list; ListKind::None ends their lists.
    void ChangeList(ListKind kind);
    /// Deeper (1) or less deep (-1) into the list; nothing outside of lists.
    void ChangeListLevel(int by);

  signals:
    void GotFocus();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

  private:
    bool HandleListKey(const QKeyEvent& key);
    void LeaveBackwards();
    RichText TextOfPage(const QString& html) const;
};

}  // namespace quenloft
