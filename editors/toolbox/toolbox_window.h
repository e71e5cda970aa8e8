// The insert toolbox.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "editors/toolbox/quick_tables.h"
#include "editors/toolbox/toolbox_text.h"
#include "shell/child_window.h"

namespace quenloft {

class TitleButton;

namespace Ui {
class frmEdit_Reference;
}

/// Writes marks of the table language into the editing control that last had the focus. Stays above
/// the other windows, which become the active ones whenever it has written something.
class frmEdit_Reference : public ChildWindow {
    Q_OBJECT

  public:
    explicit frmEdit_Reference(Workspace& workspace);
    ~frmEdit_Reference() override;

    QSize OpeningSize(QSize area) const override;
    void SaveState() override;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void InsertDice();
    void InsertVariable();
    void InsertLineBreak();
    void ChooseTable();
    void InsertTypedReference();
    void InsertQuickTable(int index);
    void BindQuickTable(int index);

    /// Derives the captions of the quick buttons from what is bound to them.
    void Refresh();

    void MakeQuickButtons();
    void Insert(const std::string& mark);
    void InsertReference(const std::string& name);
    NameCase ChosenCase() const;

    std::unique_ptr<Ui::frmEdit_Reference> ui_;
    std::vector<TitleButton*> quickButtons_;
    QuickTables quickTables_;
};

}  // namespace quenloft
