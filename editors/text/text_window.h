// The text editor of tables and scripts.
#pragma once

#include <QPointer>
#include <functional>
#include <memory>
#include <string>

#include "editors/reference/choose_reference.h"
#include "editors/shared/edited_file.h"
#include "shell/child_window.h"

namespace quenloft {

namespace Ui {
class frmEdit;
}
class TextSearch;

/// Brings the file and the box together, and asks about unsaved work. Running is left to the script
/// runner, or to a single list for tables; what they report comes back here.
class frmEdit : public ChildWindow {
    Q_OBJECT

  public:
    /// As ChooseReference.
    using ReferenceChooser =
        std::function<std::string(Workspace&, const std::string& folder, QWidget* parent)>;

    explicit frmEdit(Workspace& workspace, ReferenceChooser chooser = ChooseReference);
    ~frmEdit() override;

    QSize OpeningSize(QSize area) const override;
    std::string Export() override;
    void OpenFile() override;
    /// Undo brings the former text back.
    void NewFile() override;
    /// Another editor that has the file at `path` comes to the front instead; this window then
    /// closes where it is empty.
    void Load(const std::string& path) override;
    /// Runs the saved file, in the same window each time while that is open.
    void Run() override;
    /// The text with "\n" between its lines.
    std::optional<UnsavedWork> Unsaved() const override;
    void PutBack(const KeptText& kept) override;
    bool AskToSave() override;

  private:
    bool Save();
    bool SaveAs();
    void Delete();
    void InsertReference();
    void ShowCaretLine();
    void TakeReportBack();

    /// Derives caption, changed mark and what is enabled from the file and the text.
    void Refresh();

    void ConnectControls();
    void AddShortcuts();
    bool SaveTo(const std::string& path);
    void Open(const std::string& path);
    void Read(const std::string& path);
    frmEdit* OtherEditorOf(const std::string& path) const;
    bool IsPristine() const;
    bool IsSavedToRun();
    ChildWindow* OpenRunner();
    void ShowReport(const std::string& output);

    std::unique_ptr<Ui::frmEdit> ui_;
    EditedFile file_;
    const ReferenceChooser chooser_;
    std::unique_ptr<TextSearch> search_;
    QPointer<ChildWindow> runner_;
};

}  // namespace quenloft
