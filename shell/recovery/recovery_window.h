// The window that offers the unsaved texts of earlier starts.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "shell/child_window.h"

namespace quenloft {

namespace Ui {
class frmRecovery;
}
struct LeftText;
class Recovery;

/// Lists them and hands on what the user decides; what is not decided stays for the next start. It
/// closes when nothing is left.
class frmRecovery : public ChildWindow {
    Q_OBJECT

  public:
    /// `recovery` outlives the window.
    frmRecovery(Workspace& workspace, Recovery& recovery);
    ~frmRecovery() override;

    QSize OpeningSize(QSize area) const override;

  private:
    void Restore();
    void RestoreAll();
    void Compare();
    void Discard();
    void FollowTexts();
    void ShowTexts();
    void ForgetComparison();

    /// Derives what is enabled and explained from the list.
    void Refresh();

    /// Null where none is selected.
    const LeftText* Selected() const;
    /// Nothing where the text has no file or it cannot be read.
    std::optional<std::string> FileOf(const LeftText& left) const;

    std::unique_ptr<Ui::frmRecovery> ui_;
    Recovery& recovery_;
};

}  // namespace quenloft
