#include "author/readme_window.h"

#include <QCoreApplication>
#include <QFile>
#include <QFontDatabase>

#include "author/readme_text.h"
#include "engine/program_title.h"
#include "platform/qt/qt_text.h"
#include "shell/font_settings.h"
#include "shell/form_names.h"
#include "shell/workspace.h"
#include "ui_readme_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{6855, 6900};

}  // namespace

frmReadme::frmReadme(Workspace& workspace, const std::vector<std::string>& folders)
    : ChildWindow(workspace, form::kReadme, ToQt(ApplicationTitle()) + tr(" Readme.txt"), kPlace),
      ui_(std::make_unique<Ui::frmReadme>()) {
    const QString caption = windowTitle();
    ui_->setupUi(this);
    setWindowTitle(caption);
    // The manual is laid out in columns.
    ui_->txtHelp->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    workspace_.ApplyFontSettings(*ui_->txtHelp, kOutputFont);
    ui_->txtHelp->SetText(ReadmeText(workspace_.Services().files, folders));
}

frmReadme::~frmReadme() = default;

QSize frmReadme::OpeningSize(QSize area) const {
    // A line of 80 letters, and a page of them.
    const QFontMetrics metrics(ui_->txtHelp->font());
    const QSize comfortable(metrics.averageCharWidth() * 88, metrics.lineSpacing() * 34);
    return comfortable.expandedTo(area * 0.5).boundedTo(area);
}

std::vector<std::string> ReadmeFolders() {
    const std::string beside =
        QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString();
    return {beside, beside + "/../share/quenloft"};
}

}  // namespace quenloft
