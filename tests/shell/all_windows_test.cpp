// What must hold in every window of the program.
#include <QAccessible>
#include <QMenuBar>
#include <QShortcut>
#include <algorithm>
#include <map>

#include "shell/recovery/recovery.h"
#include "shell/settings_dialog.h"
#include "shell/window_kinds.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class AllWindows : public WindowsFixture {
  protected:
    AllWindows() { ShowMainWindow(window); }

    /// Opens each window of the program and hands it over.
    template <typename Look>
    void InEach(Look look) {
        for (const WindowKind& kind : MakeWindowKinds(random, &recovery)) {
            ChildWindow* child = window.Open(kind.formName);
            ASSERT_TRUE(child) << kind.formName;
            look(*child);
        }
    }
    static bool IsAny(const QWidget& widget, std::initializer_list<const char*> classes) {
        return std::ranges::any_of(classes,
                                   [&](const char* name) { return widget.inherits(name); });
    }
    static bool TakesInput(const QWidget& widget) {
        return IsAny(widget, {"QAbstractButton", "QLineEdit", "QComboBox", "QAbstractSpinBox",
                              "QPlainTextEdit", "QTextEdit", "QAbstractItemView"});
    }
    /// A part of another control, which speaks for it.
    static bool IsPart(const QWidget& widget) {
        return IsAny(widget, {"QHeaderView", "QComboBoxListView"}) ||
               IsAny(*widget.parentWidget(), {"QAbstractSpinBox", "QComboBox", "QAbstractItemView",
                                              "QLineEdit", "QAbstractScrollArea"});
    }

    Recovery recovery{folder.Path("state"), dialogs};
    frmMain window{Services(), MakeWindowKinds(random, &recovery)};
};

TEST_F(AllWindows, EveryControlHasANameToBeReadOut) {
    const auto check = [](QWidget& form) {
        for (QWidget* widget : form.findChildren<QWidget*>()) {
            if (!TakesInput(*widget) || IsPart(*widget)) {
                continue;
            }
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
            EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty())
                << form.objectName().toStdString() << ": " << widget->metaObject()->className()
                << " in " << widget->parentWidget()->objectName().toStdString();
            EXPECT_FALSE(widget->objectName().isEmpty())
                << form.objectName().toStdString() << ": "
                << accessible->text(QAccessible::Name).toStdString();
        }
    };
    InEach([&check](ChildWindow& child) { check(child); });
    FontSettings fonts;
    frmSettings settings(Services(), fonts, &window);
    check(settings);
}

// The same key twice in a window does nothing at all.
TEST_F(AllWindows, NoKeyIsGivenTwice) {
    InEach([this](ChildWindow& child) {
        std::map<QString, int> keys;
        for (const QAction* action : window.menuBar()->findChildren<QAction*>()) {
            ++keys[action->shortcut().toString()];
        }
        const QWidget& frame = *child.parentWidget();
        for (const QShortcut* shortcut : frame.findChildren<QShortcut*>()) {
            ++keys[shortcut->key().toString()];
        }
        for (const QAction* action : frame.findChildren<QAction*>()) {
            for (const QKeySequence& key : action->shortcuts()) {
                ++keys[key.toString()];
            }
        }
        keys.erase(QString());
        for (const auto& [key, count] : keys) {
            EXPECT_EQ(count, 1) << key.toStdString() << " in " << child.FormName();
        }
    });
}

}  // namespace
}  // namespace quenloft
