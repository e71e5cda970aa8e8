#include "editors/table/table_window.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QStyle>
#include <cmath>
#include <limits>

#include "editors/shared/find_bar.h"
#include "editors/table/cell_text.h"
#include "editors/table/flex_grid_edit.h"
#include "editors/table/kept_table.h"
#include "editors/table/table_grid.h"
#include "editors/table/table_model.h"
#include "editors/table/table_reading.h"
#include "editors/table/table_search.h"
#include "editors/table/table_writing.h"
#include "engine/program_title.h"
#include "engine/text_helpers.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/qt/qt_text.h"
#include "shell/font_settings.h"
#include "shell/form_names.h"
#include "shell/recovery/kept_text.h"
#include "shell/workspace.h"
#include "ui_table_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{4200, 600};
constexpr char kTableFilter[] = "Table (*.tbl)|*.tbl|All files (*.*)|*.*";

constexpr double kLargestTotal = 2147483647;

void ShowText(QLineEdit& box, const std::string& text) {
    if (const QString shown = ToQt(text); box.text() != shown) {
        box.setText(shown);
    }
}

}  // namespace

frmEdit_Table::frmEdit_Table(Workspace& workspace, ReferenceChooser chooser)
    : ChildWindow(workspace, form::kEditTable, tr("Table Editor"), kPlace),
      ui_(std::make_unique<Ui::frmEdit_Table>()),
      chooseReference_(std::move(chooser)),
      file_(workspace.Services().files, workspace.Services().dialogs),
      model_(new TableModel(style()->standardIcon(QStyle::SP_MessageBoxWarning), this)),
      grdTable_(new TableGrid(*model_, this)),
      tbFgEdit_(grdTable_->findChild<QLineEdit*>("tbFgEdit")),
      search_(std::make_unique<TableSearch>(*model_, *grdTable_)) {
    ui_->setupUi(this);
    PlaceControls();
    ConnectControls();
    AddShortcuts();
    Refresh();
}

frmEdit_Table::~frmEdit_Table() {
    // They go with the base class, and tell of it.
    model_->Undo().disconnect(this);
    grdTable_->selectionModel()->disconnect(this);
}

QSize frmEdit_Table::OpeningSize(QSize area) const {
    constexpr QSize kComfortable(720, 560);
    return kComfortable.expandedTo(area * 0.5).boundedTo(area);
}

std::string frmEdit_Table::Export() {
    grdTable_->CellEditor().CommitAndHide();
    return TablePrintText(model_->Content(), file_.Path(), ProgramTitle());
}

void frmEdit_Table::Copy() {
    if (IsGridFocused() && grdTable_->currentIndex().isValid()) {
        workspace_.Services().clipboard.SetText(grdTable_->SelectedText());
    }
}

void frmEdit_Table::Cut() {
    if (IsGridFocused()) {
        Copy();
        grdTable_->ClearSelected();
    }
}

void frmEdit_Table::Paste() {
    if (IsGridFocused()) {
        grdTable_->PasteText(workspace_.Services().clipboard.GetText());
    }
}

void frmEdit_Table::CopyGridData() {
    grdTable_->CellEditor().CommitAndHide();
    std::vector<CellLine> lines;
    for (const TableRow& row : model_->Content().rows) {
        lines.push_back({row.frequency, row.entry});
    }
    workspace_.Services().clipboard.SetText(FormatCells(lines));
}

void frmEdit_Table::OpenFile() {
    if (!AskToSave()) {
        return;
    }
    const auto path = workspace_.Services().dialogs.ChooseFileToOpen(kTableFilter, file_.Folder());
    if (path) {
        Read(*path);
    }
}

void frmEdit_Table::NewFile() {
    if (AskToSave()) {
        StartNew();
    }
}

void frmEdit_Table::Load(const std::string& path) {
    if (AskToSave()) {
        Read(path);
    }
}

