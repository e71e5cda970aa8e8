// Dialogs, clipboard and desktop as the toolkit offers them.
#include "platform/qt/qt_dialogs.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "engine/program_title.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_file_filter.h"
#include "shell/qt_engine_host.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

TEST(FileFilter, IsSplitIntoPairs) {
    const std::pair<const char*, QStringList> cases[] = {
        {"Table (*.tbl)|*.tbl|All files (*.*)|*.*", {"Table (*.tbl)", "All files (*)"}},
        {"Text(*.txt)|*.txt|All files(*.*)|*.*", {"Text (*.txt)", "All files (*)"}},
        {"Table,Scripts (*.tbl,*.spt)|*.tbl;*.spt", {"Table,Scripts (*.tbl *.spt)"}},
        {"Notes|*.rtf; *.txt", {"Notes (*.rtf *.txt)"}},
        {"", {}},
    };
    for (const auto& [filter, nameFilters] : cases) {
        EXPECT_EQ(ToNameFilters(filter), nameFilters) << filter;
    }
}

class QtDialogsTest : public testing::Test {
  protected:
    /// Calls `act` with the dialog that is shown next.
    template <typename Dialog, typename Act>
    void InNext(Act act) {
        QTimer::singleShot(0, [act] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            act(*dialog);
        });
    }
    void Press(QMessageBox::StandardButton button) {
        InNext<QMessageBox>([button](QMessageBox& box) { box.button(button)->click(); });
    }
    static void TypeName(const QFileDialog& dialog, const char* name) {
        auto* box = dialog.findChild<QLineEdit*>("fileNameEdit");
        box->setText(name);
        QTest::keyClick(box, Qt::Key_Return);
    }

    QtDialogs dialogs;
    TempFolder folder;
};

TEST_F(QtDialogsTest, BoxesShowTheTextAsItStands) {
    InNext<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "<b>bold</b> & more\nsecond line");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle().toStdString(), ProgramTitle());
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        box.accept();
    });
    dialogs.ShowMessage("<b>bold</b> & more\r\nsecond line", MessageIcon::Warning);
}

