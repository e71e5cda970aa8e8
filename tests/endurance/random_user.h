// Somebody who clicks and types without sense, and answers each dialog likewise. What is done
// follows from the seed alone, as far as the machine's speed does not decide.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace quenloft {

class frmMain;

class RandomUser : public Dialogs {
  public:
    /// `folder` holds the library; files there are opened, written over, changed and deleted.
    RandomUser(unsigned seed, std::string folder);

    /// Does one thing to the program.
    void Act(frmMain& window);
    /// What was done, a line each: how often, and what.
    std::string Diary() const;

    // --- Dialogs ---
    void ShowMessage(const std::string& text, MessageIcon icon) override;
    Answer AskYesNo(const std::string& text) override;
    Answer AskYesNoCancel(const std::string& text) override;
    std::optional<std::string> AskText(const std::string& prompt, const std::string& defaultText,
                                       const std::string& title) override;
    std::optional<std::string> ChooseFileToOpen(const std::string& filter,
                                                const std::string& folder) override;
    std::optional<std::string> ChooseFileToSave(const std::string& filter, const std::string& path,
                                                int filterIndex) override;
    std::optional<std::string> ChooseFolder(const std::string& title,
                                            const std::string& folder) override;
    std::optional<FontChoice> ChooseFont(const FontChoice& initial) override;

  private:
    /// 0 to `count` - 1.
    int Pick(int count);
    bool OneIn(int count) { return Pick(count) == 0; }
    std::string AnyFile();
    std::string AnyText();
    QWidget* AnyControl(frmMain& window);

    void ChooseFromMenu(frmMain& window);
    void Click(QWidget* control);
    void Type(QWidget* control);
    void PressKey(QWidget* control);
    void CloseAWindow(frmMain& window);
    void ChangeAFile();
    void DropAFile(frmMain& window, QWidget* control);
    void Note(const std::string& what) { ++diary_[what]; }
    /// Leaves whatever waits for an answer above the main window: a menu, the reference browser.
    void Attend();

    std::mt19937 random_;
    const std::string folder_;
    QTimer attendant_;
    std::map<std::string, int> diary_;
};

}  // namespace quenloft
