#include "dice/shadowrun_window.h"

#include "dice/analysis_script.h"
#include "engine/numbers.h"
#include "platform/qt/qt_text.h"
#include "shell/form_names.h"
#include "shell/workspace.h"
#include "ui_shadowrun_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{6870, 4455};

std::int32_t ValueOf(const QLineEdit* box) { return NumericValue(FromQt(box->text())); }

}  // namespace

frmShadowrunProbability::frmShadowrunProbability(Workspace& workspace, Simulation& simulation)
    : AnalysisWindow(workspace, form::kShadowrunProbability,
                     tr("Shadowrun Dice Probability Analysis"), kPlace),
      ui_(std::make_unique<Ui::frmShadowrunProbability>()),
      simulation_(simulation) {
    ui_->setupUi(this);
    setFocusProxy(ui_->txtNrofDice);
    UseList(ui_->lstResult);
    ui_->lstResult->UseNarrowFirstColumn();
    AddRollKeys(ui_->cmdRoll);
    ShowWhileChecked(ui_->chkCounter, ui_->lblRolled, ui_->lblOf);
    connect(ui_->cmdRoll, &QPushButton::clicked, this, &frmShadowrunProbability::Roll);
    connect(ui_->btnRollCfg, &QPushButton::clicked, this, &frmShadowrunProbability::RunScript);
    connect(ui_->btnClear, &QPushButton::clicked, this, &frmShadowrunProbability::ClearList);
    connect(ui_->cmdSave, &QPushButton::clicked, this, &frmShadowrunProbability::CopyList);
    connect(ui_->btnSaveResultTofile, &QPushButton::clicked, this,
            &frmShadowrunProbability::SaveList);
}

frmShadowrunProbability::~frmShadowrunProbability() = default;

void frmShadowrunProbability::Roll() {
    Perform([this](ReportLines& lines) {
        if (TextToNumber(FromQt(ui_->txtRolls->text())) > 0) {
            Start({.faces = ValueOf(ui_->txtDieFaces),
                   .dice = ValueOf(ui_->txtNrofDice),
                   .rolls = ValueOf(ui_->txtRolls),
                   .target = ValueOf(ui_->txtTargetNumber)},
                  lines);
        }
    });
}

void frmShadowrunProbability::RunScript() {
    PerformScript(ui_->chkOpenEnded, [this](const ScriptParts& parts, const std::string& path) {
        RunTargetScript(parts, path, [&](const TargetPool& pool) { Start(pool, parts.lines); });
    });
}

void frmShadowrunProbability::Start(const TargetPool& pool, ReportLines& lines) {
    if (pool.rolls == 0) {
        return;
    }
    RunBusy(ui_->cmdRoll, [&] {
        RunTarget(simulation_, pool,
                  {.openEnded = ui_->chkOpenEnded->isChecked(),
                   .increaseRandomness = ui_->chkIncreaseRandomness->isChecked(),
                   .showRolls = ui_->chkShowRolls->isChecked()},
                  Counter(ui_->chkCounter, ui_->lblRolled), counts_, lines);
        if (ui_->chkCounter->isChecked() && pool.rolls > 0) {
            ui_->lblRolled->setText(QString::number(pool.rolls));
        }
    });
}

}  // namespace quenloft
