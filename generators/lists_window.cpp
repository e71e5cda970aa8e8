#include "generators/lists_window.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

#include "engine/engine.h"
#include "engine/program_title.h"
#include "engine/value.h"
#include "generators/export_text.h"
#include "generators/result_box.h"
#include "generators/slot_row.h"
#include "generators/working_folder.h"
#include "platform/dialogs.h"
#include "platform/qt/qt_text.h"
#include "shell/font_settings.h"
#include "shell/form_names.h"
#include "shell/generation_run.h"
#include "shell/text_box.h"
#include "shell/workspace.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{5505, 7260};

}  // namespace

frmLists::frmLists(Workspace& workspace)
    : ChildWindow(workspace, form::kLists, tr("Lists"), kPlace), scrollArea_(new QScrollArea) {
    shownSlot_.fill(kNone);
    auto* content = new QWidget;
    groups_ = new QGridLayout(content);
    constexpr int kBetweenGroups = 14;
    groups_->setSpacing(kBetweenGroups);
    for (int box = 0; box < kBoxes; ++box) {
        pneGroup_[box] = MakeGroup(box);
    }
    scrollArea_->setWidget(content);
    scrollArea_->setWidgetResizable(true);
    scrollArea_->setFrameShape(QFrame::NoFrame);
    scrollArea_->setFocusPolicy(Qt::NoFocus);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins({});
    whole->addWidget(scrollArea_);
    for (int slot = 0; slot < kSlots; ++slot) {
        ConnectSlot(slot);
    }
    new QShortcut(Qt::Key_F5, this, this, &frmLists::Run, Qt::WidgetWithChildrenShortcut);

    const ServiceSet& services = workspace_.Services();
    page_.Restore(services.engine, services.profile);
    ArrangeGroups();
    Refresh();
}

QSize frmLists::OpeningSize(QSize area) const {
    constexpr QSize kComfortable(1150, 680);
    return kComfortable.expandedTo(area * 0.8).boundedTo(area);
}

std::string frmLists::Export() {
    const TableSlot& slot = page_.At(lastSlot_);
    const std::string path =
        slot.IsEmpty() ? std::string() : workspace_.Services().files.NativePath(slot.path);
    return TableExportText(slot.IsEmpty() ? kEmptySlotTitle : slot.title,
                           txtOut_[lastSlot_ / kSlotsToABox]->Text(), path, ProgramTitle(),
                           DateTimeText());
}

void frmLists::Run() { Generate(lastSlot_); }

QPlainTextEdit* frmLists::OutputBoxOf(const QWidget& control) {
    for (int slot = 0; slot < kSlots; ++slot) {
        if (rows_[slot]->Holds(control)) {
            return txtOut_[slot / kSlotsToABox];
        }
    }
    return nullptr;
}

void frmLists::SaveState() {
    const ServiceSet& services = workspace_.Services();
    page_.Save(services.files, services.profile);
}

void frmLists::resizeEvent(QResizeEvent* event) {
    ChildWindow::resizeEvent(event);
    ArrangeGroups();
}

QWidget* frmLists::MakeGroup(int box) {
    auto* group = new QWidget;
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins({});
    for (int slot = box * kSlotsToABox; slot < (box + 1) * kSlotsToABox; ++slot) {
        rows_[slot] = new SlotRow(slot);
        column->addWidget(rows_[slot]);
    }
    lblResult_[box] = new ElidedLabel;
    lblResult_[box]->setObjectName(QStringLiteral("lblResult_%1").arg(box));
    column->addWidget(lblResult_[box]);

    txtOut_[box] = new TextBox;
    txtOut_[box]->setObjectName(QStringLiteral("txtOut_%1").arg(box));
    const int firstSlot = box * kSlotsToABox + 1;
    txtOut_[box]->setAccessibleName(
        tr("Results of buttons %1 to %2").arg(firstSlot).arg(firstSlot + kSlotsToABox - 1));
    workspace_.ApplyFontSettings(*txtOut_[box], kOutputFont);
    constexpr int kFewestLines = 6;
    txtOut_[box]->setMinimumHeight(txtOut_[box]->fontMetrics().lineSpacing() * kFewestLines);
    column->addWidget(txtOut_[box], 1);
    return group;
}

void frmLists::ConnectSlot(int slot) {
    connect(rows_[slot], &SlotRow::GenerateClicked, this, [this, slot] { Generate(slot); });
    connect(rows_[slot], &SlotRow::LoadClicked, this, [this, slot] { Load(slot); });
    connect(rows_[slot], &SlotRow::EditClicked, this, [this, slot] { Edit(slot); });
    connect(rows_[slot], &SlotRow::FileDropped, this,
            [this, slot](const std::string& path) { Bind(slot, path); });
}

void frmLists::Generate(int slot) {
    const GenerationRun run(workspace_, *this);
    if (!run) {
        return;
    }
    // A copy: another table may be bound to the slot while this one is rolled.
    const TableSlot table = page_.At(slot);
    const int box = slot / kSlotsToABox;
    ResultBox result(*txtOut_[box], workspace_.Services());
    shownSlot_[box] = slot;
    lblResult_[box]->SetTitle(ToQt(table.title));
    Refresh();
    result.Show(RollSlot(workspace_.Services().engine, table));
    lastSlot_ = slot;
}

void frmLists::Load(int slot) {
    const ServiceSet& services = workspace_.Services();
    const TableSlot& bound = page_.At(slot);
    const std::string& folder = bound.IsEmpty() ? services.files.CurrentDirectory() : bound.folder;
    const auto path =
        services.dialogs.ChooseFileToOpen(kTableFilter, services.files.NativePath(folder));
    if (path) {
        Bind(slot, *path);
    }
}

void frmLists::Edit(int slot) {
    const std::string path = page_.At(slot).path;
    if (ChildWindow* editor = workspace_.Open(form::kEditTable)) {
        path.empty() ? editor->NewFile() : editor->Load(path);
    }
}

void frmLists::Bind(int slot, const std::string& path) {
    Engine& engine = workspace_.Services().engine;
    TableSlot table = BindTable(engine, path);
    EnterFolder(engine, table.folder);
    page_.Bind(slot, std::move(table));
    // The result in the box keeps its title, but is not this table's.
    int& shown = shownSlot_[slot / kSlotsToABox];
    shown = shown == slot ? kNone : shown;
    Refresh();
}

void frmLists::Refresh() {
    const bool canEdit = workspace_.CanOpen(form::kEditTable);
    for (int slot = 0; slot < kSlots; ++slot) {
        rows_[slot]->Show(page_.At(slot), shownSlot_[slot / kSlotsToABox] == slot, canEdit);
    }
}

void frmLists::ArrangeGroups() {
    constexpr int kMostColumns = 3;
    constexpr int kFewestLetters = 45;
    const int groupWidth = fontMetrics().averageCharWidth() * kFewestLetters;
    const int columns = qBound(1, width() / qMax(1, groupWidth), kMostColumns);
    if (columns == columns_) {
        return;
    }
    columns_ = columns;
    for (int box = 0; box < kBoxes; ++box) {
        // Adding a widget that is there moves it.
        groups_->addWidget(pneGroup_[box], box / columns, box % columns);
    }
    for (int line = 0; line < kBoxes; ++line) {
        groups_->setColumnStretch(line, line < columns ? 1 : 0);
        groups_->setRowStretch(line, line < kBoxes / columns ? 1 : 0);
    }
}

}  // namespace quenloft
