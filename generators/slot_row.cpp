#include "generators/slot_row.h"

#include <QDropEvent>
#include <QHBoxLayout>

#include "generators/table_slot.h"
#include "platform/qt/qt_text.h"
#include "shell/dropped_file.h"

namespace quenloft {

SlotRow::SlotRow(int index)
    : btnGenerate_(new TitleButton),
      btnLoad_(new QToolButton),
      btnEdit_(new QPushButton(tr("Edit table"))) {
    btnGenerate_->setObjectName(QStringLiteral("btnGenerate_%1").arg(index));
    btnLoad_->setObjectName(QStringLiteral("btnLoad_%1").arg(index));
    btnLoad_->setText(QStringLiteral("…"));
    btnLoad_->setToolTip(tr("Select a table for this button"));
    btnLoad_->setAccessibleName(tr("Select a table for button %1").arg(index + 1));
    btnLoad_->setFocusPolicy(Qt::StrongFocus);
    btnLoad_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    btnEdit_->setObjectName(QStringLiteral("btnEdit_%1").arg(index));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(btnGenerate_, 1);
    row->addWidget(btnLoad_);
    row->addWidget(btnEdit_);
    setAcceptDrops(true);

    connect(btnGenerate_, &QPushButton::clicked, this, &SlotRow::GenerateClicked);
    connect(btnLoad_, &QToolButton::clicked, this, &SlotRow::LoadClicked);
    connect(btnEdit_, &QPushButton::clicked, this, &SlotRow::EditClicked);
}

void SlotRow::Show(const TableSlot& slot, bool isShown, bool canEdit) {
    btnGenerate_->SetTitle(ToQt(slot.IsEmpty() ? kEmptySlotTitle : slot.title));
    btnGenerate_->SetMarked(isShown);
    btnEdit_->setEnabled(canEdit);
    btnEdit_->setToolTip(slot.IsEmpty() ? tr("Make a new table") : tr("Open the table's editor"));
}

void SlotRow::dragEnterEvent(QDragEnterEvent* event) { AcceptDroppedFile(*event); }

void SlotRow::dropEvent(QDropEvent* event) {
    if (const auto path = AcceptDroppedFile(*event)) {
        emit FileDropped(*path);
    }
}

}  // namespace quenloft
