// The files that were opened last, and the files that are handed to the program.
#include <QMenu>

#include "generators/list_single_window.h"
#include "generators/script_window.h"
#include "shell/sample_library.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class Documents : public WindowsFixture {
  protected:
    Documents() {
        folder.WriteTable("orcs.tbl", "Orcs", "An orc.");
        folder.Write("day.SPT", "A day.\r\n");
    }
    std::vector<WindowKind> Kinds() {
        return {{form::kSingleList, Instances::Many, Make<frmListSingle>},
                {form::kScript, Instances::Many, Make<frmScript>}};
    }
    static QStringList RecentEntries(const frmMain& window) {
        auto* menu = window.findChild<QMenu*>("mnuFile_Recent");
        emit menu->aboutToShow();
        QStringList entries;
        for (const QAction* action : menu->actions()) {
            entries << action->text();
        }
        return entries;
    }
};

TEST_F(Documents, OpenInTheWindowThatFitsAndRunWhenTheyAreDropped) {
    frmMain window(Services(), Kinds());
    ShowMainWindow(window);
    EXPECT_TRUE(Drop(window, {UrlOf("orcs.tbl"), UrlOf("day.SPT")}));
    QCoreApplication::processEvents();
    EXPECT_NE(window.findChild<frmListSingle*>()->Export().find("An orc."), std::string::npos);
    EXPECT_NE(window.findChild<frmScript*>()->Export().find("A day."), std::string::npos);
    dialogs.WillConfirm();
    window.OpenDocument(folder.Path("a.png"));
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: " + folder.Path("a.png") +
                                     " cannot be opened: it is neither a table (*.tbl) nor a "
                                     "script (*.spt) nor notes (*.rtf)."});
}

TEST_F(Documents, AreTheRecentFilesAfterARestart) {
    {
        frmMain window(Services(), Kinds());
        EXPECT_EQ(RecentEntries(window), QStringList{"No files yet"});
        for (int i = 0; i < 11; ++i) {
            window.NoteRecentFile(folder.Write("t" + std::to_string(i) + ".tbl", ""));
        }
        window.NoteRecentFile(folder.Path("missing.tbl"));
        window.NoteRecentFile(folder.Write(std::string(240, 'x') + ".tbl", ""));
        window.NoteRecentFile(folder.Write("a&b.tbl", ""));
        window.NoteRecentFile(folder.Path("orcs.tbl"));
        window.NoteRecentFile(folder.Path("a&b.tbl"));
        window.close();
    }
    frmMain window(Services(), Kinds());
    ShowMainWindow(window);
    EXPECT_EQ(RecentEntries(window),
              QStringList({"&1 a&&b.tbl", "&2 orcs.tbl", "&3 t10.tbl", "&4 t9.tbl", "&5 t8.tbl",
                           "&6 t7.tbl", "&7 t6.tbl", "&8 t5.tbl", "&9 t4.tbl", "&0 t3.tbl"}));
    window.findChild<QMenu*>("mnuFile_Recent")->actions().at(1)->trigger();
    EXPECT_TRUE(window.findChild<frmListSingle*>());
}

class FirstStart : public WindowsFixture {
  protected:
    FirstStart() { folder.Write("share/library/Places/inn.tbl", "An inn"); }

    std::string Libpath() { return Setting("Settings", "Libpath"); }
};

TEST_F(FirstStart, CopiesTheSampleLibraryWhereTheUserWantsIt) {
    folder.Write("home/Quenloft library/mine.tbl", "Mine");
    dialogs.WillAnswer(Answer::Yes);
    dialogs.WillGive(folder.Path("home"));
    OfferSampleLibrary(Services(), folder.Path("share"));
    EXPECT_EQ(Libpath(), folder.Path("home/Quenloft library 2"));
    EXPECT_EQ(folder.Read("home/Quenloft library 2/Places/inn.tbl"), "An inn");
    OfferSampleLibrary(Services(), folder.Path("share"));  // Never a second time.
    dialogs.TakeLog();
}

TEST_F(FirstStart, CopiesIntoAFolderOfTheSampleItself) {
    dialogs.WillAnswer(Answer::Yes);
    dialogs.WillGive(folder.Path("share/library/Places"));
    OfferSampleLibrary(Services(), folder.Path("share"));
    EXPECT_EQ(folder.Read("share/library/Places/Quenloft library/Places/inn.tbl"), "An inn");
    dialogs.TakeLog();
}

TEST_F(FirstStart, ShowsTheInstalledSampleWhereNoCopyIsMade) {
    dialogs.WillAnswer(Answer::No);
    OfferSampleLibrary(Services(), folder.Path("share"));
    EXPECT_EQ(Libpath(), folder.Path("share/library"));
    dialogs.TakeLog();
}

TEST_F(FirstStart, SaysWhyTheCopyFailed) {
    dialogs.WillAnswer(Answer::Yes);
    dialogs.WillGive(folder.Path("gone"));
    dialogs.WillConfirm();
    OfferSampleLibrary(Services(), folder.Path("share"));
    EXPECT_EQ(dialogs.TakeLog().back(),
              "warning: The sample library could not be copied. Path not found: " +
                  folder.Path("gone/Quenloft library") +
                  ".\r\nIt is shown where it is installed; you can choose another library under "
                  "File, Settings.");
    EXPECT_EQ(Libpath(), folder.Path("share/library"));
}

}  // namespace
}  // namespace quenloft
