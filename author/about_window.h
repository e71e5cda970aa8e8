// The program's name, version and licence.
#pragma once

#include <memory>

#include "shell/child_window.h"

namespace quenloft {

namespace Ui {
class frmAbout;
}

class frmAbout : public ChildWindow {
    Q_OBJECT

  public:
    explicit frmAbout(Workspace& workspace);
    ~frmAbout() override;

    QSize OpeningSize(QSize area) const override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void StartSysInfo();

    std::unique_ptr<Ui::frmAbout> ui_;
};

}  // namespace quenloft
