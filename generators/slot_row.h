// The three buttons of one slot of the list page.
#pragma once

#include <QToolButton>
#include <QWidget>
#include <string>

#include "shell/elided_widgets.h"

namespace quenloft {

struct TableSlot;

/// Says what the user wants of the slot; doing it is the window's part.
class SlotRow : public QWidget {
    Q_OBJECT

  public:
    explicit SlotRow(int index);

    void Show(const TableSlot& slot, bool isShown, bool canEdit);
    bool Holds(const QWidget& control) const { return control.parentWidget() == this; }

  signals:
    void GenerateClicked();
    void LoadClicked();
    void EditClicked();
    void FileDropped(const std::string& path);

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    TitleButton* btnGenerate_;
    QToolButton* btnLoad_;
    QPushButton* btnEdit_;
};

}  // namespace quenloft
