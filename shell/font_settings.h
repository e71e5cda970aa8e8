// The program's font settings: which font, and which classes of controls show it.
#pragma once

#include <QWidget>
#include <cstdint>
#include <string>

namespace quenloft {

class ProfileFile;

enum FontClass : std::int16_t {
    kScriptEditorFont = 1,
    kTableEditorFont = 2,
    kOutputFont = 3,
    kListsFont = 4,
};

/// Held in memory for the whole run of the program; the settings dialog alone changes it.
struct FontSettings {
    std::string FontName;
    std::int32_t FontSize = 8;  ///< Points.
    bool FontBold = false;
    bool FontItalic = false;
    bool UseFontInScriptEditor = false;
    bool UseFontInTableEditor = false;
    bool UseFontForOutput = false;
    bool UseFontForLists = false;
};

/// Reads section "Font". A value that is no number counts as its default; nothing is reported.
FontSettings LoadFontSettings(ProfileFile& profile);

/// Sets name, bold, size and italic of `target`'s font where the flag of `fontClass` is set. An
/// empty name keeps the face, a size that no font can have keeps the size. Other classes change
/// nothing.
void ApplyFontSettings(const FontSettings& settings, QWidget& target, int fontClass);

}  // namespace quenloft
