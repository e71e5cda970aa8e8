// The reference browser.
#pragma once

#include <QDialog>
#include <memory>
#include <string>

#include "editors/reference/reference_place.h"
#include "editors/reference/reference_text.h"

namespace quenloft {

class ReferenceModel;
class Workspace;

namespace Ui {
class frmReference;
}

/// Lists tables and scripts of a folder, walks to others, and makes the text of a reference. Stays
/// in memory between two uses, with the titles that it has read and the capitals that were chosen.
class frmReference : public QDialog {
    Q_OBJECT

  public:
    frmReference(Workspace& workspace, QWidget* parent);
    ~frmReference() override;

    /// See ChooseReference.
    std::string Choose(const std::string& folder);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void GoUp();
    void Refill();
    void FilterChanged();
    void CurrentChanged(const QModelIndex& current);
    void ReturnSign();
    void ChooseCurrent();

    /// Derives what is shown and enabled from place and list.
    void Refresh();

    void Enter(const std::string& name);
    void Return(std::string result);
    /// Makes the row of `current_` the current one, or else the first.
    void SelectCurrent();
    NameCase ChosenCase() const;
    std::string ReferenceTo(const std::string& name) const;
    QString Hint() const;

    Workspace& workspace_;
    std::unique_ptr<Ui::frmReference> ui_;
    ReferenceModel* model_;
    ReferencePlace place_;
    std::string current_;  // Name of the current item.
    std::string result_;
};

}  // namespace quenloft
