#include "editors/text/text_window.h"

#include <QFontDatabase>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QShortcut>
#include <QTextDocument>
#include <utility>

#include "editors/shared/find_bar.h"
#include "editors/shared/unsaved_lines.h"
#include "editors/text/editor_text.h"
#include "editors/text/script_report.h"
#include "editors/text/text_search.h"
#include "engine/program_title.h"
#include "engine/text_helpers.h"
#include "engine/value.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/qt/qt_text.h"
#include "shell/document_text.h"
#include "shell/font_settings.h"
#include "shell/form_names.h"
#include "shell/recovery/kept_text.h"
#include "shell/wait_cursor.h"
#include "shell/workspace.h"
#include "ui_text_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{4605, 2880};

}  // namespace

frmEdit::frmEdit(Workspace& workspace, ReferenceChooser chooser)
    : ChildWindow(workspace, form::kEdit, {}, kPlace),
      ui_(std::make_unique<Ui::frmEdit>()),
      file_(workspace.Services().files, workspace.Services().dialogs),
      chooser_(std::move(chooser)) {
    ui_->setupUi(this);
    search_ = std::make_unique<TextSearch>(*ui_->txtOut);
    ui_->layForm->addWidget(new FindBar(*search_, this));
    ui_->lblReport->hide();
    ui_->txtOut->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    workspace_.ApplyFontSettings(*ui_->txtOut, kScriptEditorFont);
    ConnectControls();
    AddShortcuts();
    Refresh();
}

frmEdit::~frmEdit() = default;

QSize frmEdit::OpeningSize(QSize area) const {
    constexpr QSize kComfortable(760, 560);
    return kComfortable.expandedTo(area * 0.45).boundedTo(area);
}

std::string frmEdit::Export() {
    return EditorExportText(ui_->txtOut->Text(), file_.Name(), ProgramTitle(), DateTimeText());
}

void frmEdit::OpenFile() {
    if (!AskToSave()) {
        return;
    }
    const auto path = workspace_.Services().dialogs.ChooseFileToOpen(kEditorFilter, file_.Folder());
    if (path) {
        Open(*path);
    }
}

void frmEdit::NewFile() {
    const bool hasFile = !file_.Path().empty();
    if (!hasFile && !AskToSave()) {
        return;
    }
    Dialogs& dialogs = workspace_.Services().dialogs;
    if (hasFile) {
        const Answer answer = dialogs.AskYesNo(SaveBeforeNewQuestion(file_.Path()));
        if (answer == Answer::Cancel || (answer == Answer::Yes && !Save())) {
            return;
        }
    }
    file_.Forget();
    QTextCursor all(ui_->txtOut->document());
    all.select(QTextCursor::Document);
    all.removeSelectedText();
    ui_->txtOut->Unmark();
    ui_->txtOut->document()->setModified(false);
    Refresh();
}

void frmEdit::Load(const std::string& path) {
    if (AskToSave()) {
        Open(path);
    }
}

void frmEdit::Run() {
    if (workspace_.IsRunning() || !IsSavedToRun()) {
        return;
    }
    ChildWindow* runner = OpenRunner();
    if (!runner) {
        return;
    }
    ui_->txtOut->Unmark();
    // The user may close this window during the run.
    const QPointer<frmEdit> self(this);
    runner->Load(file_.Path());
    runner->Run();
    if (self && runner_) {
        ShowReport(runner_->Export());
    }
}

std::optional<UnsavedWork> frmEdit::Unsaved() const { return UnsavedLines(*ui_->txtOut, file_); }

void frmEdit::PutBack(const KeptText& kept) {
    file_.Resume(kept.path, kept.base);
    ui_->txtOut->SetText(kept.text);
    ui_->txtOut->document()->setModified(true);
    Refresh();
}

bool frmEdit::AskToSave() {
    if (!ui_->txtOut->document()->isModified()) {
        return true;
    }
    return SaveOrGiveUp(kSaveBeforeClosing, [this] { return Save(); });
}

bool frmEdit::Save() { return file_.Path().empty() ? SaveAs() : SaveTo(file_.Path()); }

bool frmEdit::SaveAs() {
    const std::string& path = file_.Path().empty() ? file_.Folder() : file_.Path();
    const auto chosen = workspace_.Services().dialogs.ChooseFileToSave(
        kEditorFilter, path, EditorFilterIndex(file_.Path()));
    return chosen && !chosen->empty() && SaveTo(*chosen);
}

void frmEdit::Delete() {
    const ServiceSet& services = workspace_.Services();
    const std::string path = file_.Path();
    if (path.empty() || services.dialogs.AskYesNo(DeleteFileQuestion(path)) != Answer::Yes) {
        return;
    }
    if (!services.desktop.MoveToTrash(path)) {
        try {
            services.files.DeleteFile(path);
        } catch (const FileError& error) {
            services.dialogs.ShowMessage(std::string(error.what()) + ".", MessageIcon::Warning);
            return;
        }
    }
    file_.Forget();
    // The text stays, and is nowhere else now. What was saved is no longer: turned off and on
    // again, the mark of change outlasts an undo back to it.
    QTextDocument& document = *ui_->txtOut->document();
    document.setModified(false);
    document.setModified(!document.isEmpty());
    Refresh();
}

void frmEdit::InsertReference() {
    if (file_.Path().empty()) {
        InsertText(*ui_->txtOut, QStringLiteral("#"));
        workspace_.Services().dialogs.ShowMessage(kSaveBeforeReferring, MessageIcon::Warning);
        return;
    }
    if (workspace_.IsRunning()) {
        InsertText(*ui_->txtOut, QStringLiteral("#"));  // The browser would hold the run up.
        return;
    }
    const QPointer<frmEdit> self(this);
    const std::string reference = chooser_(workspace_, file_.Folder(), this);
    if (self && !reference.empty()) {
        InsertText(*ui_->txtOut, ToQt(PlainReference(reference)));
    }
}

