// The bar above the notes: what the text at the caret looks like, and how to change it.
#pragma once

#include <QTextCharFormat>
#include <QWidget>
#include <memory>
#include <vector>

#include "author/rich_text.h"

class QComboBox;
class QToolButton;

namespace quenloft {

class RichTextBox;

namespace Ui {
class FormatBar;
}

/// Shows and changes one text box; Ctrl+B, Ctrl+I and Ctrl+U work in the whole window of the bar.
class FormatBar : public QWidget {
    Q_OBJECT

  public:
    explicit FormatBar(QWidget* parent = nullptr);
    ~FormatBar() override;

    /// To be called once. `box` outlives the bar's use.
    void Attach(RichTextBox& box);

  protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ChooseFont();
    void EnterFont();  ///< And back to the text, where the user goes on.
    void ChooseSize();
    void EnterSize();
    void SwitchBold(bool on);
    void SwitchItalic(bool on);
    void SwitchUnderline(bool on);
    void SwitchStrike(bool on);
    void SwitchBullets(bool on);
    void SwitchNumbers(bool on);

    /// Derives all from the text at the caret.
    void Refresh();

    void FillSizes();
    void FillColors();
    void DrawIcons();
    void SetAlignment(Alignment alignment);
    /// And back to the text, where the user goes on.
    void Change(const QTextCharFormat& change);
    void ChangeList(ListKind kind);
    struct AlignmentButton {
        QToolButton* button;
        Alignment alignment;
    };
    std::vector<AlignmentButton> AlignmentButtons() const;

    std::unique_ptr<Ui::FormatBar> ui_;
    RichTextBox* box_ = nullptr;
    const QComboBox* typedInto_ = nullptr;  // Null once what was typed is dealt with.
};

}  // namespace quenloft
