#include "dice/probability_window.h"

#include "dice/analysis_script.h"
#include "platform/qt/qt_text.h"
#include "shell/form_names.h"
#include "shell/workspace.h"
#include "ui_probability_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{6870, 4455};

std::string TextOf(const QLineEdit* box) { return FromQt(box->text()); }

}  // namespace

frmProbability::frmProbability(Workspace& workspace, Simulation& simulation)
    : AnalysisWindow(workspace, form::kProbability, tr("Kelbrunsystem Dice Probability Analysis"),
                     kPlace),
      ui_(std::make_unique<Ui::frmProbability>()),
      simulation_(simulation) {
    ui_->setupUi(this);
    setFocusProxy(ui_->txt2);
    UseList(ui_->lstResult);
    AddRollKeys(ui_->cmdRoll);
    ShowWhileChecked(ui_->chkCounter, ui_->lblRolled, ui_->lblOf);
    connect(ui_->cmdRoll, &QPushButton::clicked, this, &frmProbability::Roll);
    connect(ui_->btnRollCfg, &QPushButton::clicked, this, &frmProbability::RunScript);
    connect(ui_->btnClear, &QPushButton::clicked, this, &frmProbability::ClearList);
    connect(ui_->cmdSave, &QPushButton::clicked, this, &frmProbability::CopyList);
    connect(ui_->btnSaveResultTofile, &QPushButton::clicked, this, &frmProbability::SaveList);
}

frmProbability::~frmProbability() = default;

void frmProbability::Roll() {
    Perform([this](ReportLines& lines) {
        const clsRoll handful = HandfulFromBoxes();
        Start(handful, PositiveValue(TextOf(ui_->txtRolls)), lines);
    });
}

void frmProbability::RunScript() {
    PerformScript(ui_->chkOpenEnded, [this](const ScriptParts& parts, const std::string& path) {
        RunTotalsScript(parts, path, [&](const clsRoll& handful, std::int32_t rolls) {
            Start(handful, rolls, parts.lines);
        });
    });
}

void frmProbability::Start(const clsRoll& handful, std::int32_t rolls, ReportLines& lines) {
    if (rolls == 0) {
        return;
    }
    RunBusy(ui_->cmdRoll, [&] {
        RunTotals(simulation_, handful, rolls,
                  {.openEnded = ui_->chkOpenEnded->isChecked(),
                   .increaseRandomness = ui_->chkIncreaseRandomness->isChecked(),
                   .displayMin = TextOf(ui_->txtDisplayMin),
                   .displayUpto = TextOf(ui_->txtDisplayUpto)},
                  Counter(ui_->chkCounter, ui_->lblRolled), lines);
        if (ui_->chkCounter->isChecked() && rolls > 0) {
            ui_->lblRolled->setText(QString::number(rolls));
        }
    });
}

clsRoll frmProbability::HandfulFromBoxes() const {
    return HandfulFromTexts({TextOf(ui_->txt2), TextOf(ui_->txt4), TextOf(ui_->txt6),
                             TextOf(ui_->txt8), TextOf(ui_->txt10), TextOf(ui_->txt12),
                             TextOf(ui_->txt20)});
}

}  // namespace quenloft
