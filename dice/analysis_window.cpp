#include "dice/analysis_window.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

#include "dice/result_list.h"
#include "engine/failure.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "shell/font_settings.h"
#include "shell/save_text.h"
#include "shell/wait_cursor.h"
#include "shell/workspace.h"

namespace quenloft {
namespace {

constexpr char kFilter[] = "KS script (*.scr)|*.scr|Text files(*.txt)|*.txt|All files(*.*)|*.*";
constexpr int kTextFilter = 2;

}  // namespace

AnalysisWindow::AnalysisWindow(Workspace& workspace, const char* formName, const QString& caption,
                               TwipsPoint place)
    : ChildWindow(workspace, formName, caption, place) {}

QSize AnalysisWindow::OpeningSize(QSize area) const {
    constexpr QSize kComfortable(600, 440);
    return kComfortable.expandedTo(sizeHint()).boundedTo(area);
}

std::string AnalysisWindow::Export() { return list_->Text(); }

void AnalysisWindow::UseList(ResultList* list) {
    list_ = list;
    workspace_.ApplyFontSettings(*list_, kOutputFont);
}

void AnalysisWindow::AddRollKeys(QPushButton* button) {
    new QShortcut(Qt::Key_F5, this, button, &QPushButton::click, Qt::WidgetWithChildrenShortcut);
    for (QLineEdit* box : findChildren<QLineEdit*>()) {
        connect(box, &QLineEdit::returnPressed, button, &QPushButton::click);
    }
}

void AnalysisWindow::ShowWhileChecked(QCheckBox* box, QLabel* number, QLabel* of) {
    number->setMinimumWidth(number->fontMetrics().horizontalAdvance(QStringLiteral("2147483647")));
    for (QLabel* label : {number, of}) {
        label->setVisible(box->isChecked());
        connect(box, &QCheckBox::toggled, label, &QLabel::setVisible);
    }
}

void AnalysisWindow::Perform(const std::function<void(ReportLines&)>& work) {
    if (workspace_.IsRunning()) {
        return;
    }
    ReportLines lines(list_->Bytes());
    std::string failure;
    try {
        work(lines);
    } catch (const Failure& error) {
        failure = error.what();
    }
    list_->Add(lines.Take());
    if (!failure.empty()) {
        workspace_.Services().dialogs.ShowMessage(failure, MessageIcon::Warning);
    }
}

void AnalysisWindow::RunBusy(QPushButton* button, const std::function<void()>& work) {
    const WaitCursor wait;
    const bool hadFocus = button->hasFocus();
    button->setText(tr("Rolling..."));
    button->setEnabled(false);
    button->repaint();
    work();
    button->setEnabled(true);
    button->setText(tr("Roll"));
    if (hadFocus) {
        button->setFocus();
    }
}

GoOn AnalysisWindow::Counter(const QCheckBox* box, QLabel* number) {
    if (!box->isChecked()) {
        return {};
    }
    QElapsedTimer sinceShown;
    sinceShown.start();
    return [number, sinceShown](std::int32_t rolled) mutable {
        constexpr qint64 kMillisecondsShown = 34;  // More than 30 a second nobody reads.
        if (sinceShown.elapsed() >= kMillisecondsShown) {
            number->setText(QString::number(rolled));
            number->repaint();
            sinceShown.start();
        }
        return true;
    };
}

void AnalysisWindow::PerformScript(
    QCheckBox* openEnded,
    const std::function<void(const ScriptParts& parts, const std::string& path)>& work) {
    const std::string path = ChooseScript();
    if (path.empty()) {
        return;
    }
    Perform([&](ReportLines& lines) {
        const WaitCursor wait;
        const ServiceSet& services = workspace_.Services();
        work({services.files, services.profile, lines,
              [openEnded](bool on) { openEnded->setChecked(on); }, scriptRolls_},
             path);
    });
}

std::string AnalysisWindow::ChooseScript() {
    if (workspace_.IsRunning()) {
        return {};
    }
    const ServiceSet& services = workspace_.Services();
    return services.dialogs
        .ChooseFileToOpen(kFilter, services.files.NativePath(services.files.CurrentDirectory()))
        .value_or("");
}

void AnalysisWindow::CopyList() {
    workspace_.Services().clipboard.SetText(list_->TextOfWholeLines());
}

void AnalysisWindow::SaveList() {
    if (workspace_.IsRunning()) {
        return;
    }
    const ServiceSet& services = workspace_.Services();
    const auto path = services.dialogs.ChooseFileToSave(
        kFilter, services.files.NativePath(services.files.CurrentDirectory()), kTextFilter);
    if (path && !path->empty()) {
        SaveNewText(services, *path, list_->TextOfWholeLines());
    }
}

void AnalysisWindow::ClearList() { list_->Clear(); }

}  // namespace quenloft
