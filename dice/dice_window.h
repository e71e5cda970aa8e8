// The dice roller: N dice of F faces and an amount, a number of times.
#pragma once

#include <memory>

#include "engine/dice.h"
#include "shell/child_window.h"

namespace quenloft {

class RandomSource;
namespace Ui {
class frmDice;
}

/// Rolling and the form of the lines are RollTimes' part.
class frmDice : public ChildWindow {
    Q_OBJECT

  public:
    /// `random` outlives the window.
    frmDice(Workspace& workspace, RandomSource& random);
    ~frmDice() override;

    QSize OpeningSize(QSize area) const override;
    std::string Export() override;

  private:
    void Roll();
    void Clear();

    std::unique_ptr<Ui::frmDice> ui_;
    Dice dice_;
};

}  // namespace quenloft
