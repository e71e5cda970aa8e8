#include "shell/font_settings.h"

#include "engine/failure.h"
#include "engine/numbers.h"
#include "platform/profile_file.h"
#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

// What the printed page and the screen can still show; a larger one would exhaust the memory.
constexpr int kLargestFontSize = 2160;

std::int32_t ReadNumber(ProfileFile& profile, const char* key, std::int32_t defaultValue) {
    const std::string text = profile.ReadProfileString("Font", key, std::to_string(defaultValue),
                                                       profile.GetProfileFileName());
    try {
        return TextToInt32(text);
    } catch (const Failure&) {
        return defaultValue;
    }
}

bool ReadFlag(ProfileFile& profile, const char* key) {
    const std::string text =
        profile.ReadProfileString("Font", key, "0", profile.GetProfileFileName());
    return ParseNumber(text).value_or(0) != 0;
}

bool WantsFont(const FontSettings& settings, int fontClass) {
    switch (fontClass) {
        case kScriptEditorFont:
            return settings.UseFontInScriptEditor;
        case kTableEditorFont:
            return settings.UseFontInTableEditor;
        case kOutputFont:
            return settings.UseFontForOutput;
        case kListsFont:
            return settings.UseFontForLists;
        default:
            return false;
    }
}

}  // namespace

FontSettings LoadFontSettings(ProfileFile& profile) {
    FontSettings settings;
    settings.FontName =
        profile.ReadProfileString("Font", "FontName", "", profile.GetProfileFileName());
    settings.FontSize = ReadNumber(profile, "FontSize", settings.FontSize);
    settings.FontBold = ReadFlag(profile, "FontBold");
    settings.FontItalic = ReadFlag(profile, "FontItalic");
    settings.UseFontInScriptEditor = ReadFlag(profile, "Scripts");
    settings.UseFontInTableEditor = ReadFlag(profile, "Tables");
    settings.UseFontForOutput = ReadFlag(profile, "Output");
    settings.UseFontForLists = ReadFlag(profile, "Lists");
    return settings;
}

void ApplyFontSettings(const FontSettings& settings, QWidget& target, int fontClass) {
    if (!WantsFont(settings, fontClass)) {
        return;
    }
    QFont font = target.font();
    if (!settings.FontName.empty()) {
        font.setFamily(ToQt(settings.FontName));
    }
    font.setBold(settings.FontBold);
    if (settings.FontSize > 0 && settings.FontSize <= kLargestFontSize) {
        font.setPointSize(settings.FontSize);
    }
    font.setItalic(settings.FontItalic);
    target.setFont(font);
}

}  // namespace quenloft
