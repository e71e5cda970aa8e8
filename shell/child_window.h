// The base of every window inside the main window.
#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

class QPlainTextEdit;

namespace quenloft {

class Workspace;
struct KeptText;

/// A place inside the main window in twips: 15 twips are one pixel at 96 dpi.
struct TwipsPoint {
    int left = 0;
    int top = 0;
};

/// `twips` in device-independent pixels.
int TwipsToPixels(int twips);

/// What a window holds that is in no file.
struct UnsavedWork {
    std::string path;            ///< Of its file, native; empty where it has none.
    std::string base;            ///< Fingerprint of what the window knows of that file.
    std::uint64_t revision = 0;  ///< Another one after each change of the text.
    /// Takes what stands in the window, quickly: the user may be typing. Called at once or never.
    /// What it returns may take its time, in another thread: it gives the text in the window's own
    /// form.
    std::function<std::function<std::string()>()> snapshot;
};

/// Name, place and closing; and the operations that menus and other windows call. An operation that
/// a window does not have does nothing. What a window shows and does is its own affair.
class ChildWindow : public QWidget {
    Q_OBJECT

  public:
    /// `formName` is one of shell/form_names.h and becomes the object name.
    ChildWindow(Workspace& workspace, const char* formName, const QString& caption,
                TwipsPoint place);

    std::string FormName() const;

    /// Back to the window's fixed place, in the size it has.
    void Arrange();
    /// How large the window opens in a main window whose inside measures `area`.
    virtual QSize OpeningSize(QSize area) const;

    // --- What the menus route here. Text is UTF-8, lines end with CR LF. ---

    virtual std::string Export() { return {}; }
    virtual void PrintContent() {}
    virtual void Copy() {}
    virtual void Cut() {}
    virtual void Paste() {}
    /// The output box that the focused `control`, one of an array of buttons, stands for.
    virtual QPlainTextEdit* OutputBoxOf(const QWidget& control);

    /// Makes it the active window, whatever state it is in.
    void BringToFront();

    // --- What other windows ask of one that they opened. Paths are library or native paths. ---

    /// Lets the user choose a file and loads it.
    virtual void OpenFile() {}
    virtual void NewFile() {}
    virtual void Load(const std::string& path);
    virtual void Run() {}

    // --- Unsaved work. A window that has any is modified (QWidget::isWindowModified), but for
    // what is being typed into a part of it.

    /// Nothing where nothing would be lost. Asked for often: takes no time.
    virtual std::optional<UnsavedWork> Unsaved() const;
    /// A new window takes unsaved work of an earlier one, and counts as modified. Never fails; what
    /// no window wrote gives some text or other.
    virtual void PutBack(const KeptText& kept);

    // --- Closing. ---

    /// Asks about unsaved work, and saves it when told to. False when the window must stay.
    virtual bool AskToSave() { return true; }
    /// Called once, when the window is about to go: what persists goes to the profile.
    virtual void SaveState() {}
    /// As if the user had clicked the window's close button.
    void CloseWindow();
    /// For a window that has been asked already.
    void CloseUnasked();

  protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

    /// `text` as a part of a window's title, where "[*]" is the place of the mark of change.
    static QString InTitle(std::string_view text);

    /// The answer to `question` whether to save: Yes calls `save`, which says whether it did. False
    /// where everything must stay as it is.
    bool SaveOrGiveUp(const std::string& question, const std::function<bool()>& save);

    Workspace& workspace_;

  private:
    friend class GenerationRun;
    void EndRun();
    /// Gives the frame the size that its controls need, and moves it to where all of it can be
    /// seen, as far as there is room.
    void MoveIntoView();

    const TwipsPoint place_;
    bool wasShown_ = false;
    bool running_ = false;  // A run of this window is on the stack.
    bool closeAfterRun_ = false;
    bool asked_ = false;
};

}  // namespace quenloft