void frmEdit_Table::Run() {
    if (workspace_.IsRunning() || !AskToSave() || file_.Path().empty()) {
        return;
    }
    if (ChildWindow* list = OpenList()) {
        list->Load(file_.Path());
        list->Run();  // Last: this window may be closed meanwhile.
    }
}

std::optional<UnsavedWork> frmEdit_Table::Unsaved() const {
    if (!IsChanged() && !IsTyping()) {
        return std::nullopt;
    }
    const std::uint64_t typed = IsTyping() ? qHash(tbFgEdit_->text()) : 0;
    constexpr int kHalf = 32;
    return UnsavedWork{file_.Path(), file_.Base(), (model_->Revision() << kHalf) ^ typed,
                       [this]() -> std::function<std::string()> {
                           return [content = ContentWithTyped()] { return KeptTable(content); };
                       }};
}

void frmEdit_Table::PutBack(const KeptText& kept) {
    const TableReading inFile = ReadTable(file_.Resume(kept.path, kept.base));
    leftOut_ = inFile.leftOut;
    hasEntryWithoutWeight_ = inFile.hasEntryWithoutWeight;
    model_->SetContent(TableOfKept(kept.text));
    model_->Undo().resetClean();
    grdTable_->GoTo(0, kFrequencyColumn);
    Refresh();
}

bool frmEdit_Table::AskToSave() {
    grdTable_->CellEditor().CommitAndHide();
    if (!IsChanged()) {
        return true;
    }
    const std::string question = "Table not saved!" + std::string(kLineBreak) + "Save table now?";
    return SaveOrGiveUp(question, [this] { return Save(); });
}

bool frmEdit_Table::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::FocusIn:
            // A minimised window gives the focus to the grid while the text box is open.
            if (watched == grdTable_ || watched == tbFgEdit_) {
                const bool inBox = !tbFgEdit_->isHidden();
                workspace_.SetInsertionTarget(inBox ? static_cast<QWidget*>(tbFgEdit_) : grdTable_);
            }
            break;
        case QEvent::Hide:
            // Hidden by itself, not with the whole window.
            if (watched == tbFgEdit_ && tbFgEdit_->isHidden() &&
                workspace_.InsertionTarget() == tbFgEdit_) {
                workspace_.SetInsertionTarget(grdTable_);
            }
            break;
        case QEvent::ShortcutOverride:
            if (IsUndoOfTable(watched, static_cast<const QKeyEvent&>(*event))) {
                event->ignore();
                return true;
            }
            break;
        default:
            break;
    }
    return ChildWindow::eventFilter(watched, event);
}

void frmEdit_Table::New() {
    grdTable_->CellEditor().CommitAndHide();
    const Answer answer =
        workspace_.Services().dialogs.AskYesNo("Do You want to save file " + file_.Name() + " ?");
    if (answer == Answer::Cancel) {
        return;
    }
    if (answer == Answer::No || Save()) {
        StartNew();
    }
}

bool frmEdit_Table::Save() { return file_.Path().empty() ? SaveAs() : SaveTo(file_.Path()); }

bool frmEdit_Table::SaveAs() {
    grdTable_->CellEditor().CommitAndHide();
    if (HasFault()) {
        return false;
    }
    const auto path = workspace_.Services().dialogs.ChooseFileToSave(
        kTableFilter, file_.Path().empty() ? file_.Folder() : file_.Path());
    return path && SaveTo(*path);
}

void frmEdit_Table::TitleEdited() {
    model_->SetField(&TableContent::title, OneLine(FromQt(ui_->txtTitle->text())));
}

void frmEdit_Table::ModifierEdited() {
    model_->SetField(&TableContent::modifier, OneLine(FromQt(ui_->txtModifier->text())));
}

