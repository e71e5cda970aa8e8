// The dice windows inside a main window, and what a user does in them.
#pragma once

#include <regex>

#include "dice/dice_window.h"
#include "dice/drovemark_window.h"
#include "dice/probability_window.h"
#include "dice/result_list.h"
#include "dice/shadowrun_window.h"
#include "dice/simulation_on.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {

class DiceWindowsFixture : public WindowsFixture {
  protected:
    /// Shows the window called `formName`.
    void Open(const char* formName) {
        ShowMainWindow(window);
        child = window.Open(formName);
    }
    template <typename Control>
    Control* Find(const char* name) {
        auto* control = child->findChild<Control*>(name);
        EXPECT_TRUE(control) << name;
        return control;
    }
    void Type(const char* name, const QString& text) {
        auto* box = Find<QLineEdit>(name);
        box->selectAll();
        QTest::keyClicks(box, text);
    }
    void Click(const char* name) {
        QTest::mouseClick(Find<QWidget>(name), Qt::LeftButton, {},
                          Find<QWidget>(name)->rect().center());
    }
    void Check(const char* name) { Find<QAbstractButton>(name)->setChecked(true); }
    QString Text(const char* name) { return Find<QLineEdit>(name)->text(); }
    std::string Caption(const char* name) {
        const auto* button = Find<QAbstractButton>(name);
        return button->text().toStdString() + (button->isEnabled() ? "" : " (disabled)");
    }
    /// What the window exports, with "N" for seconds and "NOW" for times.
    std::string Report() {
        const std::string text =
            std::regex_replace(child->Export(), std::regex(R"(in \d+ seconds)"), "in N seconds");
        return std::regex_replace(text, std::regex(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d)"), "NOW");
    }

    SimulationOn<SystemRandomSource> simulation{random};
    frmMain window{
        Services(),
        {{form::kDice, Instances::One,
          [this](Workspace& workspace) { return new frmDice(workspace, random); }},
         {form::kProbability, Instances::Many,
          [this](Workspace& workspace) { return new frmProbability(workspace, simulation); }},
         {form::kShadowrunProbability, Instances::Many,
          [this](Workspace& workspace) {
              return new frmShadowrunProbability(workspace, simulation);
          }},
         {form::kDrovemark, Instances::Many,
          [this](Workspace& workspace) { return new frmDrovemark(workspace, simulation); }}}};
    ChildWindow* child = nullptr;
};

inline constexpr char kScriptFilter[] =
    "KS script (*.scr)|*.scr|Text files(*.txt)|*.txt|All files(*.*)|*.*";

}  // namespace quenloft
