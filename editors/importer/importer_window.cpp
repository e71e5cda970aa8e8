#include "editors/importer/importer_window.h"

#include <QShortcut>
#include <QTextBlock>

#include "editors/importer/import_text.h"
#include "editors/shared/unsaved_lines.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/qt/qt_text.h"
#include "shell/document_text.h"
#include "shell/font_settings.h"
#include "shell/form_names.h"
#include "shell/recovery/kept_text.h"
#include "shell/wait_cursor.h"
#include "shell/workspace.h"
#include "ui_importer_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{3000, 1500};

constexpr char kFilter[] = "Table,Scripts (*.tbl,*.spt)|*.tbl;*.spt|All files (*.*)|*.*";

std::string SaveQuestion(const std::string& path) {
    return path.empty() ? "Do You want to save the text as a table ?"
                        : "Do You want to save file " + path + " ?";
}

// Every line of a file is shown with its end, the last one too.
std::string WithLastEnd(std::string lines) {
    if (!lines.empty() && !lines.ends_with('\n')) {
        lines += '\n';
    }
    return lines;
}

// A line too long for one block goes on in the next.
QTextBlock LastLine(const QTextDocument& document) {
    QTextBlock block = document.lastBlock();
    while (IsContinued(block)) {
        block = block.previous();
    }
    return block;
}

}  // namespace

frmImportTable::frmImportTable(Workspace& workspace)
    : ChildWindow(workspace, form::kImportTable, {}, kPlace),
      ui_(std::make_unique<Ui::frmImportTable>()),
      file_(workspace.Services().files, workspace.Services().dialogs) {
    ui_->setupUi(this);
    ui_->txtOut->setFocus();
    ui_->txtOut->installEventFilter(this);
    workspace_.ApplyFontSettings(*ui_->txtOut, kScriptEditorFont);
    connect(ui_->btnNew, &QPushButton::clicked, this, &frmImportTable::NewFile);
    connect(ui_->btnOpen, &QPushButton::clicked, this, &frmImportTable::OpenFile);
    connect(ui_->btnSave, &QPushButton::clicked, this, &frmImportTable::Import);
    connect(ui_->btnSaveAs, &QPushButton::clicked, this, &frmImportTable::ImportAs);
    connect(ui_->txtOut, &QPlainTextEdit::textChanged, this, &frmImportTable::Refresh);
    connect(ui_->txtOut->document(), &QTextDocument::modificationChanged, this,
            &frmImportTable::Refresh);
    new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_S), this, this, &frmImportTable::Import,
                  Qt::WidgetWithChildrenShortcut);
    Refresh();
}

frmImportTable::~frmImportTable() = default;

QSize frmImportTable::OpeningSize(QSize area) const {
    constexpr QSize kComfortable(560, 440);
    return kComfortable.expandedTo(area * 0.4).boundedTo(area);
}

void frmImportTable::NewFile() {
    if (!AskAboutFile()) {
        return;
    }
    file_.Forget();
    holdsLines_ = false;
    // Unlike SetText this can be undone.
    ui_->txtOut->selectAll();
    ui_->txtOut->textCursor().removeSelectedText();
    ui_->txtOut->document()->setModified(false);
    Refresh();
    ui_->txtOut->setFocus();
}

void frmImportTable::OpenFile() {
    if (!AskToSave()) {
        return;
    }
    if (const auto path = workspace_.Services().dialogs.ChooseFileToOpen(kFilter, file_.Folder())) {
        Load(*path);
    }
}

void frmImportTable::Load(const std::string& path) {
    try {
        const WaitCursor wait;
        ui_->txtOut->SetText(WithLastEnd(file_.Read(path)));
        ui_->txtOut->document()->setModified(false);
        holdsLines_ = true;
    } catch (const FileError& error) {
        workspace_.Services().dialogs.ShowMessage(
            "Errors in table " + path + "\r\n" + error.what() + ".", MessageIcon::Warning);
    }
    Refresh();
}

std::optional<UnsavedWork> frmImportTable::Unsaved() const {
    return UnsavedLines(*ui_->txtOut, file_);
}

void frmImportTable::PutBack(const KeptText& kept) {
    file_.Resume(kept.path, kept.base);
    ui_->txtOut->SetText(kept.text);
    ui_->txtOut->document()->setModified(true);
    // Whether the file is a table made here is not known: as the one that was opened it is kept.
    holdsLines_ = !kept.path.empty();
    Refresh();
}

bool frmImportTable::AskToSave() {
    return !ui_->txtOut->document()->isModified() ||
           SaveOrGiveUp(SaveQuestion(file_.Path()), [this] { return Import(); });
}

bool frmImportTable::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->txtOut && event->type() == QEvent::FocusIn) {
        workspace_.SetInsertionTarget(ui_->txtOut);
    }
    return false;
}

bool frmImportTable::Import() {
    return file_.Path().empty() ? ImportAs() : ImportInto(file_.Path());
}

bool frmImportTable::ImportAs() {
    const auto path = workspace_.Services().dialogs.ChooseFileToSave(
        kFilter, file_.Path().empty() ? file_.Folder() : file_.Path());
    return path && ImportInto(*path);
}

void frmImportTable::Refresh() {
    const QString name = InTitle(file_.Name());
    const QString caption = tr("Table Importer");
    setWindowTitle((name.isEmpty() ? caption : caption + QStringLiteral(" ..\\") + name) +
                   QStringLiteral("[*]"));
    setWindowModified(ui_->txtOut->document()->isModified());
    const QString hint = Hint();
    ui_->lblHint->setText(hint);
    ui_->lblHint->setVisible(!hint.isEmpty());
}

bool frmImportTable::ImportInto(const std::string& path) {
    const ServiceSet& services = workspace_.Services();
    const std::string title =
        services.dialogs.AskText("Enter table name", "", "Table Import").value_or("");
    const bool isOpenedFile = holdsLines_ && services.files.NativePath(path) == file_.Path();
    const std::string table = TableOfLines(title, ui_->txtOut->Text());
    if (!file_.SaveWhole(path, table, isOpenedFile ? Former::Keep : Former::Replace)) {
        return false;
    }
    workspace_.NoteRecentFile(file_.Path());
    holdsLines_ = false;
    ui_->txtOut->document()->setModified(false);
    Refresh();
    return true;
}

// About a text that has a file the question comes whether it was changed or not: importing is what
// makes a table of a file that was opened.
bool frmImportTable::AskAboutFile() {
    if (file_.Path().empty()) {
        return AskToSave();
    }
    const Answer answer = workspace_.Services().dialogs.AskYesNo(SaveQuestion(file_.Path()));
    return answer == Answer::No || (answer == Answer::Yes && Import());
}

QString frmImportTable::Hint() const {
    const QTextDocument& document = *ui_->txtOut->document();
    const QTextBlock last = LastLine(document);
    const bool isOnly = last == document.firstBlock();
    if (document.isEmpty() || last.length() == 1 || !IsDroppedAtEnd(FromQt(last.text()), isOnly)) {
        return {};
    }
    return isOnly ? tr("A single line becomes an entry when Enter ends it.")
                  : tr("A last line of one character becomes an entry when Enter ends it.");
}

}  // namespace quenloft
