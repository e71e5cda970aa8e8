#include <QCheckBox>

#include "shell/font_settings.h"
#include "shell/library_path.h"
#include "shell/settings_dialog.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class SettingsTest : public WindowsFixture {
  protected:
    /// What the profile holds after `act` on a dialog.
    template <typename Act>
    void InDialog(Act act) {
        frmSettings dialog(Services(), fonts, nullptr);
        dialog.show();
        act(dialog);
        closed = !dialog.isVisible();
    }
    static QString Text(frmSettings& dialog, const char* name) {
        return dialog.findChild<QLineEdit*>(name)->text();
    }
    static void Type(frmSettings& dialog, const char* name, const QString& text) {
        dialog.findChild<QLineEdit*>(name)->setText(text);
    }

    FontSettings fonts;
    bool closed = false;
};

TEST_F(SettingsTest, AnyNumberButZeroSetsAFlagAndOtherTextCountsAsTheDefault) {
    folder.Write("quenloft.INI",
                 "[Font]\r\nFontName=Serif\r\nFontSize=10.5\r\nFontBold=2\r\nFontItalic=-1\r\n"
                 "Scripts=0\r\nTables=yes\r\nOutput= 1 \r\nLists=\r\n");
    fonts = LoadFontSettings(profile);
    EXPECT_EQ(fonts.FontName, "Serif");
    EXPECT_EQ(fonts.FontSize, 10);
    EXPECT_TRUE(fonts.FontBold && fonts.FontItalic && fonts.UseFontForOutput);
    EXPECT_FALSE(fonts.UseFontInScriptEditor || fonts.UseFontInTableEditor ||
                 fonts.UseFontForLists);
    folder.Write("quenloft.INI", "[Font]\r\nFontSize=abc\r\n");
    files.LookAgain();
    EXPECT_EQ(LoadFontSettings(profile).FontSize, 8);
    EXPECT_EQ(ReadLibraryPath(profile), folder.LibraryPath()) << "none is set";
}

TEST_F(SettingsTest, OkWritesTheProfileAndTheFontsInMemory) {
    InDialog([this](frmSettings& dialog) {
        Type(dialog, "txtLibPath", "Z:\\old");
        dialogs.WillGive("/no/such folder/");
        Click(dialog, "btnBrowseLib");
        dialogs.WillCancel();
        Click(dialog, "btnBrowseLib");
        Type(dialog, "txtFontName", "Sérif");
        Type(dialog, "txtFontSize", "12");
        Click(dialog, "chkFontItalic");
        Click(dialog, "chkUseFontForLists");
        Click(dialog, "btnOk");
    });
    EXPECT_TRUE(closed);
    EXPECT_EQ(dialogs.TakeLog()[0], "folder: Select your Windows\\System\\ directory in /old");
    EXPECT_EQ(folder.Read("quenloft.INI"),
              "[Settings]\r\nLibpath=/no/such folder/\r\n[Font]\r\nFontName=S\xE9rif\r\n"
              "FontSize=12\r\nFontBold=0\r\nFontItalic=1\r\nScripts=0\r\nTables=0\r\nOutput=0\r\n"
              "Lists=1\r\n");
    EXPECT_EQ(fonts.FontName, "S\xC3\xA9rif");
    EXPECT_EQ(fonts.FontSize, 12);
    EXPECT_TRUE(fonts.FontItalic && fonts.UseFontForLists);
    EXPECT_FALSE(fonts.FontBold || fonts.UseFontForOutput);
    EXPECT_EQ(files.CurrentDirectory(), folder.LibraryPath());
}

TEST_F(SettingsTest, ASizeThatIsNoNumberIsStoredAndKeepsTheDialogOpen) {
    dialogs.WillConfirm();
    InDialog([](frmSettings& dialog) {
        Type(dialog, "txtFontSize", "large");
        Click(dialog, "chkFontBold");
        Click(dialog, "btnOk");
    });
    EXPECT_FALSE(closed);
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: Type mismatch"});
    EXPECT_EQ(fonts.FontSize, 8);
    EXPECT_FALSE(fonts.FontBold);
    EXPECT_EQ(Setting("Font", "FontSize"), "large");
}

TEST_F(SettingsTest, ChoosingAFontFillsTheBoxesAndCancelForgetsThem) {
    InDialog([this](frmSettings& dialog) {
        Type(dialog, "txtFontName", "Serif");
        Type(dialog, "txtFontSize", "9");
        Click(dialog, "chkFontBold");
        dialogs.WillChoose({"Mono", 10.5, false, true});
        Click(dialog, "btnFont");
        EXPECT_EQ(Text(dialog, "txtFontName"), "Mono");
        EXPECT_FALSE(dialog.findChild<QCheckBox*>("chkFontBold")->isChecked());
        EXPECT_TRUE(dialog.findChild<QCheckBox*>("chkFontItalic")->isChecked());

        dialogs.WillChoose({"", 20, true, true});
        Click(dialog, "btnFont");
        EXPECT_EQ(Text(dialog, "txtFontSize"), "10.5");
        Type(dialog, "txtFontSize", "big");
        dialogs.WillConfirm();
        Click(dialog, "btnFont");
        EXPECT_EQ(Text(dialog, "txtFontSize"), "big");
        Click(dialog, "btnCancel");
    });
    EXPECT_TRUE(closed);
    EXPECT_EQ(fonts.FontName, "");
    EXPECT_EQ(dialogs.TakeLog(), (Log{"font: Serif 9.000000 bold", "font: Mono 10.500000 italic",
                                      "message: Error in changing style!\r\nType mismatch"}));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("quenloft.INI")));
}

TEST_F(SettingsTest, EachFontClassHasItsFlag) {
    bool FontSettings::*flags[] = {&FontSettings::UseFontInScriptEditor,
                                   &FontSettings::UseFontInTableEditor,
                                   &FontSettings::UseFontForOutput, &FontSettings::UseFontForLists};
    for (int set = 0; set < 4; ++set) {
        fonts = {.FontName = "Serif", .FontSize = 17, .FontBold = true, .FontItalic = true};
        fonts.*flags[set] = true;
        for (int fontClass = 0; fontClass <= 5; ++fontClass) {
            QWidget target;
            ApplyFontSettings(fonts, target, fontClass);
            EXPECT_EQ(target.font().pointSize() == 17, fontClass == set + 1) << fontClass;
        }
    }
}

TEST_F(SettingsTest, NamesAndSizesThatNoFontHasAreIgnored) {
    const QFont designed = QWidget().font();
    for (const int size : {0, -3, 2147483647}) {
        QWidget target;
        fonts = {.FontName = "", .FontSize = size, .FontBold = true, .UseFontForOutput = true};
        ApplyFontSettings(fonts, target, kOutputFont);
        EXPECT_EQ(target.font().pointSize(), designed.pointSize());
        EXPECT_EQ(target.font().family(), designed.family());
    }
}

}  // namespace
}  // namespace quenloft
