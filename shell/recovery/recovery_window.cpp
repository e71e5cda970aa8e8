#include "shell/recovery/recovery_window.h"

#include <QDateTime>
#include <QLocale>
#include <QPointer>
#include <QShortcut>

#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/qt/qt_text.h"
#include "shell/form_names.h"
#include "shell/recovery/recovery.h"
#include "shell/recovery/recovery_text.h"
#include "shell/wait_cursor.h"
#include "shell/workspace.h"
#include "ui_recovery_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{1500, 1200};
constexpr int kFileRole = Qt::UserRole;

QString TimeText(const KeptText& kept) {
    return QLocale().toString(QDateTime::fromSecsSinceEpoch(kept.when), QLocale::ShortFormat);
}

}  // namespace

frmRecovery::frmRecovery(Workspace& workspace, Recovery& recovery)
    : ChildWindow(workspace, form::kRecovery, tr("Unsaved Texts"), kPlace),
      ui_(std::make_unique<Ui::frmRecovery>()),
      recovery_(recovery) {
    ui_->setupUi(this);
    // Not in the form: what is made of columns there does not pass this project's checks.
    ui_->lvwTexts->setHeaderLabels({tr("Document"), tr("Kind"), tr("Kept"), tr("File since"),
                                    tr("Begins with"), tr("Folder")});
    setFocusProxy(ui_->lvwTexts);
    ui_->txtDifference->hide();
    connect(ui_->lvwTexts, &QTreeWidget::currentItemChanged, this, &frmRecovery::ForgetComparison);
    connect(ui_->lvwTexts, &QTreeWidget::itemActivated, this, &frmRecovery::Restore);
    connect(ui_->btnRestore, &QPushButton::clicked, this, &frmRecovery::Restore);
    connect(ui_->btnRestoreAll, &QPushButton::clicked, this, &frmRecovery::RestoreAll);
    connect(ui_->btnCompare, &QPushButton::clicked, this, &frmRecovery::Compare);
    connect(ui_->btnDiscard, &QPushButton::clicked, this, &frmRecovery::Discard);
    connect(&recovery_, &Recovery::LeftChanged, this, &frmRecovery::FollowTexts);
    new QShortcut(Qt::Key_Delete, ui_->lvwTexts, this, &frmRecovery::Discard, Qt::WidgetShortcut);
    ShowTexts();
}

frmRecovery::~frmRecovery() = default;

QSize frmRecovery::OpeningSize(QSize area) const {
    constexpr QSize kComfortable(760, 480);
    return kComfortable.expandedTo(area * 0.5).expandedTo(sizeHint()).boundedTo(area);
}

void frmRecovery::Restore() {
    if (const LeftText* left = Selected()) {
        recovery_.Restore(*left, workspace_);
    }
}

void frmRecovery::RestoreAll() {
    const WaitCursor wait;
    recovery_.RestoreAll(workspace_);
}

void frmRecovery::Compare() {
    if (const LeftText* left = Selected()) {
        const WaitCursor wait;
        ui_->txtDifference->SetText(ComparisonText(left->kept, FileOf(*left)));
        ui_->txtDifference->show();
    }
}

void frmRecovery::Discard() {
    const LeftText* left = Selected();
    if (!left) {
        return;
    }
    const LeftText copy = *left;
    const std::string question = DiscardQuestion(copy.kept, FromQt(TimeText(copy.kept)));
    Recovery& recovery = recovery_;  // The window may go while the question stands.
    if (workspace_.Services().dialogs.AskYesNo(question) == Answer::Yes) {
        recovery.Discard(copy);
    }
}

void frmRecovery::FollowTexts() {
    ShowTexts();
    if (recovery_.Left().empty()) {
        CloseWindow();
    }
}

void frmRecovery::ShowTexts() {
    ui_->lvwTexts->clear();
    for (const LeftText& left : recovery_.Left()) {
        auto* item = new QTreeWidgetItem(
            ui_->lvwTexts, {ToQt(DocumentName(left.kept)), ToQt(KindName(left.kept)),
                            TimeText(left.kept), ToQt(StateOfFile(left.kept, FileOf(left))),
                            ToQt(Beginning(left.kept)), ToQt(DocumentFolder(left.kept))});
        item->setData(0, kFileRole, ToQt(left.file));
    }
    for (int column = 0; column < ui_->lvwTexts->columnCount(); ++column) {
        ui_->lvwTexts->resizeColumnToContents(column);
    }
    ui_->lvwTexts->setCurrentItem(ui_->lvwTexts->topLevelItem(0));
    Refresh();
}

void frmRecovery::ForgetComparison() {
    ui_->txtDifference->hide();
    Refresh();
}

void frmRecovery::Refresh() {
    const bool isAny = !recovery_.Left().empty();
    const bool isSelected = Selected() != nullptr;
    ui_->lblExplanation->setText(
        isAny ? tr("The program did not end as it should. These texts were not saved then. Restore "
                   "opens them in their editors again, and their files stay as they are until you "
                   "save. What is not decided here is offered again at the next start.")
              : tr("There are no unsaved texts of earlier starts."));
    ui_->btnRestore->setEnabled(isSelected);
    ui_->btnRestoreAll->setEnabled(isAny);
    ui_->btnCompare->setEnabled(isSelected);
    ui_->btnDiscard->setEnabled(isSelected);
}

const LeftText* frmRecovery::Selected() const {
    const QTreeWidgetItem* item = ui_->lvwTexts->currentItem();
    return item ? recovery_.Find(FromQt(item->data(0, kFileRole).toString())) : nullptr;
}

std::optional<std::string> frmRecovery::FileOf(const LeftText& left) const {
    if (left.kept.path.empty()) {
        return std::nullopt;
    }
    FileSystem& files = workspace_.Services().files;
    files.LookAgain();
    try {
        return files.ReadBytes(left.kept.path);
    } catch (const FileError&) {
        return std::nullopt;
    }
}

}  // namespace quenloft
