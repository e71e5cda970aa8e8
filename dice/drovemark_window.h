// The analysis of successes of white, red and black dice, for Drovemark.
#pragma once

#include <memory>

#include "dice/analysis_window.h"

namespace quenloft {

class Simulation;
namespace Ui {
class frmDrovemark;
}

/// Its success counts are those of all the runs since it was opened. Events are processed during a
/// run, so that it can be cancelled.
class frmDrovemark : public AnalysisWindow {
    Q_OBJECT

  public:
    /// `simulation` outlives the window.
    frmDrovemark(Workspace& workspace, Simulation& simulation);
    ~frmDrovemark() override;

  private:
    void Roll();
    void Cancel();

    void Refresh();

    void RollUntilCancelled(ReportLines& lines);
    /// Lets events through; false once the run is to end.
    bool GoOnRolling();

    std::unique_ptr<Ui::frmDrovemark> ui_;
    Simulation& simulation_;
    SuccessCounts counts_;
    bool canRoll_ = true;  // Stays false after a run that failed, until Cancel.
    bool cancelled_ = false;
};

}  // namespace quenloft
