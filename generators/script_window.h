// The script runner: a script's path, a button that runs it, and its output.
#pragma once

#include <memory>
#include <string>

#include "shell/child_window.h"

namespace quenloft {

namespace Ui {
class frmScript;
}

/// Always runs the saved file; changing it is the editor's part. What a typed path means is
/// ScriptPath's.
class frmScript : public ChildWindow {
    Q_OBJECT

  public:
    explicit frmScript(Workspace& workspace);
    ~frmScript() override;

    QSize OpeningSize(QSize area) const override;
    std::string Export() override;
    /// A window that has no script yet closes when the user cancels: it was opened for that script.
    void OpenFile() override;
    void Load(const std::string& path) override;
    void Run() override;

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    bool ChooseScript();
    void Edit();

    /// Derives what is enabled from the path.
    void Refresh();

    /// Puts the script at `path` into the box; returns its native path.
    std::string Show(const std::string& path);
    bool HasScript() const;
    std::string NativeScriptPath() const;

    std::unique_ptr<Ui::frmScript> ui_;
    std::string folder_;  // Library path; empty until a file is chosen.
};

}  // namespace quenloft
