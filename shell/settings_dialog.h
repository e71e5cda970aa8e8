// The settings dialog: library path and fonts.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/font_settings.h"
#include "shell/service_set.h"

namespace quenloft {

namespace Ui {
class frmSettings;
}

/// Shows the library path of the profile and the fonts in memory; OK writes both. Open windows keep
/// their fonts, and the new library path counts from the next refresh of the explorer.
class frmSettings : public QDialog {
    Q_OBJECT

  public:
    frmSettings(const ServiceSet& services, FontSettings& fonts, QWidget* parent);
    ~frmSettings() override;

  private:
    void BrowseLibrary();
    void ChooseFont();
    void SaveAndClose();

    void ShowSettings();
    void WriteProfile();
    bool TakeOver();

    const ServiceSet services_;
    FontSettings& fonts_;
    std::unique_ptr<Ui::frmSettings> ui_;
};

}  // namespace quenloft
