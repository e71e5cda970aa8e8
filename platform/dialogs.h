// The port to everything that asks or tells the user something in a window of its own.
// All boxes carry the program title string unless they are given a title; all text is UTF-8, all
// paths are native.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quenloft {

enum class MessageIcon { None, Information, Warning };
enum class Answer { Yes, No, Cancel };

/// Asked several times a second while a box is shown: true closes the box without an answer.
using GivenUp = std::function<bool()>;

struct FontChoice {
    std::string name;
    double size = 0;  ///< Points.
    bool bold = false;
    bool italic = false;
};

class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// A box with an OK button.
    virtual void ShowMessage(const std::string& text, MessageIcon icon) = 0;
    /// A question box with Yes and No; Cancel where it was closed without an answer.
    virtual Answer AskYesNo(const std::string& text) = 0;
    /// A question box with Yes, No and Cancel; closing it means Cancel.
    virtual Answer AskYesNoCancel(const std::string& text) = 0;
    /// One line of text; nothing on Cancel. An empty `title` is the program title string.
    virtual std::optional<std::string> AskText(const std::string& prompt,
                                               const std::string& defaultText,
                                               const std::string& title = {}) = 0;

    // --- The boxes of a run. The windows stay usable beside them: a run that asks for ever could
    // not be aborted otherwise. By themselves these are boxes like the others. ---

    virtual void ShowMessageOfRun(const std::string& text, const GivenUp& /*givenUp*/) {
        ShowMessage(text, MessageIcon::None);
    }
    virtual std::optional<std::string> AskTextOfRun(const std::string& prompt,
                                                    const GivenUp& /*givenUp*/) {
        return AskText(prompt, "");
    }

    // --- Files, folders and fonts. ---

    /// `filter` is a list of "Caption|pattern;pattern" pairs joined by "|"
    /// ("Table (*.tbl)|*.tbl|All files (*.*)|*.*"). Nothing on Cancel. `folder` is where to begin.
    virtual std::optional<std::string> ChooseFileToOpen(const std::string& filter,
                                                        const std::string& folder) = 0;
    /// As above; asks before an existing file is chosen. A name typed without an extension gets the
    /// one of the chosen pattern. `filterIndex` counts the pairs from 1: the one chosen at first.
    virtual std::optional<std::string> ChooseFileToSave(const std::string& filter,
                                                        const std::string& path,
                                                        int filterIndex = 1) = 0;
    virtual std::optional<std::string> ChooseFolder(const std::string& title,
                                                    const std::string& folder) = 0;
    virtual std::optional<FontChoice> ChooseFont(const FontChoice& initial) = 0;
};

}  // namespace quenloft
