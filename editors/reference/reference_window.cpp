#include "editors/reference/reference_window.h"

#include <QKeyEvent>
#include <QPointer>
#include <QShortcut>

#include "editors/reference/reference_model.h"
#include "engine/engine.h"
#include "engine/numbers.h"
#include "platform/dialogs.h"
#include "platform/qt/qt_text.h"
#include "shell/font_settings.h"
#include "shell/workspace.h"
#include "ui_reference_window.h"

namespace quenloft {
namespace {

constexpr char kOtherDrives[] =
    "To keep reference integrity is not browsing for reference on other drives allowed!";
constexpr char kNoFolder[] = "Failure in displaying folder content!";

// Titles need more room than names.
constexpr double kTitleShare = 0.6;

bool MovesInList(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown;
}

}  // namespace

frmReference::frmReference(Workspace& workspace, QWidget* parent)
    : QDialog(parent),
      workspace_(workspace),
      ui_(std::make_unique<Ui::frmReference>()),
      model_(new ReferenceModel(workspace.Services().engine, this)) {
    ui_->setupUi(this);
    ui_->updTimes->Box()->setObjectName(QStringLiteral("txtRepeat"));
    ui_->lvwReference->setModel(model_);
    ui_->lvwReference->sortByColumn(ReferenceModel::kFile, Qt::AscendingOrder);
    ui_->lvwReference->setSortingEnabled(true);
    ui_->lvwReference->installEventFilter(this);
    ui_->txtFilter->installEventFilter(this);
    constexpr QSize kComfortable(640, 560);
    resize(kComfortable.expandedTo(sizeHint()));
    ui_->lvwReference->header()->resizeSection(ReferenceModel::kTitle,
                                               static_cast<int>(width() * kTitleShare));
    connect(ui_->btnUpDirectory, &QPushButton::clicked, this, &frmReference::GoUp);
    connect(ui_->btnRefresh, &QPushButton::clicked, this, &frmReference::Refill);
    connect(ui_->txtFilter, &QLineEdit::textChanged, this, &frmReference::FilterChanged);
    connect(ui_->lvwReference, &QTreeView::doubleClicked, this, &frmReference::ChooseCurrent);
    connect(ui_->lvwReference->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &frmReference::CurrentChanged);
    connect(model_, &ReferenceModel::modelReset, this, &frmReference::SelectCurrent);
    connect(model_, &ReferenceModel::TitlesRead, ui_->lvwReference->viewport(),
            qOverload<>(&QWidget::update));
    connect(ui_->chkDisplayHiddenFiles, &QCheckBox::toggled, this, &frmReference::Refill);
    connect(ui_->btnSign, &QPushButton::clicked, this, &frmReference::ReturnSign);
    connect(ui_->btnOK, &QPushButton::clicked, this, &frmReference::ChooseCurrent);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &frmReference::reject);
    new QShortcut(Qt::ALT | Qt::Key_Up, this, this, &frmReference::GoUp);
    new QShortcut(Qt::Key_F5, this, this, &frmReference::Refill);
}

frmReference::~frmReference() = default;

std::string frmReference::Choose(const std::string& folder) {
    FileSystem& files = workspace_.Services().files;
    files.LookAgain();
    place_ = ReferencePlace(files.AbsolutePath(folder.empty() ? "." : folder));
    result_.clear();
    ui_->txtFilter->clear();
    ui_->txtFilter->setFocus();
    current_.clear();
    ui_->updTimes->Box()->setText(QStringLiteral("1"));
    // The settings may have changed since it was last used.
    ui_->lvwReference->setFont(QFont());
    workspace_.ApplyFontSettings(*ui_->lvwReference, kListsFont);
    Refill();
    const QPointer<frmReference> alive(this);
    exec();
    if (!alive) {
        return {};
    }
    model_->StopReading();
    return result_;
}