void frmEdit_Table::clsFGEdit_TextKeyDown(QLineEdit* editBox, int KeyCode,
                                          Qt::KeyboardModifiers Shift) {
    const Qt::KeyboardModifiers held = Shift & ~Qt::KeypadModifier;
    const auto instead = [grid = grdTable_](void (TableGrid::*operation)()) {
        grid->CellEditor().SwallowKey();
        (grid->*operation)();
    };
    const bool isEnter = KeyCode == Qt::Key_Return || KeyCode == Qt::Key_Enter;
    if (KeyCode == Qt::Key_NumberSign && !(held & (Qt::ControlModifier | Qt::MetaModifier))) {
        InsertReference(*editBox);
    } else if (KeyCode == Qt::Key_Insert && held == Qt::NoModifier) {
        instead(&TableGrid::InsertRow);
    } else if (isEnter && held == Qt::ControlModifier) {
        instead(&TableGrid::InsertRowBehind);
    } else if (KeyCode == Qt::Key_Up && held == Qt::AltModifier) {
        instead(&TableGrid::MoveSelectedUp);
    } else if (KeyCode == Qt::Key_Down && held == Qt::AltModifier) {
        instead(&TableGrid::MoveSelectedDown);
    }
}

void frmEdit_Table::TellTooLong() {
    workspace_.Services().dialogs.ShowMessage("This entry has more than " +
                                                  std::to_string(clsFlexGridEdit::kMostLetters) +
                                                  " letters. The text editor can edit it.",
                                              MessageIcon::Information);
}

void frmEdit_Table::Refresh() {
    QString caption = tr("Table Editor");
    if (!file_.Path().empty()) {
        caption += " (..\\" + InTitle(file_.Name()) + ")";
    }
    setWindowTitle(caption + "[*]");
    setWindowModified(IsChanged());
    ui_->btnRun->setEnabled(IsChanged() || !file_.Path().empty());
    ui_->lblTotal->setText(StateText());
}

void frmEdit_Table::ShowFields() {
    ShowText(*ui_->txtTitle, model_->Content().title);
    ShowText(*ui_->txtModifier, model_->Content().modifier);
}

void frmEdit_Table::PlaceControls() {
    constexpr int kBelowFields = 2;
    grdTable_->setObjectName(QStringLiteral("grdTable"));
    ui_->layForm->insertWidget(kBelowFields, grdTable_, 1);
    auto* findBar = new FindBar(*search_, this);
    ui_->layForm->insertWidget(kBelowFields + 1, findBar);
    setTabOrder(ui_->txtModifier, grdTable_);
    setTabOrder(grdTable_, findBar);
    setFocusProxy(grdTable_);
    workspace_.ApplyFontSettings(*grdTable_, kTableEditorFont);
    grdTable_->FitToFont();
    for (QLineEdit* box : {ui_->txtTitle, ui_->txtModifier}) {
        box->setMaxLength(std::numeric_limits<int>::max());
        box->setAcceptDrops(false);  // A file's address is no title.
    }
}

void frmEdit_Table::ConnectControls() {
    connect(ui_->btnNew, &QPushButton::clicked, this, &frmEdit_Table::New);
    connect(ui_->btnOpen, &QPushButton::clicked, this, &frmEdit_Table::OpenFile);
    connect(ui_->btnSave, &QPushButton::clicked, this, &frmEdit_Table::Save);
    connect(ui_->btnSaveAs, &QPushButton::clicked, this, &frmEdit_Table::SaveAs);
    connect(ui_->btnRun, &QPushButton::clicked, this, &frmEdit_Table::Run);
    connect(ui_->btnInsert, &QPushButton::clicked, grdTable_, &TableGrid::InsertRow);
    connect(ui_->txtTitle, &QLineEdit::textChanged, this, &frmEdit_Table::TitleEdited);
    connect(ui_->txtModifier, &QLineEdit::textChanged, this, &frmEdit_Table::ModifierEdited);
    connect(&grdTable_->CellEditor(), &clsFlexGridEdit::TextKeyDown, this,
            &frmEdit_Table::clsFGEdit_TextKeyDown);
    // Queued: the window may be closed while the message stands, and the grid is in its key's
    // event.
    connect(grdTable_, &TableGrid::TooLongToEdit, this, &frmEdit_Table::TellTooLong,
            Qt::QueuedConnection);
    connect(grdTable_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &frmEdit_Table::Refresh);
    connect(model_, &TableModel::FieldsChanged, this, &frmEdit_Table::ShowFields);
    connect(model_, &TableModel::SumsChanged, this, &frmEdit_Table::Refresh);
    connect(&model_->Undo(), &QUndoStack::cleanChanged, this, &frmEdit_Table::Refresh);
    for (QWidget* watched :
         std::initializer_list<QWidget*>{grdTable_, tbFgEdit_, ui_->txtTitle, ui_->txtModifier}) {
        watched->installEventFilter(this);
    }
}

