// Cut, Copy and Paste of the Edit menu, on the control of a child window that has the focus.
#pragma once

#include <QObject>

namespace quenloft {

class ChildWindow;
class Clipboard;

/// A text box without a selection counts as selected whole; Copy takes all that a window of dice
/// has listed where no text box has the focus. Windows with a grid of their own then do their own
/// part. `child` may be null: nothing happens.
void CopyFrom(ChildWindow* child, Clipboard& clipboard);
void CutFrom(ChildWindow* child, Clipboard& clipboard);
void PasteInto(ChildWindow* child, Clipboard& clipboard);

/// Text boxes keep Ctrl+X, Ctrl+C and Ctrl+V for themselves. Installed on one, this gives them to
/// the menu, so that key and menu do the same. A box for formatted text keeps them: by the keys its
/// text keeps its form, by the menu it comes and goes as plain text.
class ClipboardKeysToMenu : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace quenloft