bool frmReference::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (watched == ui_->txtFilter && MovesInList(key)) {
        QCoreApplication::sendEvent(ui_->lvwReference, event);
        return true;
    }
    if (watched == ui_->lvwReference && key == Qt::Key_Backspace) {
        GoUp();
        return true;
    }
    return false;
}

void frmReference::GoUp() {
    if (place_.IsDriveRoot()) {
        workspace_.Services().dialogs.ShowMessage(kOtherDrives, MessageIcon::Warning);
        return;
    }
    ui_->txtFilter->clear();  // First: it makes a row of the former folder the current one.
    current_ = place_.GoUp();
    Refill();
    if (!model_->List().Failure().empty()) {
        workspace_.Services().dialogs.ShowMessage(kNoFolder, MessageIcon::Warning);
    }
}

void frmReference::Refill() { model_->Fill(place_, ui_->chkDisplayHiddenFiles->isChecked()); }

void frmReference::FilterChanged() {
    current_.clear();  // What is found best stands first.
    model_->SetFilter(FromQt(ui_->txtFilter->text()));
}

void frmReference::CurrentChanged(const QModelIndex& current) {
    current_ = current.isValid() ? model_->List().Row(static_cast<std::size_t>(current.row())).name
                                 : std::string();
}

void frmReference::ReturnSign() { Return("#"); }

void frmReference::ChooseCurrent() {
    const QModelIndex current = ui_->lvwReference->currentIndex();
    if (!current.isValid()) {
        Return({});
        return;
    }
    const ReferenceItem& item = model_->List().Row(static_cast<std::size_t>(current.row()));
    if (item.kind == ReferenceItem::Kind::Folder) {
        Enter(std::string(item.name));
    } else {
        Return(ReferenceTo(item.name));
    }
}

void frmReference::Refresh() {
    ui_->lblRelative->SetTitle(ToQt(place_.RelativePath()));
    const QString hint = Hint();
    ui_->lblHint->setText(hint);
    ui_->lblHint->setVisible(!hint.isEmpty());
    // Enter in a filter that finds nothing must not look like a choice.
    const ReferenceList& list = model_->List();
    ui_->btnOK->setEnabled(list.RowCount() > 0 || list.IsEmpty());
}

void frmReference::Enter(const std::string& name) {
    ui_->txtFilter->clear();
    place_.Enter(name);
    current_.clear();
    Refill();
}

void frmReference::Return(std::string result) {
    result_ = std::move(result);
    accept();
}

void frmReference::SelectCurrent() {
    const int row = static_cast<int>(model_->List().RowOf(current_).value_or(0));
    const QModelIndex index = model_->index(row, ReferenceModel::kTitle);
    ui_->lvwReference->setCurrentIndex(index);
    if (index.isValid()) {
        ui_->lvwReference->scrollTo(index);
    }
    Refresh();
}

NameCase frmReference::ChosenCase() const {
    if (ui_->optCaseFirst->isChecked()) {
        return NameCase::First;
    }
    if (ui_->optCaseUpper->isChecked()) {
        return NameCase::Upper;
    }
    return ui_->optEveryWord->isChecked() ? NameCase::EveryWord : NameCase::Default;
}

std::string frmReference::ReferenceTo(const std::string& name) const {
    const std::string repeat = FromQt(ui_->updTimes->Box()->text());
    return ReferenceText(place_.RelativePath() + InFileNameCase(ChosenCase(), name),
                         NumericPrefix(repeat), kEscapedRepeatMark);
}

QString frmReference::Hint() const {
    const ReferenceList& list = model_->List();
    if (!list.Failure().empty()) {
        return tr("The folder cannot be shown: %1.").arg(ToQt(list.Failure()));
    }
    if (list.IsEmpty()) {
        return tr("There are no tables, scripts or folders here.");
    }
    return list.RowCount() == 0 ? tr("No title and no name here holds this text.") : QString();
}

}  // namespace quenloft
