#include "shell/settings_dialog.h"

#include "engine/failure.h"
#include "engine/numbers.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/profile_file.h"
#include "platform/qt/qt_text.h"
#include "shell/child_window.h"
#include "ui_settings_dialog.h"

namespace quenloft {
namespace {

constexpr int kWidthTwips = 4800;
constexpr int kHeightTwips = 1890;
// The folder dialog has always borne this title.
constexpr char kBrowseTitle[] = "Select your Windows\\System\\ directory";

std::string State(const QCheckBox* box) { return box->isChecked() ? "1" : "0"; }

}  // namespace

frmSettings::frmSettings(const ServiceSet& services, FontSettings& fonts, QWidget* parent)
    : QDialog(parent),
      services_(services),
      fonts_(fonts),
      ui_(std::make_unique<Ui::frmSettings>()) {
    ui_->setupUi(this);
    // The size is fixed; larger fonts still find room.
    setMinimumSize(TwipsToPixels(kWidthTwips), TwipsToPixels(kHeightTwips));
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(ui_->btnBrowseLib, &QPushButton::clicked, this, &frmSettings::BrowseLibrary);
    connect(ui_->btnFont, &QPushButton::clicked, this, &frmSettings::ChooseFont);
    connect(ui_->btnOk, &QPushButton::clicked, this, &frmSettings::SaveAndClose);
    connect(ui_->btnCancel, &QPushButton::clicked, this, &frmSettings::reject);
    ShowSettings();
}

frmSettings::~frmSettings() = default;

void frmSettings::BrowseLibrary() {
    const auto folder = services_.dialogs.ChooseFolder(
        kBrowseTitle, services_.files.NativePath(FromQt(ui_->txtLibPath->text())));
    if (folder && !folder->empty()) {
        ui_->txtLibPath->setText(ToQt(*folder));
    }
}

void frmSettings::ChooseFont() {
    try {
        const FontChoice initial{FromQt(ui_->txtFontName->text()),
                                 TextToNumber(FromQt(ui_->txtFontSize->text())),
                                 ui_->chkFontBold->isChecked(), ui_->chkFontItalic->isChecked()};
        const auto chosen = services_.dialogs.ChooseFont(initial);
        if (chosen && !chosen->name.empty()) {
            ui_->txtFontName->setText(ToQt(chosen->name));
            ui_->txtFontSize->setText(ToQt(NumberToText(chosen->size)));
            ui_->chkFontBold->setChecked(chosen->bold);
            ui_->chkFontItalic->setChecked(chosen->italic);
        }
    } catch (const Failure& failure) {
        services_.dialogs.ShowMessage(std::string("Error in changing style!\r\n") + failure.what(),
                                      MessageIcon::None);
    }
}

void frmSettings::SaveAndClose() {
    WriteProfile();
    if (TakeOver()) {
        accept();
    }
}

void frmSettings::ShowSettings() {
    ui_->txtLibPath->setText(ToQt(services_.profile.ReadProfileString(
        "Settings", "Libpath", "", services_.profile.GetProfileFileName())));
    ui_->txtFontName->setText(ToQt(fonts_.FontName));
    ui_->txtFontSize->setText(QString::number(fonts_.FontSize));
    ui_->chkFontBold->setChecked(fonts_.FontBold);
    ui_->chkFontItalic->setChecked(fonts_.FontItalic);
    ui_->chkUseFontInScriptEditor->setChecked(fonts_.UseFontInScriptEditor);
    ui_->chkUseFontInTableEditor->setChecked(fonts_.UseFontInTableEditor);
    ui_->chkUseFontForOutput->setChecked(fonts_.UseFontForOutput);
    ui_->chkUseFontForLists->setChecked(fonts_.UseFontForLists);
}

void frmSettings::WriteProfile() {
    const ProfileEntry entries[] = {
        {"Settings", "Libpath", FromQt(ui_->txtLibPath->text())},
        {"Font", "FontName", FromQt(ui_->txtFontName->text())},
        {"Font", "FontSize", FromQt(ui_->txtFontSize->text())},
        {"Font", "FontBold", State(ui_->chkFontBold)},
        {"Font", "FontItalic", State(ui_->chkFontItalic)},
        {"Font", "Scripts", State(ui_->chkUseFontInScriptEditor)},
        {"Font", "Tables", State(ui_->chkUseFontInTableEditor)},
        {"Font", "Output", State(ui_->chkUseFontForOutput)},
        {"Font", "Lists", State(ui_->chkUseFontForLists)},
    };
    services_.profile.WriteProfileStrings(entries, services_.profile.GetProfileFileName());
}

bool frmSettings::TakeOver() {
    fonts_.FontName = FromQt(ui_->txtFontName->text());
    try {
        fonts_.FontSize = TextToInt32(FromQt(ui_->txtFontSize->text()));
    } catch (const Failure& failure) {
        services_.dialogs.ShowMessage(failure.what(), MessageIcon::Warning);
        return false;
    }
    fonts_.FontBold = ui_->chkFontBold->isChecked();
    fonts_.FontItalic = ui_->chkFontItalic->isChecked();
    fonts_.UseFontInScriptEditor = ui_->chkUseFontInScriptEditor->isChecked();
    fonts_.UseFontInTableEditor = ui_->chkUseFontInTableEditor->isChecked();
    fonts_.UseFontForOutput = ui_->chkUseFontForOutput->isChecked();
    fonts_.UseFontForLists = ui_->chkUseFontForLists->isChecked();
    return true;
}

}  // namespace quenloft
