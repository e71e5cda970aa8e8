// The analysis of successes against a target number, for Shadowrun.
#pragma once

#include <memory>

#include "dice/analysis_window.h"

namespace quenloft {

class Simulation;
namespace Ui {
class frmShadowrunProbability;
}

/// Its success counts are those of all the runs since it was opened.
class frmShadowrunProbability : public AnalysisWindow {
    Q_OBJECT

  public:
    /// `simulation` outlives the window.
    frmShadowrunProbability(Workspace& workspace, Simulation& simulation);
    ~frmShadowrunProbability() override;

  private:
    void Roll();
    void RunScript();

    /// One analysis; its report goes to `lines`.
    void Start(const TargetPool& pool, ReportLines& lines);

    std::unique_ptr<Ui::frmShadowrunProbability> ui_;
    Simulation& simulation_;
    SuccessCounts counts_;
};

}  // namespace quenloft
