// The table importer.
#pragma once

#include <memory>
#include <string>

#include "editors/shared/edited_file.h"
#include "shell/child_window.h"

namespace quenloft {

namespace Ui {
class frmImportTable;
}

/// Turns the lines of its text box into a table file; how is TableOfLines' affair. A file that was
/// opened for its lines stays beside the table that is written over it.
class frmImportTable : public ChildWindow {
    Q_OBJECT

  public:
    explicit frmImportTable(Workspace& workspace);
    ~frmImportTable() override;

    QSize OpeningSize(QSize area) const override;
    void OpenFile() override;
    void NewFile() override;
    void Load(const std::string& path) override;
    /// The lines with "\n" between them.
    std::optional<UnsavedWork> Unsaved() const override;
    void PutBack(const KeptText& kept) override;
    bool AskToSave() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool Import();
    bool ImportAs();

    /// Derives caption, mark of change and hint from file and text.
    void Refresh();

    bool ImportInto(const std::string& path);
    bool AskAboutFile();
    QString Hint() const;

    std::unique_ptr<Ui::frmImportTable> ui_;
    EditedFile file_;
    bool holdsLines_ = false;  // The file is the one that was opened, not yet a table made here.
};

}  // namespace quenloft
