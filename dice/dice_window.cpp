#include "dice/dice_window.h"

#include <QShortcut>

#include "dice/dice_round.h"
#include "engine/engine.h"
#include "engine/failure.h"
#include "engine/host.h"
#include "platform/dialogs.h"
#include "platform/qt/qt_text.h"
#include "shell/font_settings.h"
#include "shell/form_names.h"
#include "shell/generation_run.h"
#include "shell/wait_cursor.h"
#include "shell/workspace.h"
#include "ui_dice_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{4095, 1830};

// Clicks that come one upon the other are to roll each for itself.
constexpr qint64 kMillisecondsAtOnce = 100;

std::string TextOf(const QLineEdit* box) { return FromQt(box->text()); }

}  // namespace

frmDice::frmDice(Workspace& workspace, RandomSource& random)
    : ChildWindow(workspace, form::kDice, tr("Dice"), kPlace),
      ui_(std::make_unique<Ui::frmDice>()),
      dice_(random, workspace.Services().host, [this] { return GoOnRolling(); }) {
    ui_->setupUi(this);
    ui_->lstResults->PutNewestFirst();
    setFocusProxy(ui_->txtNrDice);
    workspace_.ApplyFontSettings(*ui_->lstResults, kOutputFont);
    connect(ui_->btnRoll, &QPushButton::clicked, this, &frmDice::Roll);
    connect(ui_->btnClear, &QPushButton::clicked, this, &frmDice::Clear);
    new QShortcut(Qt::Key_F5, this, this, &frmDice::Roll, Qt::WidgetWithChildrenShortcut);
    for (const NumberBox* box : findChildren<NumberBox*>()) {
        connect(box, &QLineEdit::returnPressed, this, &frmDice::Roll);
    }
}

frmDice::~frmDice() = default;

QSize frmDice::OpeningSize(QSize area) const {
    constexpr QSize kComfortable(420, 360);
    return kComfortable.expandedTo(sizeHint()).boundedTo(area);
}

std::string frmDice::Export() { return ui_->lstResults->Text(); }

void frmDice::Roll() {
    if (workspace_.IsRunning()) {
        return;
    }
    const std::string failure = RollUntilAborted();
    if (!failure.empty()) {
        // Nothing may follow: the window may be gone.
        workspace_.Services().dialogs.ShowMessage(failure, MessageIcon::Warning);
    }
}

void frmDice::Clear() { ui_->lstResults->Clear(); }

std::string frmDice::RollUntilAborted() {
    const GenerationRun run(workspace_, *this);
    sinceStart_.start();
    ReportLines lines(ui_->lstResults->Bytes());
    std::string result = TextOf(ui_->txtResult);
    std::string failure;
    try {
        const WaitCursor wait;
        RollTimes(
            dice_,
            {TextOf(ui_->txtNrDice), TextOf(ui_->txtDiceType), TextOf(ui_->txtAdd),
             TextOf(ui_->txtRolls), ui_->chkOpenEnded->isChecked()},
            [this] { return GoOnRolling(); }, lines, result);
    } catch (const Failure& error) {
        failure = error.what();
    }
    ui_->txtResult->setText(ToQt(result));
    ui_->lstResults->Add(lines.Take());
    return failure;
}

bool frmDice::GoOnRolling() {
    const ServiceSet& services = workspace_.Services();
    if (sinceStart_.hasExpired(kMillisecondsAtOnce)) {
        services.host.Yield();
    }
    return !services.engine.IsAborted();
}

}  // namespace quenloft
