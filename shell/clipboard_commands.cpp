#include "shell/clipboard_commands.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <algorithm>
#include <string>

#include "platform/clipboard.h"
#include "platform/qt/qt_text.h"
#include "shell/child_window.h"
#include "shell/form_names.h"
#include "shell/text_box.h"

namespace quenloft {
namespace {

// Windows that do more than their text boxes do.
constexpr const char* kOwnCommands[] = {form::kEditTable, form::kAuthor};

// Windows whose arrays of buttons stand for the output boxes that they fill.
constexpr const char* kButtonsStandForBoxes[] = {form::kLists};

// Windows of results: what they export is copied where no text box has the focus.
constexpr const char* kListResults[] = {form::kDice, form::kProbability,
                                        form::kShadowrunProbability, form::kDrovemark};

bool HasOwnCommands(const ChildWindow& child) {
    return std::ranges::count(kOwnCommands, child.FormName()) > 0;
}

QPlainTextEdit* BoxOfButton(ChildWindow& child, QWidget* control) {
    for (const char* formName : kButtonsStandForBoxes) {
        if (child.FormName() == formName && qobject_cast<QAbstractButton*>(control)) {
            return child.OutputBoxOf(*control);
        }
    }
    return nullptr;
}

QLineEdit* LineOf(QWidget* control) {
    if (auto* line = qobject_cast<QLineEdit*>(control)) {
        return line;
    }
    const bool holdsLine =
        qobject_cast<QAbstractSpinBox*>(control) || qobject_cast<QComboBox*>(control);
    return holdsLine ? control->findChild<QLineEdit*>() : nullptr;
}

void CopyOrCutLine(QLineEdit& line, Clipboard& clipboard, bool cut) {
    clipboard.SetText(FromQt(line.hasSelectedText() ? line.selectedText() : line.text()));
    if (cut && !line.isReadOnly()) {
        if (!line.hasSelectedText()) {
            line.selectAll();
        }
        line.insert(QString());
    }
}

void CopyOrCutWhole(QPlainTextEdit& box, Clipboard& clipboard, bool cut) {
    clipboard.SetText(WholeText(box));
    if (cut) {
        QTextCursor all(box.document());
        all.select(QTextCursor::Document);
        all.removeSelectedText();
    }
}

void CopyOrCutBox(QPlainTextEdit& box, Clipboard& clipboard, bool cut) {
    const bool mayCut = cut && !box.isReadOnly();
    if (!box.textCursor().hasSelection()) {
        CopyOrCutWhole(box, clipboard, mayCut);
        return;
    }
    clipboard.SetText(SelectedText(box));
    if (mayCut) {
        box.textCursor().removeSelectedText();
    }
}

void CopyResults(ChildWindow& child, Clipboard& clipboard) {
    const std::string results =
        std::ranges::count(kListResults, child.FormName()) > 0 ? child.Export() : std::string();
    if (!results.empty()) {
        clipboard.SetText(results);
    }
}

void CopyOrCut(ChildWindow& child, Clipboard& clipboard, bool cut) {
    QWidget* control = child.focusWidget();
    if (QLineEdit* line = LineOf(control)) {
        CopyOrCutLine(*line, clipboard, cut);
    } else if (auto* box = qobject_cast<QPlainTextEdit*>(control)) {
        CopyOrCutBox(*box, clipboard, cut);
    } else if (QPlainTextEdit* output = BoxOfButton(child, control)) {
        CopyOrCutWhole(*output, clipboard, cut);
    } else if (!cut) {
        CopyResults(child, clipboard);
    }
}

void PasteText(QWidget* control, const QString& text) {
    if (QLineEdit* line = LineOf(control)) {
        if (!line->isReadOnly()) {
            line->insert(QString(text)
                             .replace(QLatin1String("\r\n"), QLatin1String(" "))
                             .replace(u'\r', u' ')
                             .replace(u'\n', u' '));
        }
    } else if (auto* box = qobject_cast<QPlainTextEdit*>(control)) {
        if (!box->isReadOnly()) {
            InsertText(*box, text);
        }
    }
}

}  // namespace

void CopyFrom(ChildWindow* child, Clipboard& clipboard) {
    if (child) {
        CopyOrCut(*child, clipboard, false);
        if (HasOwnCommands(*child)) {
            child->Copy();
        }
    }
}

void CutFrom(ChildWindow* child, Clipboard& clipboard) {
    if (child) {
        CopyOrCut(*child, clipboard, true);
        if (HasOwnCommands(*child)) {
            child->Cut();
        }
    }
}

void PasteInto(ChildWindow* child, Clipboard& clipboard) {
    if (child) {
        PasteText(child->focusWidget(), ToQt(clipboard.GetText()));
        if (HasOwnCommands(*child)) {
            child->Paste();
        }
    }
}

bool ClipboardKeysToMenu::eventFilter(QObject* watched, QEvent* event) {
    const auto* rich = qobject_cast<QTextEdit*>(watched);
    const bool keepsForm = rich && rich->acceptRichText() && !rich->isReadOnly();
    if (event->type() != QEvent::ShortcutOverride || keepsForm) {
        return false;
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isOurs = key->matches(QKeySequence::Cut) || key->matches(QKeySequence::Copy) ||
                        key->matches(QKeySequence::Paste);
    if (isOurs) {
        event->ignore();
    }
    return isOurs;
}

}  // namespace quenloft