void frmEdit_Table::AddShortcuts() {
    const auto onKey = [this](QKeySequence key, auto* receiver, auto handler) {
        new QShortcut(key, this, receiver, handler, Qt::WidgetWithChildrenShortcut);
    };
    onKey(Qt::CTRL | Qt::Key_S, this, &frmEdit_Table::Save);
    onKey(Qt::CTRL | Qt::SHIFT | Qt::Key_S, this, &frmEdit_Table::SaveAs);
    onKey(Qt::Key_F5, this, &frmEdit_Table::Run);
    onKey(Qt::CTRL | Qt::Key_Z, grdTable_, &TableGrid::Undo);
    onKey(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, grdTable_, &TableGrid::Redo);
}

void frmEdit_Table::StartNew() {
    file_.Forget();
    leftOut_.clear();
    hasEntryWithoutWeight_ = false;
    model_->SetContent({});
    Refresh();
    ui_->txtTitle->setFocus();
}

void frmEdit_Table::Read(const std::string& path) {
    Dialogs& dialogs = workspace_.Services().dialogs;
    const std::string message =
        "Errors in table " + workspace_.Services().files.NativePath(path) + std::string(kLineBreak);
    TableReading reading;
    try {
        reading = ReadTable(file_.Read(path));
    } catch (const FileError& error) {
        dialogs.ShowMessage(message + error.what() + ".", MessageIcon::Warning);
        return;
    }
    workspace_.NoteRecentFile(file_.Path());
    leftOut_ = std::move(reading.leftOut);
    hasEntryWithoutWeight_ = reading.hasEntryWithoutWeight;
    model_->SetContent(std::move(reading.content));
    grdTable_->GoTo(0, kFrequencyColumn);
    Refresh();
    // One box, however many lines are bad.
    if (!reading.faults.empty()) {
        dialogs.ShowMessage(message + reading.faults, MessageIcon::Warning);
    }
}

bool frmEdit_Table::SaveTo(const std::string& path) {
    grdTable_->CellEditor().CommitAndHide();
    if (HasFault() || !AllowsZeros()) {
        return false;
    }
    const bool isSameFile = workspace_.Services().files.NativePath(path) == file_.Path();
    const bool losesText = !leftOut_.empty() || hasEntryWithoutWeight_;
    if (!file_.SaveWhole(path, TableFileText(model_->Content(), model_->Sums()),
                         isSameFile && losesText ? Former::Keep : Former::Replace)) {
        return false;
    }
    workspace_.NoteRecentFile(file_.Path());
    leftOut_.clear();
    hasEntryWithoutWeight_ = false;
    model_->Undo().setClean();
    Refresh();
    return true;
}

bool frmEdit_Table::HasFault() {
    const auto fault = FirstFault(model_->Content(), model_->Sums());
    if (!fault) {
        return false;
    }
    workspace_.Services().dialogs.ShowMessage("The table cannot be saved. " + fault->sentence,
                                              MessageIcon::Warning);
    switch (fault->place) {
        case TableFault::Place::Title:
            ui_->txtTitle->setFocus();
            break;
        case TableFault::Place::Modifier:
            ui_->txtModifier->setFocus();
            break;
        case TableFault::Place::Row:
            grdTable_->GoTo(static_cast<int>(fault->row), kFrequencyColumn);
            grdTable_->setFocus();
            break;
    }
    return true;
}

