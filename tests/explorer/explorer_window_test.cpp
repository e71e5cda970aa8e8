#include "explorer/explorer_window.h"

#include <QCheckBox>
#include <QMenu>
#include <QTreeView>

#include "explorer/library_model.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

class ExplorerTest : public WindowsFixture {
  protected:
    ExplorerTest() {
        SetLibrary("lib");
        folder.WriteTable("lib/orcs.tbl", "Orcs", "An orc.");
        folder.Write("lib/sub/Village.spt", "A village.\r\n");
    }

    void SetLibrary(const std::string& name) {
        profile.WriteProfileString("Settings", "Libpath", folder.Path(name),
                                   profile.GetProfileFileName());
    }
    void Open() {
        ShowMainWindow(window);
        explorer = window.Open(form::kExplorer);
        tree = explorer->findChild<QTreeView*>("treExplorer");
        out = explorer->findChild<TextBox*>("txtOut");
        WaitUntilRead();
    }
    void WaitUntilRead() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !Model().IsReading(); }));
    }
    LibraryModel& Model() { return *qobject_cast<LibraryModel*>(tree->model()); }
    /// The row labelled `label`, with the folders above it open.
    QModelIndex Row(const QString& label) {
        const auto found = tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole, label,
                                                1, Qt::MatchExactly | Qt::MatchRecursive);
        EXPECT_EQ(found.size(), 1) << label.toStdString();
        const QModelIndex index = found.value(0);
        for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
            tree->expand(above);
        }
        return index;
    }
    /// From the top down, those out of sight too.
    std::vector<std::string> ShownRows() const {
        std::vector<std::string> labels;
        for (QModelIndex row = tree->model()->index(0, 0); row.isValid() && labels.size() < 100;
             row = tree->indexBelow(row)) {
            labels.push_back(row.data().toString().toStdString());
        }
        return labels;
    }
    void Press(const QString& label, Qt::MouseButton button) {
        const QModelIndex row = Row(label);
        QTest::mouseClick(tree->viewport(), button, {}, tree->visualRect(row).center());
    }
    QPushButton* Button(const char* name) { return explorer->findChild<QPushButton*>(name); }
    /// Opens the popup of a row and chooses an item (none where `item` is empty); the items in the
    /// order of the popup, "-" for a separator, those disabled in parentheses.
    QStringList Popup(const QString& label, const QString& item) {
        QStringList items;
        QTimer::singleShot(0, [&items, &item] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_TRUE(menu);
            QAction* chosen = nullptr;
            for (QAction* action : menu->actions()) {
                const QString text = action->isSeparator() ? "-" : action->text();
                items << (action->isEnabled() || action->isSeparator() ? text : "(" + text + ")");
                chosen = text == item ? action : chosen;
            }
            if (chosen) {
                menu->setActiveAction(chosen);
                QTest::keyClick(menu, Qt::Key_Return);
            } else {
                menu->close();
            }
        });
        emit tree->customContextMenuRequested(tree->visualRect(Row(label)).center());
        return items;
    }

    frmMain window{Services(), {{form::kExplorer, Instances::One, Make<frmExplorer>}}};
    ChildWindow* explorer = nullptr;
    QTreeView* tree = nullptr;
    TextBox* out = nullptr;
};

TEST_F(ExplorerTest, OneClickRunsATableOrScriptAndNothingElseDoes) {
    Open();
    Press("Orcs", Qt::LeftButton);
    EXPECT_EQ(out->Text(), "An orc.");
    Press("Village", Qt::LeftButton);
    EXPECT_EQ(out->Text(), "A village.");
    EXPECT_EQ(files.CurrentDirectory(), folder.LibraryPath("lib/sub"));

    out->SetText("untouched");
    Press("sub", Qt::LeftButton);
    Press("Orcs", Qt::RightButton);
    QTest::keyClick(tree, Qt::Key_Down);
    EXPECT_EQ(out->Text(), "untouched");
}

TEST_F(ExplorerTest, EnterRunsTheSelectedFileAndOpensAFolder) {
    Open();
    tree->setCurrentIndex(Row("Orcs"));
    explorer->findChild<QLineEdit*>("txtTimes")->setText("2");
    QTest::keyClick(tree, Qt::Key_Return);
    EXPECT_EQ(out->Text(), "An orc.\r\n\r\nAn orc.");
    tree->setCurrentIndex(Row("sub"));
    EXPECT_FALSE(tree->isExpanded(Row("sub")));
    QTest::keyClick(tree, Qt::Key_Enter);
    EXPECT_TRUE(tree->isExpanded(Row("sub")));
}

TEST_F(ExplorerTest, ThePopupsOfferWhatTheProgramHas) {
    Open();
    EXPECT_EQ(Popup("Orcs", "").join(", "),
              "Run, (Run As New Instance), -, (Edit), Delete, -, Refresh, Create new directory");
    EXPECT_EQ(Popup("sub", "").join(", "), "Create new directory");
    EXPECT_EQ(out->Text(), "") << "dismissed";
    Popup("Orcs", "Run");
    EXPECT_EQ(out->Text(), "An orc.");
}

