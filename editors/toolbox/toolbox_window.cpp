#include "editors/toolbox/toolbox_window.h"

#include <QMdiSubWindow>

#include "editors/toolbox/insertion.h"
#include "engine/engine.h"
#include "engine/failure.h"
#include "platform/dialogs.h"
#include "platform/qt/qt_text.h"
#include "shell/elided_widgets.h"
#include "shell/form_names.h"
#include "shell/workspace.h"
#include "ui_toolbox_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{9000, 1200};

constexpr char kFilter[] = "Table(*.tbl)|*.tbl|All files (*.*)|*.*";
// The two blanks belong to it.
constexpr char kUnbound[] = "Right click the button  to select a table";

std::string TextOf(const QLineEdit* box) { return FromQt(box->text()); }

std::optional<std::string> ChooseFile(const ServiceSet& services) {
    return services.dialogs.ChooseFileToOpen(
        kFilter, services.files.NativePath(services.files.CurrentDirectory()));
}

}  // namespace

frmEdit_Reference::frmEdit_Reference(Workspace& workspace)
    : ChildWindow(workspace, form::kEditReference, tr("Insert Toolbox"), kPlace),
      ui_(std::make_unique<Ui::frmEdit_Reference>()) {
    ui_->setupUi(this);
    // "gold" is not to become the "Gold" that was used before.
    ui_->cmbVariables->setCompleter(nullptr);
    MakeQuickButtons();
    for (const QLineEdit* box : {ui_->txtNrDice, ui_->txtDiceType, ui_->txtAdd}) {
        connect(box, &QLineEdit::returnPressed, this, &frmEdit_Reference::InsertDice);
    }
    connect(ui_->btnDice, &QPushButton::clicked, this, &frmEdit_Reference::InsertDice);
    connect(ui_->cmbVariables->lineEdit(), &QLineEdit::returnPressed, this,
            &frmEdit_Reference::InsertVariable);
    connect(ui_->btnVariable, &QPushButton::clicked, this, &frmEdit_Reference::InsertVariable);
    connect(ui_->btnLinebreak, &QPushButton::clicked, this, &frmEdit_Reference::InsertLineBreak);
    for (const QLineEdit* box : {ui_->txtReference, ui_->txtRepeat}) {
        connect(box, &QLineEdit::returnPressed, this, &frmEdit_Reference::InsertTypedReference);
    }
    connect(ui_->btnLoad, &QPushButton::clicked, this, &frmEdit_Reference::ChooseTable);
    connect(ui_->btnSendReference, &QPushButton::clicked, this,
            &frmEdit_Reference::InsertTypedReference);
    const ServiceSet& services = workspace_.Services();
    quickTables_.Restore(services.engine, services.profile, workspace_.LibraryPath());
    Refresh();
}

frmEdit_Reference::~frmEdit_Reference() = default;

QSize frmEdit_Reference::OpeningSize(QSize area) const {
    // With room for what the quick buttons say at first.
    constexpr QSize kMore(72, 40);
    return (sizeHint() + kMore).boundedTo(area);
}

void frmEdit_Reference::SaveState() { quickTables_.Save(workspace_.Services().profile); }

void frmEdit_Reference::changeEvent(QEvent* event) {
    auto* frame = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (event->type() == QEvent::ParentChange && frame) {
        frame->setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    ChildWindow::changeEvent(event);
}

void frmEdit_Reference::InsertDice() {
    try {
        Insert(DiceMark({TextOf(ui_->txtNrDice), TextOf(ui_->txtDiceType), TextOf(ui_->txtAdd),
                         ui_->chkOpenEnded->isChecked()}));
    } catch (const Failure& failure) {
        workspace_.Services().dialogs.ShowMessage(failure.what(), MessageIcon::Warning);
    }
}

void frmEdit_Reference::InsertVariable() {
    const QString name = ui_->cmbVariables->currentText();
    if (name.isEmpty()) {
        return;
    }
    Insert(VariableMark(FromQt(name)));
    if (ui_->cmbVariables->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0) {
        ui_->cmbVariables->addItem(name);
    }
}

void frmEdit_Reference::InsertLineBreak() { Insert(kLineBreakMark); }

void frmEdit_Reference::ChooseTable() {
    const ServiceSet& services = workspace_.Services();
    if (const auto path = ChooseFile(services)) {
        ui_->txtReference->setText(ToQt(ReferenceNameOf(services.files, *path)));
    }
}

void frmEdit_Reference::InsertTypedReference() { InsertReference(TextOf(ui_->txtReference)); }

void frmEdit_Reference::InsertQuickTable(int index) {
    InsertReference(quickTables_.At(index).name);
}

void frmEdit_Reference::BindQuickTable(int index) {
    const ServiceSet& services = workspace_.Services();
    if (const auto path = ChooseFile(services)) {
        quickTables_.Bind(index, services.engine, *path);
        Refresh();
    }
}

void frmEdit_Reference::Refresh() {
    for (int index = 0; index < QuickTables::kButtons; ++index) {
        const QuickTable& table = quickTables_.At(index);
        quickButtons_[static_cast<std::size_t>(index)]->SetTitle(
            table.name.empty() ? QString::fromLatin1(kUnbound) : ToQt(table.title));
    }
}

void frmEdit_Reference::MakeQuickButtons() {
    constexpr int kColumns = 2;
    for (int index = 0; index < QuickTables::kButtons; ++index) {
        auto* button = new TitleButton(this);
        button->setObjectName(QStringLiteral("btnQuicklList_%1").arg(index));
        button->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(button, &QPushButton::clicked, this, [this, index] { InsertQuickTable(index); });
        connect(button, &QWidget::customContextMenuRequested, this,
                [this, index] { BindQuickTable(index); });
        ui_->layQuickList->addWidget(button, index / kColumns, index % kColumns);
        quickButtons_.push_back(button);
    }
}

void frmEdit_Reference::Insert(const std::string& mark) {
    InsertInto(workspace_.InsertionTarget(), ToQt(mark));
}

void frmEdit_Reference::InsertReference(const std::string& name) {
    if (name.empty()) {
        return;
    }
    try {
        Insert(ReferenceMark(name, ChosenCase(), TextOf(ui_->txtRepeat)));
    } catch (const Failure& failure) {
        workspace_.Services().dialogs.ShowMessage(failure.what(), MessageIcon::Warning);
    }
}

NameCase frmEdit_Reference::ChosenCase() const {
    if (ui_->optCaseUpper->isChecked()) {
        return NameCase::Upper;
    }
    return ui_->optCaseFirst->isChecked() ? NameCase::First : NameCase::Default;
}

}  // namespace quenloft
