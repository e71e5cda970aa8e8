#include "generators/list_single_window.h"

#include <QDropEvent>
#include <QShortcut>

#include "engine/engine.h"
#include "engine/program_title.h"
#include "engine/text_helpers.h"
#include "engine/value.h"
#include "generators/export_text.h"
#include "generators/result_box.h"
#include "generators/working_folder.h"
#include "platform/dialogs.h"
#include "platform/qt/qt_text.h"
#include "shell/dropped_file.h"
#include "shell/font_settings.h"
#include "shell/form_names.h"
#include "shell/generation_run.h"
#include "shell/workspace.h"
#include "ui_list_single_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{5505, 1035};

}  // namespace

frmListSingle::frmListSingle(Workspace& workspace)
    : ChildWindow(workspace, form::kSingleList, tr("Single List"), kPlace),
      ui_(std::make_unique<Ui::frmListSingle>()) {
    const QString caption = windowTitle();
    ui_->setupUi(this);
    setWindowTitle(caption);
    setAcceptDrops(true);
    workspace_.ApplyFontSettings(*ui_->txtOut, kOutputFont);
    connect(ui_->btnGenerate, &QPushButton::clicked, this, &frmListSingle::Run);
    connect(ui_->btnLoad, &QPushButton::clicked, this, &frmListSingle::ChooseTable);
    connect(ui_->btnEdit, &QPushButton::clicked, this, &frmListSingle::Edit);
    new QShortcut(Qt::Key_F5, this, this, &frmListSingle::Run, Qt::WidgetWithChildrenShortcut);
    Refresh();
}

frmListSingle::~frmListSingle() = default;

QSize frmListSingle::OpeningSize(QSize area) const {
    constexpr QSize kComfortable(640, 460);
    return kComfortable.expandedTo(area * 0.4).boundedTo(area);
}

std::string frmListSingle::Export() {
    const std::string path =
        slot_.IsEmpty() ? std::string() : workspace_.Services().files.NativePath(slot_.path);
    return TableExportText(slot_.IsEmpty() ? kEmptySlotTitle : slot_.title, ui_->txtOut->Text(),
                           path, ProgramTitle(), DateTimeText());
}

void frmListSingle::OpenFile() {
    if (!ChooseTable() && slot_.IsEmpty()) {
        CloseWindow();
    }
}

void frmListSingle::Load(const std::string& path) {
    Bind(BindTable(workspace_.Services().engine, path));
    workspace_.NoteRecentFile(slot_.path);
}

void frmListSingle::Run() {
    const GenerationRun run(workspace_, *this);
    if (!run) {
        return;
    }
    // A copy: another table may be bound while this one is rolled.
    const TableSlot table = slot_;
    ResultBox result(*ui_->txtOut, workspace_.Services());
    result.Show(RollSlot(workspace_.Services().engine, table));
}

void frmListSingle::dragEnterEvent(QDragEnterEvent* event) { AcceptDroppedFile(*event); }

void frmListSingle::dropEvent(QDropEvent* event) {
    if (const auto path = AcceptDroppedFile(*event)) {
        Load(*path);
    }
}

bool frmListSingle::ChooseTable() {
    const ServiceSet& services = workspace_.Services();
    const std::string& folder = slot_.IsEmpty() ? services.files.CurrentDirectory() : slot_.folder;
    const auto path =
        services.dialogs.ChooseFileToOpen(kTableFilter, services.files.NativePath(folder));
    if (path) {
        Load(*path);
        EnterFolder(services.engine, slot_.folder);
    }
    return path.has_value();
}

void frmListSingle::Edit() {
    const std::string path = slot_.path;
    if (ChildWindow* editor = workspace_.Open(form::kEditTable)) {
        path.empty() ? editor->NewFile() : editor->Load(path);
    }
}

void frmListSingle::Bind(TableSlot slot) {
    slot_ = std::move(slot);
    setWindowTitle(tr("Single List %1").arg(InTitle(ShownTitle(slot_.title))));
    Refresh();
}

void frmListSingle::Refresh() {
    ui_->btnGenerate->SetTitle(ToQt(slot_.IsEmpty() ? kEmptySlotTitle : slot_.title));
    ui_->btnEdit->setEnabled(workspace_.CanOpen(form::kEditTable));
}

}  // namespace quenloft
