// What the main window offers its child windows. They know this class and never the main window.
#pragma once

#include <string>
#include <string_view>

#include "shell/service_set.h"

class QWidget;

namespace quenloft {

class ChildWindow;

class Workspace {
  public:
    virtual ~Workspace() = default;

    virtual const ServiceSet& Services() = 0;

    /// The root folder of the user's tables and scripts, read anew from the profile; the
    /// executable's folder where the profile names none. It need not exist.
    virtual std::string LibraryPath() = 0;

    /// Gives `target` the user's font where the settings want it for this class of controls:
    /// 1 script editor, 2 table editor, 3 output, 4 lists. Never fails.
    virtual void ApplyFontSettings(QWidget& target, int fontClass) = 0;

    // --- Runs: see GenerationRun, which brackets one. ---

    /// Clears the abort flag and shows the abort command.
    virtual void EnableAbort() = 0;
    /// Hides the abort command and clears the flag.
    virtual void DisableAbort() = 0;
    /// True from EnableAbort to DisableAbort, in whatever window.
    virtual bool IsRunning() const = 0;

    // --- Windows, by form name. ---

    /// False while the program has no window of this name.
    virtual bool CanOpen(std::string_view formName) const = 0;
    /// Shows the window of which there is one only, or a new one; null where CanOpen is false.
    virtual ChildWindow* Open(std::string_view formName) = 0;

    /// A file was opened or saved. A table or script becomes the first of the recent files.
    virtual void NoteRecentFile(const std::string& path) = 0;

    // --- The editing control that last had the focus: inserted text goes there. ---

    /// Null when there is none, or its window has gone.
    virtual QWidget* InsertionTarget() const = 0;
    virtual void SetInsertionTarget(QWidget* target) = 0;
};

}  // namespace quenloft
