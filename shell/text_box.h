// The multi-line text box of all windows: plain text in, plain text out.
#pragma once

#include <QPlainTextEdit>
#include <string>
#include <string_view>

namespace quenloft {

/// Text goes in and comes out as UTF-8, to the character (no-break spaces too), and out of it with
/// CR LF between the lines. Lines may be of any length (see shell/document_text.h). Copies carry no
/// formatting; files dropped here are left to the window.
class TextBox : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit TextBox(QWidget* parent = nullptr);

    std::string Text() const;
    /// Replaces everything, caret at the start; nothing is left to undo.
    void SetText(std::string_view text);
    /// Adds to the end; caret, selection and scroll position stay. The time it takes does not
    /// depend on the text that is there.
    void AppendText(std::string_view text);

  protected:
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void KeepCaretOffBreaks();
    bool StepOverBreak(const QKeyEvent& event);
};

/// The selected part of any plain text box, as UTF-8 with CR LF; empty without a selection.
std::string SelectedText(const QPlainTextEdit& box);
/// All of any plain text box, likewise.
std::string WholeText(const QPlainTextEdit& box);
/// As if the user had pasted `text` into `box`: in the place of the selection, one step to undo.
void InsertText(QPlainTextEdit& box, const QString& text);

}  // namespace quenloft
