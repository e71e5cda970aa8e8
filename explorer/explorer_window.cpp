#include "explorer/explorer_window.h"

#include <QResizeEvent>
#include <QShortcut>

#include "engine/engine.h"
#include "engine/program_title.h"
#include "engine/text_helpers.h"
#include "engine/value.h"
#include "explorer/explorer_text.h"
#include "explorer/library_model.h"
#include "explorer/popup.h"
#include "explorer/rounds.h"
#include "explorer/tree_memory.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/qt/qt_text.h"
#include "shell/append_result.h"
#include "shell/font_settings.h"
#include "shell/form_names.h"
#include "shell/generation_run.h"
#include "shell/workspace.h"
#include "ui_explorer_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{0, 0};
// Narrower than this, tree and output stand one above the other.
constexpr int kSideBySideWidth = 460;

std::string Today() {
    constexpr std::size_t kDateLength = 10;
    return DateTimeText().substr(0, kDateLength);
}

}  // namespace

frmExplorer::frmExplorer(Workspace& workspace)
    : ChildWindow(workspace, form::kExplorer, tr("Library Explorer"), kPlace),
      ui_(std::make_unique<Ui::frmExplorer>()),
      pictures_(MakeCommandPictures()),
      model_(new LibraryModel(
          workspace.Services().files,
          [&engine = workspace.Services().engine](const std::string& path) {
              return engine.ReadTableTitle(path);
          },
          this)) {
    ui_->setupUi(this);
    ui_->splitter->setSizes({2000, 3000});  // In proportion.
    setFocusProxy(ui_->treExplorer);
    ui_->treExplorer->setModel(model_);
    treeMemory_ = std::make_unique<TreeMemory>(*ui_->treExplorer, *model_);
    workspace_.ApplyFontSettings(*ui_->txtOut, kOutputFont);
    workspace_.ApplyFontSettings(*ui_->treExplorer, kListsFont);
    SetIcons();
    ConnectControls();
    AddShortcuts();
    RefreshTree();
}

frmExplorer::~frmExplorer() = default;

QSize frmExplorer::OpeningSize(QSize area) const {
    constexpr QSize kComfortable(820, 620);
    return kComfortable.expandedTo(area * 0.6).boundedTo(area);
}

std::string frmExplorer::Export() {
    const std::string file = SelectedFile();
    return ExportText(ui_->txtOut->Text(),
                      file.empty() ? file : workspace_.Services().files.NativePath(file),
                      ProgramTitle(), Today());
}

void frmExplorer::Run() {
    if (model_->IsFile(Selected())) {
        RunFile(SelectedItem());
    }
}

void frmExplorer::resizeEvent(QResizeEvent* event) {
    ui_->splitter->setOrientation(event->size().width() < kSideBySideWidth ? Qt::Vertical
                                                                           : Qt::Horizontal);
    ChildWindow::resizeEvent(event);
}

void frmExplorer::ConnectControls() {
    connect(ui_->treExplorer, &QTreeView::clicked, this, &frmExplorer::RunClicked);
    connect(ui_->treExplorer, &QTreeView::customContextMenuRequested, this,
            &frmExplorer::ShowPopup);
    connect(ui_->treExplorer->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &frmExplorer::Refresh);
    connect(model_, &QAbstractItemModel::modelReset, this, &frmExplorer::Refresh);
    connect(ui_->chkDisplayHiddenFiles, &QCheckBox::toggled, this, &frmExplorer::RefreshTree);
    connect(ui_->btnRun, &QPushButton::clicked, this, &frmExplorer::Run);
    connect(ui_->btnRunAsNew, &QPushButton::clicked, this, &frmExplorer::RunAsNew);
    connect(ui_->btnEdit, &QPushButton::clicked, this, &frmExplorer::Edit);
    connect(ui_->btnDelete, &QPushButton::clicked, this, &frmExplorer::Delete);
    connect(ui_->btnNewDirectory, &QPushButton::clicked, this, &frmExplorer::NewDirectory);
    connect(ui_->btnRefresh, &QPushButton::clicked, this, &frmExplorer::RefreshTree);
}

void frmExplorer::AddShortcuts() {
    const auto inTree = [this](QKeySequence key, void (frmExplorer::*handler)()) {
        new QShortcut(key, ui_->treExplorer, this, handler, Qt::WidgetShortcut);
    };
    inTree(Qt::Key_Return, &frmExplorer::EnterPressed);
    inTree(Qt::Key_Enter, &frmExplorer::EnterPressed);
    inTree(Qt::Key_Delete, &frmExplorer::Delete);
    new QShortcut(Qt::Key_F5, this, this, &frmExplorer::Run, Qt::WidgetWithChildrenShortcut);
    new QShortcut(Qt::CTRL | Qt::Key_R, this, this, &frmExplorer::RefreshTree,
                  Qt::WidgetWithChildrenShortcut);
}

