// The analysis of totals: a handful of dice of several kinds, for the Kelbrunsystem.
#pragma once

#include <memory>

#include "dice/analysis_window.h"
#include "dice/cls_roll.h"

namespace quenloft {

class Simulation;
namespace Ui {
class frmProbability;
}

class frmProbability : public AnalysisWindow {
    Q_OBJECT

  public:
    /// `simulation` outlives the window.
    frmProbability(Workspace& workspace, Simulation& simulation);
    ~frmProbability() override;

  private:
    void Roll();
    void RunScript();

    /// One analysis; its report goes to `lines`.
    void Start(const clsRoll& handful, std::int32_t rolls, ReportLines& lines);
    clsRoll HandfulFromBoxes() const;

    std::unique_ptr<Ui::frmProbability> ui_;
    Simulation& simulation_;
};

}  // namespace quenloft
