#include "author/about_window.h"

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLayout>
#include <QStyle>

#include "author/system_information.h"
#include "engine/program_title.h"
#include "platform/dialogs.h"
#include "platform/qt/qt_text.h"
#include "shell/form_names.h"
#include "shell/workspace.h"
#include "ui_about_window.h"

namespace quenloft {
namespace {

constexpr TwipsPoint kPlace{4950, 3090};
constexpr QSize kLogo(64, 64);

}  // namespace

frmAbout::frmAbout(Workspace& workspace)
    : ChildWindow(workspace, form::kAbout, tr("About ") + ToQt(ApplicationTitle()), kPlace),
      ui_(std::make_unique<Ui::frmAbout>()) {
    const QString caption = windowTitle();
    ui_->setupUi(this);
    setWindowTitle(caption);
    ui_->Picture1->setPixmap(QApplication::windowIcon().pixmap(kLogo, devicePixelRatio()));
    ui_->lblTitle->setText(ToQt(ApplicationTitle()));
    QFont font = ui_->lblTitle->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    ui_->lblTitle->setFont(font);
    ui_->lblVersion->setText(tr("Version ") + ToQt(ProgramVersion()));
    connect(ui_->cmdOK, &QPushButton::clicked, this, &frmAbout::CloseWindow);
    connect(ui_->cmdSysInfo, &QPushButton::clicked, this, &frmAbout::StartSysInfo);
    ui_->cmdOK->setFocus();
}

frmAbout::~frmAbout() = default;

QSize frmAbout::OpeningSize(QSize area) const {
    // As large as its texts, and the frame around them.
    const int border = 2 * style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const QSize frame(border, border + style()->pixelMetric(QStyle::PM_TitleBarHeight));
    const QSize content = sizeHint();
    return (QSize(content.width(), layout()->totalHeightForWidth(content.width())) + frame)
        .boundedTo(area);
}

void frmAbout::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            (ui_->cmdSysInfo->hasFocus() ? ui_->cmdSysInfo : ui_->cmdOK)->click();
            break;
        case Qt::Key_Escape:
            CloseWindow();
            break;
        default:
            ChildWindow::keyPressEvent(event);
            break;
    }
}

void frmAbout::StartSysInfo() {
    const ServiceSet& services = workspace_.Services();
    if (!StartSystemInformation(services.desktop)) {
        services.dialogs.ShowMessage("System Information Is Unavailable At This Time",
                                     MessageIcon::None);
    }
}

}  // namespace quenloft