void frmEdit::ShowCaretLine() {
    ui_->lblCursorAtLine->setText(QString::number(ui_->txtOut->CaretLine()));
}

void frmEdit::TakeReportBack() { ui_->lblReport->hide(); }

void frmEdit::Refresh() {
    const std::string& path = file_.Path();
    QString caption = tr("Table & Script Editor");
    if (!path.empty()) {
        caption += QStringLiteral(" ..\\") + InTitle(path);
    }
    setWindowTitle(caption + QStringLiteral("[*]"));
    setWindowModified(ui_->txtOut->document()->isModified());
    ui_->txtOut->SetLanguage(IsTablePath(path) ? Language::Table : Language::Script);
    ui_->btnDelete->setEnabled(!path.empty());
    ui_->btnRun->setEnabled(!IsPristine());
    ShowCaretLine();
}

void frmEdit::ConnectControls() {
    connect(ui_->btnNew, &QPushButton::clicked, this, &frmEdit::NewFile);
    connect(ui_->btnOpen, &QPushButton::clicked, this, &frmEdit::OpenFile);
    connect(ui_->btnSave, &QPushButton::clicked, this, &frmEdit::Save);
    connect(ui_->btnSaveAs, &QPushButton::clicked, this, &frmEdit::SaveAs);
    connect(ui_->btnDelete, &QPushButton::clicked, this, &frmEdit::Delete);
    connect(ui_->btnRun, &QPushButton::clicked, this, &frmEdit::Run);
    connect(ui_->txtOut, &CodeBox::focused, this,
            [this] { workspace_.SetInsertionTarget(ui_->txtOut); });
    connect(ui_->txtOut, &CodeBox::numberSignTyped, this, &frmEdit::InsertReference);
    connect(ui_->txtOut, &CodeBox::caretMoved, this, &frmEdit::ShowCaretLine);
    connect(ui_->txtOut, &CodeBox::unmarked, this, &frmEdit::TakeReportBack);
    connect(ui_->txtOut->document(), &QTextDocument::modificationChanged, this, &frmEdit::Refresh);
}

void frmEdit::AddShortcuts() {
    constexpr auto kInWindow = Qt::WidgetWithChildrenShortcut;
    new QShortcut(Qt::CTRL | Qt::Key_S, this, this, &frmEdit::Save, kInWindow);
    new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S, this, this, &frmEdit::SaveAs, kInWindow);
    new QShortcut(Qt::Key_F5, this, this, &frmEdit::Run, kInWindow);
}

bool frmEdit::SaveTo(const std::string& path) {
    if (!file_.SaveLines(path, ui_->txtOut->Lines())) {
        return false;
    }
    workspace_.NoteRecentFile(file_.Path());
    ui_->txtOut->document()->setModified(false);
    Refresh();
    return true;
}

void frmEdit::Open(const std::string& path) {
    if (frmEdit* other = OtherEditorOf(path)) {
        if (IsPristine()) {
            CloseUnasked();
        }
        other->BringToFront();
        return;
    }
    Read(path);
}

void frmEdit::Read(const std::string& path) {
    const ServiceSet& services = workspace_.Services();
    try {
        const WaitCursor wait;
        ui_->txtOut->SetText(file_.Read(path));
    } catch (const FileError& error) {
        services.dialogs.ShowMessage(ReadFailure(services.files.NativePath(path), error.what()),
                                     MessageIcon::Warning);
        return;
    }
    workspace_.NoteRecentFile(file_.Path());
    ui_->txtOut->Unmark();
    ui_->txtOut->document()->setModified(false);
    Refresh();
}

frmEdit* frmEdit::OtherEditorOf(const std::string& path) const {
    const auto* frame = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (!frame || !frame->mdiArea()) {
        return nullptr;
    }
    FileSystem& files = workspace_.Services().files;
    files.LookAgain();
    const std::string nativePath = files.NativePath(path);
    for (const QMdiSubWindow* sibling : frame->mdiArea()->subWindowList()) {
        auto* editor = qobject_cast<frmEdit*>(sibling->widget());
        if (editor && editor != this && editor->file_.Path() == nativePath) {
            return editor;
        }
    }
    return nullptr;
}

bool frmEdit::IsPristine() const {
    const QTextDocument& document = *ui_->txtOut->document();
    return file_.Path().empty() && document.isEmpty() && !document.isModified();
}

bool frmEdit::IsSavedToRun() {
    const bool isModified = ui_->txtOut->document()->isModified();
    return (!isModified || SaveOrGiveUp(kSaveBeforeClosing, [this] { return Save(); })) &&
           !file_.Path().empty();
}

ChildWindow* frmEdit::OpenRunner() {
    const char* formName = IsTablePath(file_.Path()) ? form::kSingleList : form::kScript;
    if (runner_ && runner_->FormName() == formName) {
        runner_->BringToFront();
    } else {
        runner_ = workspace_.Open(formName);
    }
    return runner_;
}

/// Marks the line of this file that stopped the run whose output is `output`.
void frmEdit::ShowReport(const std::string& output) {
    FileSystem& files = workspace_.Services().files;
    for (const ScriptReport& report : FindScriptReports(output)) {
        if (files.NativePath(report.path) == file_.Path()) {
            const QString message =
                tr("Line %1: %2").arg(report.line).arg(ToQt(report.description));
            ui_->lblReport->setText(message);
            ui_->lblReport->show();
            ui_->txtOut->MarkLine(report.line, message);
            BringToFront();
            ui_->txtOut->setFocus();
            return;
        }
    }
}

}  // namespace quenloft
