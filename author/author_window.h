// The author area: the game master's own notes, in formatted text.
#pragma once

#include <memory>
#include <string>

#include "author/notes_file.h"
#include "shell/child_window.h"

namespace quenloft {

namespace Ui {
class frmAuthor;
}

/// What is in a file and what would be lost from it is NotesFile's; how text looks is the format
/// bar's.
class frmAuthor : public ChildWindow {
    Q_OBJECT

  public:
    explicit frmAuthor(Workspace& workspace);
    ~frmAuthor() override;

    QSize OpeningSize(QSize area) const override;
    void OpenFile() override;
    void Load(const std::string& path) override;
    void PrintContent() override;
    // Text without its form.
    void Copy() override;
    void Cut() override;
    void Paste() override;
    /// As RTF.
    std::optional<UnsavedWork> Unsaved() const override;
    void PutBack(const KeptText& kept) override;
    bool AskToSave() override;

  private:
    bool Save();
    bool SaveAs();
    void BecomeInsertionTarget();

    /// Derives the title from the file and whether the notes were changed since.
    void Refresh();

    /// Asks whether changed notes are to be saved, and saves them. False where that failed.
    bool SaveFirst();
    void Show(const std::string& path);
    bool MayWriteOver(const std::string& path);
    bool WriteTo(const std::string& path);
    bool IsModified() const;
    /// Where a file dialog begins.
    std::string StartOfDialogs() const;

    std::unique_ptr<Ui::frmAuthor> ui_;
    NotesFile file_;
};

}  // namespace quenloft
