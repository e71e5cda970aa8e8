// The single list: one table, one button that rolls it, one output box.
#pragma once

#include <memory>

#include "generators/table_slot.h"
#include "shell/child_window.h"

namespace quenloft {

namespace Ui {
class frmListSingle;
}

/// What it shows is forgotten when it closes. Rolling is RollSlot's part.
class frmListSingle : public ChildWindow {
    Q_OBJECT

  public:
    explicit frmListSingle(Workspace& workspace);
    ~frmListSingle() override;

    QSize OpeningSize(QSize area) const override;
    std::string Export() override;
    /// A window that has no table yet closes when the user cancels: it was opened for that table.
    void OpenFile() override;
    void Load(const std::string& path) override;
    void Run() override;

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    bool ChooseTable();
    void Edit();
    void Bind(TableSlot slot);

    void Refresh();

    std::unique_ptr<Ui::frmListSingle> ui_;
    TableSlot slot_;
};

}  // namespace quenloft
