// The list page: tables bound to buttons, rolled with one click.
#pragma once

#include <array>

#include "generators/slot_page.h"
#include "shell/child_window.h"

class QGridLayout;
class QScrollArea;

namespace quenloft {

class ElidedLabel;
class SlotRow;
class TextBox;

/// Eighteen slots in six groups; the three slots of a group share an output box. The slots and
/// their memory are SlotPage's part, rolling is RollSlot's.
class frmLists : public ChildWindow {
    Q_OBJECT

  public:
    explicit frmLists(Workspace& workspace);

    QSize OpeningSize(QSize area) const override;
    /// The result of the slot that was generated last, the first slot where none was.
    std::string Export() override;
    /// Generates the last slot once more.
    void Run() override;
    QPlainTextEdit* OutputBoxOf(const QWidget& control) override;
    void SaveState() override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    static constexpr int kSlots = 18;
    static constexpr int kSlotsToABox = 3;
    static constexpr int kBoxes = kSlots / kSlotsToABox;
    static constexpr int kNone = -1;

    QWidget* MakeGroup(int box);
    void ConnectSlot(int slot);

    void Generate(int slot);
    void Load(int slot);
    void Edit(int slot);
    void Bind(int slot, const std::string& path);

    /// Derives titles, marks and what is enabled from the slots.
    void Refresh();

    /// As many groups side by side as are still wide enough.
    void ArrangeGroups();

    SlotPage page_;
    int lastSlot_ = 0;
    std::array<int, kBoxes> shownSlot_{};  // Whose result stands in the box, or kNone.

    std::array<SlotRow*, kSlots> rows_{};
    std::array<ElidedLabel*, kBoxes> lblResult_{};
    std::array<TextBox*, kBoxes> txtOut_{};
    std::array<QWidget*, kBoxes> pneGroup_{};
    QScrollArea* scrollArea_;
    QGridLayout* groups_;
    int columns_ = 0;
};

}  // namespace quenloft
