#include "explorer/library_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include "platform/linux/linux_file_system.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

class LibraryModelTest : public testing::Test {
  protected:
    void Load(bool showHidden = false) { model.Reload(folder.Path("lib"), showHidden); }
    void WaitUntilRead() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !model.IsReading(); }, 60'000));
    }
    /// The rows below `parent`, indented by depth; rows that were never read are not there.
    std::string Tree(const QModelIndex& parent = {}, int depth = 0) {
        std::string text;
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            text += std::string(static_cast<std::size_t>(depth), ' ') + model.LabelOf(index) + "\n";
            text += Tree(index, depth + 1);
        }
        return text;
    }
    /// Fails where the model breaks the rules that views rely on.
    static void Watch(LibraryModel& watched) {
        auto* tester = new QAbstractItemModelTester(
            &watched, QAbstractItemModelTester::FailureReportingMode::Fatal, &watched);
        tester->setUseFetchMore(false);
    }
    QModelIndex Root() { return model.index(0, 0, {}); }

    TempFolder folder;
    LinuxFileSystem files;
    int titlesRead = 0;
    LibraryModel model{files, [this](const std::string& path) {
                           ++titlesRead;
                           return "Title of " + path.substr(path.rfind('\\') + 1);
                       }};
};

TEST_F(LibraryModelTest, SortsFoldersTablesAndScriptsTogether) {
    for (const char* name : {"lib/zoo/lion.tbl", "lib/Village.spt", "lib/names.tbl",
                             "lib/apes/.hidden.tbl", "lib/readme.txt"}) {
        folder.Write(name, "");
    }
    Load();
    WaitUntilRead();
    EXPECT_EQ(Tree(), "lib\n apes\n Title of names.tbl\n Village\n zoo\n  Title of lion.tbl\n");
    Load(true);
    WaitUntilRead();
    EXPECT_EQ(Tree(),
              "lib\n apes\n  Title of .hidden.tbl\n Title of names.tbl\n Village\n zoo\n  Title of "
              "lion.tbl\n");
}

TEST_F(LibraryModelTest, TheTopLevelIsThereAtOnceWhateverTheSizeOfTheLibrary) {
    for (int i = 0; i < 500; ++i) {
        folder.Write("lib/folder" + std::to_string(i / 10) + "/" + std::to_string(i) + ".tbl", "");
    }
    Load();
    EXPECT_EQ(model.rowCount(Root()), 50);
    EXPECT_EQ(titlesRead, 0) << "titles of folders that nobody has opened";
    WaitUntilRead();
    EXPECT_EQ(titlesRead, 500);
}

TEST_F(LibraryModelTest, RowsOfAFolderAppearTogetherAndInOrder) {
    for (int i = 0; i < 300; ++i) {
        folder.Write("lib/big/" + std::to_string(i) + ".tbl", "");
    }
    LibraryModel slow(files, [](const std::string& path) {
        QTest::qSleep(1);  // A disk that turns slowly.
        return path;
    });
    Watch(slow);
    const QSignalSpy inserted(&slow, &QAbstractItemModel::rowsInserted);
    slow.Reload(folder.Path("lib"), false);
    const QModelIndex big = slow.index(0, 0, slow.index(0, 0, {}));
    slow.fetchMore(big);
    EXPECT_EQ(slow.rowCount(big), 0);
    EXPECT_EQ(big.data(), "big (reading...)");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !slow.IsReading(); }));
    EXPECT_EQ(slow.rowCount(big), 300);
    EXPECT_EQ(inserted.count(), 2) << "one for the library's folder, one for the big one";
}

TEST_F(LibraryModelTest, LinksBackToAParentEnd) {
    namespace fs = std::filesystem;
    folder.Write("lib/a/x.tbl", "");
    folder.Write("lib/b/y.tbl", "");
    fs::create_directory_symlink(folder.Path("lib"), folder.Path("lib/a/up"));
    fs::create_directory_symlink(folder.Path("lib/b"), folder.Path("lib/a/toB"));
    fs::create_directory_symlink(".", folder.Path("lib/b/self"));
    Load();
    WaitUntilRead();
    const std::string x = "Title of x.tbl\n";
    const std::string y = "Title of y.tbl\n";
    EXPECT_EQ(Tree(), "lib\n a\n  " + x + "  toB\n  up\n b\n  self\n  " + y);
    // What is reached by two ways is read when it is opened, and ends there too.
    model.fetchMore(model.index(1, 0, model.index(0, 0, Root())));
    WaitUntilRead();
    EXPECT_EQ(Tree(), "lib\n a\n  " + x + "  toB\n   self\n   " + y + "  up\n b\n  self\n  " + y);
}

TEST_F(LibraryModelTest, AFolderThatCannotBeListedSaysSo) {
    folder.Write("lib/gone/x.tbl", "");
    Load();
    std::filesystem::remove_all(folder.Path("lib/gone"));
    files.LookAgain();
    const QModelIndex gone = model.index(0, 0, Root());
    model.fetchMore(gone);
    EXPECT_FALSE(model.hasChildren(gone));
    EXPECT_EQ(gone.data(), "gone (cannot be read)");
    EXPECT_EQ(gone.data(Qt::ToolTipRole).toString().toStdString(),
              folder.Path("lib/gone") + "\nPath not found: " + folder.Path("lib/gone"));
}

TEST_F(LibraryModelTest, ReloadingOneFolderSeesItsNewContent) {
    folder.Write("lib/a/x.tbl", "");
    folder.Write("lib/b/y.tbl", "");
    Watch(model);
    Load();
    WaitUntilRead();
    folder.Write("lib/a/New Folder/z.tbl", "");
    model.ReloadFolder(model.index(0, 0, Root()));
    WaitUntilRead();
    EXPECT_EQ(Tree(),
              "lib\n a\n  New Folder\n   Title of z.tbl\n  Title of x.tbl\n b\n"
              "  Title of y.tbl\n");
}

}  // namespace
}  // namespace quenloft