bool frmEdit_Table::AllowsZeros() {
    if (!hasEntryWithoutWeight_) {
        return true;
    }
    const std::vector<std::size_t> zeros = ZeroRows(model_->Content());
    if (zeros.empty()) {
        return true;
    }
    grdTable_->GoTo(static_cast<int>(zeros.front()), kFrequencyColumn);
    const std::size_t more = zeros.size() - 1;
    std::string question = NameOfRow(model_->Content(), zeros.front());
    if (more == 0) {
        question +=
            " was an entry that no roll picks. With the weight 0 it becomes another line of the "
            "entry above.";
    } else {
        question += " and " + std::to_string(more) + (more == 1 ? " more row" : " more rows") +
                    " were entries that no roll picks. With the weight 0 they become further lines "
                    "of the entries above.";
    }
    return workspace_.Services().dialogs.AskYesNo(question + " Save the table so?") == Answer::Yes;
}

bool frmEdit_Table::IsChanged() const { return !model_->Undo().isClean(); }

bool frmEdit_Table::IsTyping() const {
    const QModelIndex cell = grdTable_->CellEditor().EditedCell();
    return cell.isValid() && cell.data(Qt::EditRole).toString() != tbFgEdit_->text();
}

TableContent frmEdit_Table::ContentWithTyped() const {
    TableContent content = model_->Content();
    if (IsTyping()) {
        const QModelIndex cell = grdTable_->CellEditor().EditedCell();
        CellText(content.rows[static_cast<std::size_t>(cell.row())], cell.column()) =
            OneLine(FromQt(tbFgEdit_->text()));
    }
    return content;
}

bool frmEdit_Table::IsGridFocused() const { return focusWidget() == grdTable_; }

bool frmEdit_Table::IsUndoOfTable(const QObject* watched, const QKeyEvent& key) const {
    const bool isUndo = key.matches(QKeySequence::Undo);
    if (!isUndo && !key.matches(QKeySequence::Redo)) {
        return false;
    }
    if (watched == tbFgEdit_) {
        const bool hasHistory =
            tbFgEdit_->isUndoAvailable() || (!isUndo && tbFgEdit_->isRedoAvailable());
        return !hasHistory;
    }
    return watched == ui_->txtTitle || watched == ui_->txtModifier;
}

ChildWindow* frmEdit_Table::OpenList() {
    if (list_) {
        list_->BringToFront();
    } else {
        list_ = workspace_.Open(form::kSingleList);
    }
    return list_;
}

void frmEdit_Table::InsertReference(QLineEdit& editBox) {
    if (file_.Path().empty()) {
        workspace_.Services().dialogs.ShowMessage(
            "In order to display the full reference list, the table must be saved first!",
            MessageIcon::Warning);
        return;
    }
    if (workspace_.IsRunning()) {
        return;  // The browser would hold the run up.
    }
    // The reference, its marks included, comes in place of the typed one; cancelled, nothing does.
    grdTable_->CellEditor().SwallowKey();
    // Copies: this window may be gone when the user has chosen.
    const QPointer<QLineEdit> box = &editBox;
    const ReferenceChooser choose = chooseReference_;
    QString reference = ToQt(choose(workspace_, file_.Folder(), this));
    if (box && !reference.isEmpty()) {
        box->insert(reference.remove(u'{').remove(u'}'));
    }
}

QString frmEdit_Table::StateText() const {
    const int rows = model_->rowCount();
    const int row = grdTable_->currentIndex().row();
    QString text = row >= 0 ? tr("Row %1 of %2.").arg(row + 1).arg(rows) : tr("%1 rows.").arg(rows);
    if (const double total = model_->Sums().Total(); std::abs(total) <= kLargestTotal) {
        text += tr(" Total: %1.").arg(total, 0, 'f', 0);
    }
    if (!leftOut_.empty()) {
        QStringList parts;
        for (const std::string& part : leftOut_) {
            parts += ToQt(part);
        }
        text += tr(" Saving leaves out: %1; the former file stays as %2~.")
                    .arg(parts.join(", "), ToQt(file_.Name()));
    }
    return text;
}

}  // namespace quenloft