TEST_F(QtDialogsTest, ATextThatWouldLeaveTheScreenIsThereInFull) {
    const QString text = QString("line\n").repeated(1'000);
    InNext<QMessageBox>([&text](QMessageBox& box) {
        EXPECT_EQ(box.text().count('\n'), 24);
        EXPECT_EQ(box.detailedText(), text);
        box.accept();
    });
    dialogs.ShowMessage(text.toStdString(), MessageIcon::None);
    InNext<QInputDialog>([](QInputDialog& dialog) {
        EXPECT_LT(dialog.width(), 1000);
        EXPECT_GT(dialog.height(), 200);
        dialog.reject();
    });
    dialogs.AskText(QString("a long prompt ").repeated(100).toStdString(), "");
}

TEST_F(QtDialogsTest, QuestionsTakeClosingForNoAnswer) {
    for (const auto& [button, answer] :
         {std::pair(QMessageBox::Yes, Answer::Yes), std::pair(QMessageBox::No, Answer::No)}) {
        Press(button);
        EXPECT_EQ(dialogs.AskYesNo("?"), answer);
        Press(button);
        EXPECT_EQ(dialogs.AskYesNoCancel("?"), answer);
    }
    InNext<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.AskYesNo("?"), Answer::Cancel);
    InNext<QMessageBox>([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(dialogs.AskYesNoCancel("?"), Answer::Cancel);
}

TEST_F(QtDialogsTest, ALineOfTextStartsWithTheDefault) {
    InNext<QInputDialog>([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLabel*>()->textFormat(), Qt::PlainText);
        EXPECT_EQ(dialog.textValue(), "New Folder");
        EXPECT_EQ(dialog.windowTitle(), "Table Import");
        dialog.setTextValue("Gr\u00FCn");
        dialog.accept();
    });
    EXPECT_EQ(dialogs.AskText("<Name>", "New Folder", "Table Import"), "Gr\xC3\xBCn");
    InNext<QInputDialog>([](QInputDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs.AskText("Name", ""), std::nullopt);
}

TEST_F(QtDialogsTest, BoxesOfARunHoldUpNothingElseAndCloseWhenItIsAborted) {
    QtEngineHost host(dialogs);
    bool aborted = false;
    host.CloseBoxesWhen([&aborted] { return aborted; });
    const auto abort = [&aborted] {
        EXPECT_EQ(QApplication::topLevelWidgets().size(), 1);
        EXPECT_FALSE(QApplication::activeModalWidget());
        aborted = true;
    };
    QTimer::singleShot(0, abort);
    host.ShowMessage("Beware!");
    aborted = false;
    QTimer::singleShot(0, [] {
        auto* dialog = qobject_cast<QInputDialog*>(QApplication::topLevelWidgets().value(0));
        ASSERT_TRUE(dialog);
        dialog->setTextValue("Bryn");
        dialog->accept();
    });
    EXPECT_EQ(host.AskForText("Who goes there?"), "Bryn");
    QTimer::singleShot(0, abort);
    EXPECT_EQ(host.AskForText("Who goes there?"), "");
    host.ShowMessage("Not shown: the run is to end.");
}

TEST_F(QtDialogsTest, ANameWithoutExtensionGetsTheOneOfTheChosenFilter) {
    const struct {
        const char *filter, *typed, *saved;
    } cases[] = {
        {"Text (*.txt)", "notes", "notes.txt"},
        {"Table (*.tbl)", "notes", "notes.tbl"},
        {"All files (*)", "notes", "notes"},
        {"Text (*.txt)", "notes.md", "notes.md"},
    };
    for (const auto& c : cases) {
        InNext<QFileDialog>([&c](QFileDialog& dialog) {
            dialog.selectNameFilter(c.filter);
            emit dialog.filterSelected(c.filter);
            TypeName(dialog, c.typed);
        });
        EXPECT_EQ(dialogs.ChooseFileToSave(
                      "Text(*.txt)|*.txt|Table (*.tbl)|*.tbl|All files(*.*)|*.*", folder.Path(), 1),
                  folder.Path(c.saved));
    }
}

TEST_F(QtDialogsTest, AnExistingFileOpensAndCancelGivesNothing) {
    folder.Write("a.tbl", "");
    InNext<QFileDialog>([](QFileDialog& dialog) { TypeName(dialog, "a.tbl"); });
    EXPECT_EQ(dialogs.ChooseFileToOpen("Table (*.tbl)|*.tbl", folder.Path()), folder.Path("a.tbl"));
    InNext<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs.ChooseFolder("Choose", folder.Path()), std::nullopt);
}

TEST(QtClipboard, CarriesPlainTextWithTheDesktopsLineEnds) {
    QtClipboard clipboard;
    QApplication::clipboard()->clear();
    EXPECT_EQ(clipboard.GetText(), "");
    clipboard.SetText("<b>one</b>\r\ntw\xC3\xB6");
    EXPECT_EQ(clipboard.GetText(), "<b>one</b>\ntw\xC3\xB6");
}

TEST(QtDesktop, MovesAFileToTheTrashAndTakesNoOtherFolderForIt) {
    const TempFolder folder;
    std::filesystem::create_directory(folder.Path("current"));
    std::filesystem::current_path(folder.Path("current"));
    const std::string path = folder.Write("old.tbl", "content");
    folder.Write("blocked/Trash", "a file");
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.Path("blocked")));
    EXPECT_FALSE(QtDesktop().MoveToTrash(path));
    EXPECT_EQ(folder.Read("old.tbl"), "content");
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.Path("new/share")));
    EXPECT_TRUE(QtDesktop().MoveToTrash(path));
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(folder.Read("new/share/Trash/files/old.tbl"), "content");
    EXPECT_FALSE(QtDesktop().MoveToTrash(path)) << "it is no longer there";
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path("current")));
    qunsetenv("XDG_DATA_HOME");
    std::filesystem::current_path(std::filesystem::temp_directory_path());
}

TEST(QtDesktop, StartsWhatIsInstalled) {
    EXPECT_TRUE(QtDesktop().StartProgram("true", {"an argument"}));
    EXPECT_FALSE(QtDesktop().StartProgram("quenloft-no-such-program", {}));
}

}  // namespace
}  // namespace quenloft