void frmExplorer::SetIcons() {
    model_->SetIcon(ItemKind::Folder, FolderIcon());
    model_->SetIcon(ItemKind::Table, TableIcon());
    model_->SetIcon(ItemKind::Script, ScriptIcon());
    ui_->btnRun->setIcon(pictures_.pctRun);
    ui_->btnRunAsNew->setIcon(pictures_.pctRunAsNew);
    ui_->btnEdit->setIcon(pictures_.pctEdit);
    ui_->btnDelete->setIcon(pictures_.pctDelete);
    ui_->btnNewDirectory->setIcon(pictures_.pctNewDirectory);
    ui_->btnRefresh->setIcon(pictures_.pctRefresh);
    setWindowIcon(FolderIcon());
}

void frmExplorer::RunClicked(const QModelIndex& index) {
    if (model_->IsFile(index)) {
        Run();
    }
}

void frmExplorer::EnterPressed() {
    const QModelIndex index = Selected();
    if (model_->IsFile(index)) {
        Run();
    } else if (index.isValid()) {
        ui_->treExplorer->setExpanded(index, !ui_->treExplorer->isExpanded(index));
    }
}

void frmExplorer::RunAsNew() {
    if (!model_->IsFile(Selected())) {
        return;
    }
    const std::string path = SelectedFile();
    if (ChildWindow* runner = workspace_.Open(RunnerForm())) {
        runner->Load(path);
        // Queued: closing this window during the run must not delete it under this handler.
        QMetaObject::invokeMethod(
            runner, [runner] { runner->Run(); }, Qt::QueuedConnection);
    }
}

void frmExplorer::Edit() {
    if (!model_->IsFile(Selected())) {
        return;
    }
    const std::string path = SelectedFile();
    if (ChildWindow* editor = workspace_.Open(EditorForm())) {
        editor->Load(path);
    }
}

void frmExplorer::Delete() {
    if (!model_->IsFile(Selected())) {
        return;
    }
    const ServiceSet& services = workspace_.Services();
    const LibraryItem file = SelectedItem();
    const std::string nativePath = services.files.NativePath(file.path);
    if (services.dialogs.AskYesNo(DeleteQuestion(file.label, nativePath)) != Answer::Yes) {
        return;
    }
    if (!services.desktop.MoveToTrash(nativePath)) {
        try {
            services.files.DeleteFile(file.path);
        } catch (const FileError& error) {
            services.dialogs.ShowMessage(std::string(error.what()) + ".", MessageIcon::Warning);
        }
    }
    RefreshTree();
}

void frmExplorer::NewDirectory() {
    QModelIndex folder = Selected();
    if (!folder.isValid()) {
        return;
    }
    if (model_->IsFile(folder)) {
        folder = folder.parent();
    }
    const ServiceSet& services = workspace_.Services();
    const QPersistentModelIndex parent(folder);
    const auto name = services.dialogs.AskText("Enter new directory name", "New Folder");
    if (!name || name->empty() || !parent.isValid()) {
        return;
    }
    const std::string path = PathInFolder(model_->PathOf(parent), *name);
    try {
        services.files.CreateFolder(path);
    } catch (const FileError& error) {
        services.dialogs.ShowMessage("Error i directory popup!", MessageIcon::Warning);
        services.dialogs.ShowMessage(std::string(error.what()) + ".", MessageIcon::Warning);
        return;
    }
    treeMemory_->Remember();
    model_->ReloadFolder(parent);
    ui_->treExplorer->expand(parent);
    ui_->treExplorer->setCurrentIndex(parent);
    treeMemory_->SelectWhenThere(path);
}

void frmExplorer::RefreshTree() {
    FileSystem& files = workspace_.Services().files;
    const std::string library = workspace_.LibraryPath();
    treeMemory_->Remember();
    files.LookAgain();
    const bool exists = files.FolderExists(library);
    model_->Reload(exists ? library : std::string(), ui_->chkDisplayHiddenFiles->isChecked());
    ui_->treExplorer->expand(model_->index(0, 0, {}));
    const std::string failure =
        exists ? model_->RootFailure() : std::string("the folder does not exist");
    if (!failure.empty()) {
        missingText_ = MissingLibraryText(files.NativePath(library), failure);
        ui_->txtOut->SetText(missingText_);
    } else if (!missingText_.empty() && ui_->txtOut->Text() == missingText_) {
        missingText_.clear();
        ui_->txtOut->SetText("");
    }
    Refresh();
}

