// The readme and the about box.

#include "author/about_window.h"
#include "author/readme_window.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class HelpWindowsTest : public WindowsFixture {
  protected:
    HelpWindowsTest() { ShowMainWindow(window); }

    std::string Readme() {
        ChildWindow* readme = window.Open(form::kReadme);
        const std::string text = readme->findChild<TextBox*>("txtHelp")->Text();
        readme->CloseWindow();
        LetWindowsClose();
        return text;
    }

    frmMain window{
        Services(),
        {{form::kReadme, Instances::One,
          [this](Workspace& workspace) {
              return new frmReadme(workspace, {folder.Path("bin"), folder.Path("bin/../share")});
          }},
         {form::kAbout, Instances::One, Make<frmAbout>}}};
};

TEST_F(HelpWindowsTest, TheReadmeBesideTheProgramComesFirst) {
    folder.Write("bin/quenloft", "");
    folder.Write("share/library", "");
    EXPECT_EQ(Readme(), "There is no readme. It should be one of these files:\r\n" +
                            folder.Path("bin/readme.txt") + "\r\n" +
                            folder.Path("share/readme.txt") + "\r\n");
    folder.Write("share/Readme.txt", "shared\nb\xE9");
    EXPECT_EQ(Readme(), "shared\r\nb\u00E9\r\n");
    folder.Write("bin/README.TXT", "beside");
    EXPECT_EQ(Readme(), "beside\r\n");
    EXPECT_EQ(window.Open(form::kReadme)->windowTitle(), "Quenloft Readme.txt");
}

TEST_F(HelpWindowsTest, AboutTellsTheVersionAndStartsTheDesktopsTool) {
    ChildWindow* about = window.Open(form::kAbout);
    EXPECT_EQ(about->findChild<QLabel*>("lblVersion")->text().toStdString(),
              "Version " + ProgramVersion());
    desktop.installed = "hardinfo";
    Click(*about, "cmdSysInfo");
    EXPECT_EQ(desktop.started, (Log{"kinfocenter", "hardinfo2", "hardinfo"}));
    desktop.installed.clear();
    dialogs.WillConfirm();
    Click(*about, "cmdSysInfo");
    EXPECT_EQ(dialogs.TakeLog(), Log{"message: System Information Is Unavailable At This Time"});
    QTest::keyClick(about->findChild<QPushButton*>("cmdOK"), Qt::Key_Return);
    LetWindowsClose();
    EXPECT_TRUE(window.findChild<QMdiArea*>()->subWindowList().isEmpty());
}

}  // namespace
}  // namespace quenloft
