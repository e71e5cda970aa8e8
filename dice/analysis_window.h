// What the windows of the three analyses have in common: the list of reports and what is done with
// it, and a run that may fail.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "dice/analyses.h"
#include "dice/analysis_script.h"
#include "dice/report_lines.h"
#include "shell/child_window.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace quenloft {

class ResultList;

/// What is rolled and counted is left to the window derived from this.
class AnalysisWindow : public ChildWindow {
    Q_OBJECT

  public:
    QSize OpeningSize(QSize area) const override;
    std::string Export() override;

  protected:
    AnalysisWindow(Workspace& workspace, const char* formName, const QString& caption,
                   TwipsPoint place);

    /// To be called once the controls are there. `list` gets the font of outputs.
    void UseList(ResultList* list);
    /// F5 anywhere and Enter in any of the window's boxes are a click on `button`.
    void AddRollKeys(QPushButton* button);
    /// The running roll number is seen while `box` is checked.
    void ShowWhileChecked(QCheckBox* box, QLabel* number, QLabel* of);

    /// Shows the lines that `work` writes, and its failure in the runtime's words; does nothing
    /// while a run is going on anywhere. Nothing may follow it in a handler: the window may be
    /// gone.
    void Perform(const std::function<void(ReportLines&)>& work);
    /// Runs `work` with the wait cursor, `button` disabled and captioned "Rolling...". Where it
    /// throws, the button stays so: this has always shown that a run came to nothing.
    static void RunBusy(QPushButton* button, const std::function<void()>& work);
    /// Shows the number of rolls done, at most 30 times a second; empty where `box` is unchecked.
    static GoOn Counter(const QCheckBox* box, QLabel* number);

    /// Lets the user choose a configuration script and performs `work` with it and its path, with
    /// the wait cursor; a script may set `openEnded`. Does nothing on Cancel, and shows no dialog
    /// while a run is going on anywhere.
    void PerformScript(
        QCheckBox* openEnded,
        const std::function<void(const ScriptParts& parts, const std::string& path)>& work);
    void CopyList();
    /// Does nothing while a run is going on anywhere.
    void SaveList();
    void ClearList();

  private:
    std::string ChooseScript();

    ResultList* list_ = nullptr;
    std::int32_t scriptRolls_ = 0;  // See ScriptParts.
};

}  // namespace quenloft