void frmExplorer::ShowPopup(const QPoint& place) {
    const QModelIndex index = ui_->treExplorer->indexAt(place);
    if (!index.isValid()) {
        return;
    }
    ui_->treExplorer->setCurrentIndex(index);
    const QPoint onScreen = ui_->treExplorer->viewport()->mapToGlobal(place);
    clsPopup popup;
    try {
        BuildPopupMenu(popup);
    } catch (const std::exception&) {
        workspace_.Services().dialogs.ShowMessage("Error in building popupsmenues!",
                                                  MessageIcon::Warning);
        return;
    }
    const QString key = popup.PopupMenu(*this, onScreen);
    if (model_->IsFile(index)) {
        objRightClickPopup_ItemClick(key);
    } else {
        objRightClickDirectoryPopup_ItemClick(key);
    }
}

void frmExplorer::objRightClickPopup_ItemClick(const QString& key) {
    const struct {
        const char* key;
        void (frmExplorer::*action)();
    } items[] = {
        {"Run", &frmExplorer::Run},
        {"Run As New Instance", &frmExplorer::RunAsNew},
        {"Edit", &frmExplorer::Edit},
        {"Delete", &frmExplorer::Delete},
        {"Refresh", &frmExplorer::RefreshTree},
        {"Create new directory", &frmExplorer::NewDirectory},
    };
    for (const auto& item : items) {
        if (key == QLatin1String(item.key)) {
            (this->*item.action)();
        }
    }
}

void frmExplorer::objRightClickDirectoryPopup_ItemClick(const QString& key) {
    if (key == QLatin1String("Create new directory")) {
        NewDirectory();
    }
}

void frmExplorer::Refresh() {
    const bool isNode = Selected().isValid();
    const bool isFile = model_->IsFile(Selected());
    ui_->btnRun->setEnabled(isFile);
    ui_->btnRunAsNew->setEnabled(isFile && workspace_.CanOpen(RunnerForm()));
    ui_->btnEdit->setEnabled(isFile && workspace_.CanOpen(EditorForm()));
    ui_->btnDelete->setEnabled(isFile);
    ui_->btnNewDirectory->setEnabled(isNode);
}

void frmExplorer::RunFile(const LibraryItem& file) {
    const GenerationRun run(workspace_, *this);
    if (!run) {
        return;
    }
    const ServiceSet& services = workspace_.Services();
    services.engine.ResetGeneration();
    EnterFolderOf(file.path);
    ui_->txtOut->setPlaceholderText({});
    ui_->txtOut->SetText("");
    RunRounds(RoundsFromText(FromQt(ui_->txtTimes->text())),
              {.roll =
                   [&] {
                       return file.kind == ItemKind::Table
                                  ? services.engine.RollTable(file.path)
                                  : services.engine.RunScript(file.path, true);
                   },
               .isAborted = [&] { return services.engine.IsAborted(); },
               .yield = [&] { services.host.Yield(); },
               .append =
                   [&](std::string_view text) {
                       return AppendResult(*ui_->txtOut, text, services.engine, services.host);
                   }});
}

void frmExplorer::EnterFolderOf(const std::string& path) {
    try {
        workspace_.Services().files.ChangeDirectory(DirectoryPart(path));
    } catch (const FileError&) {
        // The folder went away since it was listed: the engine says so in the result.
    }
}

void frmExplorer::BuildPopupMenu(clsPopup& popup) {
    const auto add = [&popup](const char* key, const QIcon& icon, bool isEnabled) {
        const QString caption = QString::fromLatin1(key);
        popup.AddItem(caption, caption, 0, isEnabled ? 0 : kDisabledItem, icon, icon);
    };
    const auto divide = [&popup](const char* key) {
        popup.AddItem(QString::fromLatin1(key), {}, kSeparatorItem, 0, {}, {});
    };
    if (model_->IsFile(Selected())) {
        add("Run", pictures_.pctRun, true);
        add("Run As New Instance", pictures_.pctRunAsNew, workspace_.CanOpen(RunnerForm()));
        divide("Divider1");
        add("Edit", pictures_.pctEdit, workspace_.CanOpen(EditorForm()));
        add("Delete", pictures_.pctDelete, true);
        divide("Divider2");
        add("Refresh", pictures_.pctRefresh, true);
    }
    add("Create new directory", pictures_.pctNewDirectory, true);
}

QModelIndex frmExplorer::Selected() const { return ui_->treExplorer->currentIndex(); }

LibraryItem frmExplorer::SelectedItem() const {
    const QModelIndex index = Selected();
    return {model_->KindOf(index), model_->PathOf(index), model_->LabelOf(index)};
}

std::string frmExplorer::SelectedFile() const {
    return model_->IsFile(Selected()) ? model_->PathOf(Selected()) : std::string();
}

const char* frmExplorer::RunnerForm() const {
    if (!model_->IsFile(Selected())) {
        return "";
    }
    return model_->KindOf(Selected()) == ItemKind::Table ? form::kSingleList : form::kScript;
}

const char* frmExplorer::EditorForm() const {
    if (!model_->IsFile(Selected())) {
        return "";
    }
    return model_->KindOf(Selected()) == ItemKind::Table ? form::kEditTable : form::kEdit;
}

}  // namespace quenloft