TEST_F(ExplorerTest, DeletingAsksAndPrefersTheTrash) {
    Open();
    const std::string path = folder.Path("lib/orcs.tbl");
    const struct {
        Answer answer;
        bool hasTrash;
        Log trashed;
        bool isThere;
    } cases[] = {{Answer::No, true, {}, true},
                 {Answer::Yes, true, {path}, true},  // Moved, had it been a real one.
                 {Answer::Yes, false, {path, path}, false}};
    for (const auto& c : cases) {
        desktop.hasTrash = c.hasTrash;
        tree->setCurrentIndex(Row("Orcs"));
        dialogs.WillAnswer(c.answer);
        Button("btnDelete")->click();
        WaitUntilRead();
        EXPECT_EQ(dialogs.TakeLog(),
                  Log{"yes or no: Do You really want to delete Orcs (" + path + ")?"});
        EXPECT_EQ(desktop.trashed, c.trashed);
        EXPECT_EQ(std::filesystem::exists(path), c.isThere);
    }
    EXPECT_EQ(Model().rowCount(Model().index(0, 0, {})), 1);
}

TEST_F(ExplorerTest, AFileThatCannotBeDeletedSaysWhy) {
    Open();
    tree->setCurrentIndex(Row("Orcs"));
    std::filesystem::remove(folder.Path("lib/orcs.tbl"));
    files.LookAgain();
    dialogs.WillAnswer(Answer::Yes);
    dialogs.WillConfirm();
    Button("btnDelete")->click();
    EXPECT_EQ(dialogs.TakeLog().back(),
              "warning: File not found: " + folder.Path("lib/orcs.tbl") + ".");
}

TEST_F(ExplorerTest, CreatesADirectoryBesideAFileOrInAFolder) {
    Open();
    dialogs.WillGive("New Folder");
    Popup("sub", "Create new directory");
    EXPECT_TRUE(std::filesystem::is_directory(folder.Path("lib/sub/New Folder")));
    EXPECT_EQ(tree->currentIndex().data(), "New Folder");
    EXPECT_EQ(dialogs.TakeLog(), Log{"text: Enter new directory name [New Folder]"});

    tree->setCurrentIndex(Row("Orcs"));
    dialogs.WillGive("Beside");
    Button("btnNewDirectory")->click();
    EXPECT_TRUE(std::filesystem::is_directory(folder.Path("lib/Beside")));

    tree->setCurrentIndex(Row("sub"));
    dialogs.WillGive("");
    Button("btnNewDirectory")->click();
    dialogs.WillGive("Village.spt");
    dialogs.WillConfirm();
    dialogs.WillConfirm();  // The cause has a box of its own.
    Button("btnNewDirectory")->click();
    EXPECT_EQ(dialogs.TakeLog()[3], "warning: Error i directory popup!");
}

TEST_F(ExplorerTest, AMissingLibraryNamesTheCure) {
    SetLibrary("nowhere");
    Open();
    EXPECT_EQ(out->Text(), "The library folder " + folder.Path("nowhere") +
                               " cannot be shown: the folder does not exist.\r\n\r\nChoose the "
                               "folder of your tables under File, Settings, Library Path; then "
                               "click Refresh.");
    SetLibrary("lib");
    Button("btnRefresh")->click();
    Press("Orcs", Qt::LeftButton);
    EXPECT_EQ(out->Text(), "An orc.");
}

TEST_F(ExplorerTest, RefreshKeepsOpenFoldersAndTheSelection) {
    Open();
    tree->setCurrentIndex(Row("Village"));
    folder.WriteTable("lib/bats.tbl", "Bats", "A bat.");
    Button("btnRefresh")->click();
    QCoreApplication::processEvents();
    tree->indexAt({});  // The view lays out its rows, and asks for those of open folders meanwhile.
    WaitUntilRead();
    QCoreApplication::processEvents();
    EXPECT_TRUE(tree->isExpanded(Row("sub")));
    EXPECT_TRUE(Row("Bats").isValid());
    EXPECT_EQ(tree->currentIndex(), Row("Village"));
    // Had the view counted a row twice, it would now take away more than there are.
    tree->collapse(tree->model()->index(0, 0));
    tree->expand(tree->model()->index(0, 0));
    EXPECT_EQ(ShownRows(), (std::vector<std::string>{"lib", "Bats", "Orcs", "sub", "Village"}));
}

TEST_F(ExplorerTest, ExportsTheOutputWithAFooter) {
    Open();
    Press("Orcs", Qt::LeftButton);
    EXPECT_EQ(explorer->Export(),
              "An orc.\r\n\r\nFilename : " + folder.Path("lib/orcs.tbl") + FooterOfToday());
}

}  // namespace
}  // namespace quenloft
