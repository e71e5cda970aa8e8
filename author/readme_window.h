// Shows the readme that ships with the program.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "shell/child_window.h"

namespace quenloft {

namespace Ui {
class frmReadme;
}

class frmReadme : public ChildWindow {
    Q_OBJECT

  public:
    /// `folders` are where readme.txt may lie, in the order in which they are searched.
    frmReadme(Workspace& workspace, const std::vector<std::string>& folders);
    ~frmReadme() override;

    QSize OpeningSize(QSize area) const override;

  private:
    std::unique_ptr<Ui::frmReadme> ui_;
};

/// Beside the program, and where an installation puts what the program reads.
std::vector<std::string> ReadmeFolders();

}  // namespace quenloft
