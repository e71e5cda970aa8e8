#include "shell/window_geometry.h"

#include <QByteArray>
#include <QWidget>

#include "platform/profile_file.h"

namespace quenloft {
namespace {

constexpr char kSection[] = "Window";
constexpr char kKey[] = "Geometry";

}  // namespace

void ShowAtSavedGeometry(QWidget& window, ProfileFile& profile) {
    const QByteArray saved = QByteArray::fromStdString(
        profile.ReadProfileString(kSection, kKey, "", profile.GetProfileFileName()));
    if (!window.restoreGeometry(QByteArray::fromBase64(saved))) {
        window.setWindowState(Qt::WindowMaximized);
    }
    window.show();
}

void SaveWindowGeometry(const QWidget& window, ProfileFile& profile) {
    profile.WriteProfileString(kSection, kKey, window.saveGeometry().toBase64().toStdString(),
                               profile.GetProfileFileName());
}

}  // namespace quenloft
