// The place and size of the main window, kept from one run of the program to the next.
#pragma once

class QWidget;

namespace quenloft {

class ProfileFile;

/// Shows `window` where SaveWindowGeometry left it, on a screen that exists; maximised at first.
void ShowAtSavedGeometry(QWidget& window, ProfileFile& profile);

void SaveWindowGeometry(const QWidget& window, ProfileFile& profile);

}  // namespace quenloft
