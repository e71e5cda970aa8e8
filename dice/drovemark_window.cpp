#include "dice/drovemark_window.h"

#include <QLineEdit>

#include "engine/engine.h"
#include "engine/host.h"
#include "platform/qt/qt_text.h"
#include "shell/form_names.h"
#include "shell/generation_run.h"
#include "shell/wait_cursor.h"
#include "shell/workspace.h"
#include "ui_drovemark_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{8325, 7815};

std::string TextOf(const QLineEdit* box) { return FromQt(box->text()); }

}  // namespace

frmDrovemark::frmDrovemark(Workspace& workspace, Simulation& simulation)
    : AnalysisWindow(workspace, form::kDrovemark, tr("Drovemark Dice Probability Analysis"),
                     kPlace),
      ui_(std::make_unique<Ui::frmDrovemark>()),
      simulation_(simulation) {
    ui_->setupUi(this);
    ui_->updWhite->Box()->setObjectName(QStringLiteral("txtWhite"));
    ui_->updRed->Box()->setObjectName(QStringLiteral("txtRed"));
    ui_->updBlack->Box()->setObjectName(QStringLiteral("txtBlack"));
    ui_->txtRolls->MakeRoomForAnyNumber();
    setFocusProxy(ui_->updWhite);
    UseList(ui_->lstResult);
    ui_->lstResult->UseNarrowFirstColumn();
    AddRollKeys(ui_->btnRoll);
    connect(ui_->btnRoll, &QPushButton::clicked, this, &frmDrovemark::Roll);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &frmDrovemark::Cancel);
    connect(ui_->cmdSave, &QPushButton::clicked, this, &frmDrovemark::CopyList);
    connect(ui_->btnClear, &QPushButton::clicked, this, &frmDrovemark::ClearList);
    Refresh();
}

frmDrovemark::~frmDrovemark() = default;

void frmDrovemark::Roll() {
    Perform([this](ReportLines& lines) { RollUntilCancelled(lines); });
}

void frmDrovemark::Cancel() {
    cancelled_ = true;
    canRoll_ = true;
    Refresh();
}

void frmDrovemark::Refresh() {
    ui_->btnRoll->setEnabled(canRoll_);
    ui_->btnCancel->setEnabled(!canRoll_);
}

void frmDrovemark::RollUntilCancelled(ReportLines& lines) {
    const GenerationRun run(workspace_, *this);
    const WaitCursor wait;
    const bool hadFocus = ui_->btnRoll->hasFocus();
    canRoll_ = false;
    Refresh();
    const ColourPool pool =
        ColourPoolFromTexts(TextOf(ui_->txtRolls), TextOf(ui_->updBlack->Box()),
                            TextOf(ui_->updRed->Box()), TextOf(ui_->updWhite->Box()));
    cancelled_ = false;
    RunColours(
        simulation_, pool, [this](std::int32_t) { return GoOnRolling(); }, counts_, lines);
    canRoll_ = true;
    Refresh();
    if (hadFocus) {
        ui_->btnRoll->setFocus();
    }
}

bool frmDrovemark::GoOnRolling() {
    const ServiceSet& services = workspace_.Services();
    services.host.Yield();
    return !cancelled_ && !services.engine.IsAborted();
}

}  // namespace quenloft
