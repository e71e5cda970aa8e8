// Every box and dialog of the program, shown with the toolkit's own.
#pragma once

#include "platform/dialogs.h"

namespace quenloft {

/// Each dialog belongs to the window that the user works in, and takes its text as it stands:
/// a "<" in a path begins no markup.
class QtDialogs : public Dialogs {
  public:
    void ShowMessage(const std::string& text, MessageIcon icon) override;
    Answer AskYesNo(const std::string& text) override;
    Answer AskYesNoCancel(const std::string& text) override;
    std::optional<std::string> AskText(const std::string& prompt, const std::string& defaultText,
                                       const std::string& title = {}) override;
    void ShowMessageOfRun(const std::string& text, const GivenUp& givenUp) override;
    std::optional<std::string> AskTextOfRun(const std::string& prompt,
                                            const GivenUp& givenUp) override;
    std::optional<std::string> ChooseFileToOpen(const std::string& filter,
                                                const std::string& folder) override;
    std::optional<std::string> ChooseFileToSave(const std::string& filter, const std::string& path,
                                                int filterIndex) override;
    std::optional<std::string> ChooseFolder(const std::string& title,
                                            const std::string& folder) override;
    std::optional<FontChoice> ChooseFont(const FontChoice& initial) override;
};

}  // namespace quenloft
