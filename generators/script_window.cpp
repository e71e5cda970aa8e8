#include "generators/script_window.h"

#include <QDropEvent>
#include <QShortcut>

#include "engine/engine.h"
#include "engine/program_title.h"
#include "engine/text_helpers.h"
#include "engine/value.h"
#include "generators/export_text.h"
#include "generators/result_box.h"
#include "generators/script_place.h"
#include "generators/working_folder.h"
#include "platform/dialogs.h"
#include "platform/qt/qt_text.h"
#include "shell/dropped_file.h"
#include "shell/font_settings.h"
#include "shell/form_names.h"
#include "shell/generation_run.h"
#include "shell/workspace.h"
#include "ui_script_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{5505, 2145};

}  // namespace

frmScript::frmScript(Workspace& workspace)
    : ChildWindow(workspace, form::kScript, tr("Script"), kPlace),
      ui_(std::make_unique<Ui::frmScript>()) {
    const QString caption = windowTitle();
    ui_->setupUi(this);
    setWindowTitle(caption);
    setAcceptDrops(true);
    // A dropped file is the window's: the box would take its address as text.
    ui_->txtScript->setAcceptDrops(false);
    workspace_.ApplyFontSettings(*ui_->txtOut, kOutputFont);
    connect(ui_->txtScript, &QLineEdit::textChanged, this, &frmScript::Refresh);
    connect(ui_->txtScript, &QLineEdit::returnPressed, this, &frmScript::Run);
    connect(ui_->btnLoad, &QPushButton::clicked, this, &frmScript::ChooseScript);
    connect(ui_->btnRun, &QPushButton::clicked, this, &frmScript::Run);
    connect(ui_->btnEdit, &QPushButton::clicked, this, &frmScript::Edit);
    new QShortcut(Qt::Key_F5, this, this, &frmScript::Run, Qt::WidgetWithChildrenShortcut);
    Refresh();
}

frmScript::~frmScript() = default;

QSize frmScript::OpeningSize(QSize area) const {
    constexpr QSize kComfortable(700, 520);
    return kComfortable.expandedTo(area * 0.45).boundedTo(area);
}

std::string frmScript::Export() {
    const std::string path = NativeScriptPath();
    return ScriptExportText(ui_->txtOut->Text(), path.substr(path.rfind('/') + 1), ProgramTitle(),
                            DateTimeText());
}

void frmScript::OpenFile() {
    if (!ChooseScript() && !HasScript()) {
        CloseWindow();
    }
}

void frmScript::Load(const std::string& path) {
    setWindowTitle(tr("Script ..\\%1").arg(InTitle(Show(path))));
}

void frmScript::Run() {
    if (!HasScript()) {
        return;
    }
    const GenerationRun run(workspace_, *this);
    if (!run) {
        return;
    }
    ResultBox result(*ui_->txtOut, workspace_.Services());
    result.Show(RunScriptAt(workspace_.Services().engine, folder_, FromQt(ui_->txtScript->text())));
}

void frmScript::dragEnterEvent(QDragEnterEvent* event) { AcceptDroppedFile(*event); }

void frmScript::dropEvent(QDropEvent* event) {
    if (const auto path = AcceptDroppedFile(*event)) {
        Load(*path);
    }
}

bool frmScript::ChooseScript() {
    const ServiceSet& services = workspace_.Services();
    const std::string& folder = folder_.empty() ? services.files.CurrentDirectory() : folder_;
    const auto path =
        services.dialogs.ChooseFileToOpen(kScriptFilter, services.files.NativePath(folder));
    if (path) {
        Show(*path);
        EnterFolder(services.engine, folder_);
        setWindowTitle(
            tr("Script ..\\%1").arg(InTitle(FileName(services.files.AbsolutePath(*path)))));
    }
    return path.has_value();
}

void frmScript::Edit() {
    const std::string path = NativeScriptPath();
    if (ChildWindow* editor = workspace_.Open(form::kEdit)) {
        editor->Load(path);
    }
}

void frmScript::Refresh() {
    ui_->btnRun->setEnabled(HasScript());
    ui_->btnEdit->setEnabled(HasScript() && workspace_.CanOpen(form::kEdit));
}

std::string frmScript::Show(const std::string& path) {
    FileSystem& files = workspace_.Services().files;
    files.LookAgain();
    folder_ = FolderOf(files, path);
    std::string nativePath = files.NativePath(path);
    ui_->txtScript->setText(ToQt(nativePath));
    workspace_.NoteRecentFile(nativePath);
    return nativePath;
}

bool frmScript::HasScript() const { return !ui_->txtScript->text().trimmed().isEmpty(); }

std::string frmScript::NativeScriptPath() const {
    if (!HasScript()) {
        return {};
    }
    FileSystem& files = workspace_.Services().files;
    return files.NativePath(ScriptPath(files, folder_, FromQt(ui_->txtScript->text())));
}

}  // namespace quenloft
