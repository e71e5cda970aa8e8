// The dice roller: N dice of F faces and an amount, a number of times.
#pragma once

#include <QElapsedTimer>
#include <memory>

#include "engine/dice.h"
#include "shell/child_window.h"

namespace quenloft {

class RandomSource;
namespace Ui {
class frmDice;
}

/// Rolling and the form of the lines are RollTimes' part. Millions of dice take their time, so
/// events are processed meanwhile, and the run can be aborted.
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

    /// What the boxes ask for; empty, or the words of a failure.
    std::string RollUntilAborted();
    /// Lets events through in a long run; false once it is to end.
    bool GoOnRolling();

    std::unique_ptr<Ui::frmDice> ui_;
    Dice dice_;
    QElapsedTimer sinceStart_;  // Of the rolls that are going on.
};

}  // namespace quenloft
