#include "editors/shared/find_bar.h"

#include <QKeyEvent>
#include <QShortcut>

#include "ui_find_bar.h"

namespace quenloft {

FindBar::FindBar(Searchable& searched, QWidget* window)
    : QWidget(window), searched_(searched), ui_(std::make_unique<Ui::FindBar>()) {
    ui_->setupUi(this);
    hide();
    connect(ui_->txtFind, &QLineEdit::textChanged, this, &FindBar::Refresh);
    connect(ui_->txtFind, &QLineEdit::returnPressed, this, &FindBar::FindNext);
    connect(ui_->btnFindNext, &QPushButton::clicked, this, &FindBar::FindNext);
    connect(ui_->btnFindPrevious, &QPushButton::clicked, this, &FindBar::FindPrevious);
    connect(ui_->btnCloseFind, &QToolButton::clicked, this, &FindBar::Close);
    connect(ui_->txtReplaceWith, &QLineEdit::returnPressed, this, &FindBar::Replace);
    connect(ui_->btnReplace, &QPushButton::clicked, this, &FindBar::Replace);
    connect(ui_->btnReplaceAll, &QPushButton::clicked, this, &FindBar::ReplaceAll);
    constexpr auto kInWindow = Qt::WidgetWithChildrenShortcut;
    new QShortcut(Qt::CTRL | Qt::Key_F, window, this, &FindBar::ShowFind, kInWindow);
    new QShortcut(Qt::CTRL | Qt::Key_H, window, this, &FindBar::ShowReplace, kInWindow);
    new QShortcut(Qt::Key_F3, window, this, &FindBar::FindNext, kInWindow);
    new QShortcut(Qt::SHIFT | Qt::Key_F3, window, this, &FindBar::FindPrevious, kInWindow);
    Refresh();
}

FindBar::~FindBar() = default;

void FindBar::ShowFind() { Open(false); }

void FindBar::ShowReplace() { Open(true); }

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void FindBar::FindNext() { Find(false); }

void FindBar::FindPrevious() { Find(true); }

void FindBar::Find(bool backwards) {
    if (ui_->txtFind->text().isEmpty()) {
        ShowFind();
        return;
    }
    const bool found = searched_.FindNext(Request(backwards));
    ui_->lblFound->setText(found ? QString() : tr("Not found"));
}

void FindBar::Replace() {
    if (!ui_->txtFind->text().isEmpty()) {
        searched_.ReplaceSelected(Request(false), ui_->txtReplaceWith->text());
        FindNext();
    }
}

void FindBar::ReplaceAll() {
    if (!ui_->txtFind->text().isEmpty()) {
        const int count = searched_.ReplaceAll(Request(false), ui_->txtReplaceWith->text());
        ui_->lblFound->setText(count == 0 ? tr("Not found") : tr("Replaced: %1").arg(count));
    }
}

void FindBar::Close() {
    hide();
    searched_.FocusSearched();
}

void FindBar::Refresh() {
    const bool canFind = !ui_->txtFind->text().isEmpty();
    ui_->btnFindNext->setEnabled(canFind);
    ui_->btnFindPrevious->setEnabled(canFind);
    ui_->btnReplace->setEnabled(canFind);
    ui_->btnReplaceAll->setEnabled(canFind);
    ui_->lblFound->clear();
}

void FindBar::Open(bool replace) {
    const QString selected = searched_.SelectedLine();
    if (!selected.isEmpty()) {
        ui_->txtFind->setText(selected);
    }
    ui_->lineReplace->setVisible(replace);
    Refresh();
    show();
    ui_->txtFind->setFocus();
    ui_->txtFind->selectAll();
}

SearchRequest FindBar::Request(bool backwards) const {
    return {ui_->txtFind->text(), ui_->chkMatchCase->isChecked(), backwards};
}

}  // namespace quenloft
