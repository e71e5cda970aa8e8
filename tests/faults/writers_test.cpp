// Everything that the program writes, on a disk that fails at the first call, the second, and so on
// until all goes well: what stands there is the old or the new, and the user is told once.
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <algorithm>
#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <unistd.h>

#include "author/rich_text_box.h"
#include "editors/text/code_box.h"
#include "editors/toolbox/quick_tables.h"
#include "explorer/library_model.h"
#include "generators/slot_page.h"
#include "platform/qt/qt_printer.h"
#include "shell/child_window.h"
#include "shell/font_settings.h"
#include "shell/form_names.h"
#include "shell/recent_files.h"
#include "shell/recovery/kept_text.h"
#include "shell/recovery/recovery_folder.h"
#include "shell/sample_library.h"
#include "shell/settings_dialog.h"
#include "shell/text_box.h"
#include "shell/window_geometry.h"
#include "shell/window_kinds.h"
#include "tests/faults/faulty_disk.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

using enum DiskCall;

const std::vector<DiskCall> kChanges{Create, Write, Flush, Close, Rename, Delete};

const Fault kFaults[] = {
    {"the disk is full", {Create, Write, Flush, Rename}, ENOSPC},
    {"the disk is broken", kChanges, EIO},
    {"the disk can only be read", {Create, Rename, Delete}, EROFS},
    {"the user may not", {Create, Open, Rename, Delete}, EACCES},
    {"a write is cut short before the disk is full", {Write}, ENOSPC, true},
    {"a write takes two turns", {Write}, 0, true},
    {"a write is interrupted", {Write}, EINTR},
    {"reading fails", {Open, Read}, EIO},
    {"looking fails", {Look}, EIO},
    {"owner and permissions cannot be set", {Own}, EPERM},
};

/// Native path and bytes of every file; folders end in "/".
using Files = std::map<std::string, std::string>;

bool IsOf(const std::string& path, const Files& files, const std::string& bytes) {
    const auto found = files.find(path);
    return found != files.end() && found->second == bytes;
}

/// Something that the program writes. All of them can be done again and again.
struct Writer {
    /// Makes something to write; the number differs from time to time.
    std::function<void(int number)> change;
    std::function<void()> write;
    /// Shows that something is unsaved.
    const ChildWindow* window = nullptr;
};

class Writers : public WindowsFixture {
  protected:
    Writers() {
        dialogs.WillConfirmEveryMessage();
        ShowMainWindow(window);
        folder.Write("quenloft.INI", "; mine\r\n[Other]\r\nkey=value\r\n");
    }

    /// By a call that no fault is about.
    bool IsThere(const std::string& path) const { return access(path.c_str(), F_OK) == 0; }
    /// Results and PDF files tell the time: digits do not count in them.
    Files Snapshot() const {
        Files found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path())) {
            const std::string path = entry.path().string();
            if (entry.is_directory()) {
                found[path + "/"] = "";
                continue;
            }
            std::string bytes = folder.Read(path.substr(folder.Path().size() + 1));
            if (path.ends_with(".txt") || path.ends_with(".pdf")) {
                std::replace_if(
                    bytes.begin(), bytes.end(), [](char c) { return c >= '0' && c <= '9'; }, '0');
            }
            found[path] = bytes;
        }
        return found;
    }
    std::vector<std::string> TakeMessages() {
        std::vector<std::string> log = dialogs.TakeLog();
        std::erase_if(log, [](const std::string& shown) {
            return !shown.starts_with("warning: ") ||
                   shown == "warning: Error i directory popup!";  // Its cause comes next.
        });
        return log;
    }
    static void Write(const Writer& writer) {
        writer.write();
        QCoreApplication::processEvents();
    }

    /// Lets the disk fail ever later until nothing fails any more.
    void TryAll(const Writer& writer);
    void TryFault(const Writer& writer, const Fault& fault);
    void CheckOne(const Writer& writer, const Fault& fault, const Files& before);

    frmMain window{Services(), MakeWindowKinds(random)};
    int changes = 0;
};

void Writers::TryAll(const Writer& writer) {
    for (const Fault& fault : kFaults) {
        TryFault(writer, fault);
        if (HasFailure()) {
            return;
        }
    }
}

void Writers::TryFault(const Writer& writer, const Fault& fault) {
    constexpr int kMostCalls = 1000;
    for (int number = 1; number < kMostCalls; ++number) {
        SCOPED_TRACE(std::string(fault.name) + ", at call " + std::to_string(number));
        writer.change(++changes);
        QCoreApplication::processEvents();
        TakeMessages();
        const Files before = Snapshot();
        bool hasStruck = false;
        {
            const FaultyDisk disk(folder.Path(), fault, number);
            Write(writer);
            hasStruck = disk.HasStruck();
        }
        CheckOne(writer, fault, before);
        if (!hasStruck || HasFailure()) {
            return;
        }
    }
    ADD_FAILURE() << "it never came to an end";
}

void Writers::CheckOne(const Writer& writer, const Fault& fault, const Files& before) {
    const Files after = Snapshot();
    const std::vector<std::string> messages = TakeMessages();
    const bool isDone = messages.empty();
    ASSERT_LE(messages.size(), 1U) << messages[0] << "\n" << messages[1];
    for (const std::string& message : messages) {
        EXPECT_NE(message.find(folder.Path() + "/"), std::string::npos) << message;
        EXPECT_NE(message.find(std::strerror(fault.error)), std::string::npos) << message;
        EXPECT_TRUE(message.ends_with(".")) << message;
    }
    EXPECT_TRUE(!writer.window || writer.window->isWindowModified() == !isDone);
    Write(writer);
    EXPECT_EQ(TakeMessages(), std::vector<std::string>()) << "on a disk that is well again";
    EXPECT_FALSE(writer.window && writer.window->isWindowModified());
    const Files done = Snapshot();
    for (const auto& [path, bytes] : after) {
        EXPECT_TRUE(IsOf(path, before, bytes) || IsOf(path, done, bytes))
            << path << " is neither the old nor the new: " << bytes;
        EXPECT_EQ(path.find(".quenloft-"), std::string::npos) << path << " was left behind";
    }
    for (const auto& [path, bytes] : before) {
        EXPECT_TRUE(after.contains(path) || !done.contains(path)) << path << " is gone";
    }
    EXPECT_TRUE(!isDone || after == done) << "it did not happen, and nobody was told";
}

TEST_F(Writers, TextEditor) {
    ChildWindow* editor = window.Open(form::kEdit);
    auto* box = editor->findChild<CodeBox*>();
    editor->Load(folder.WriteTable("a.tbl", "T", "old"));
    TryAll({[box](int number) { box->insertPlainText(QString::number(number)); },
            [editor] { Click(*editor, "btnSave"); }, editor});
}

TEST_F(Writers, TextEditorIntoANewFile) {
    ChildWindow* editor = window.Open(form::kEdit);
    auto* box = editor->findChild<CodeBox*>();
    const std::string path = folder.Path("new.spt");
    TryAll({[&](int) {
                std::filesystem::remove(path);
                box->insertPlainText(QStringLiteral("x"));
            },
            [&] {
                dialogs.WillGive(path);
                Click(*editor, "btnSaveAs");
            },
            editor});
}

TEST_F(Writers, TableEditorThatKeepsTheFormerFile) {
    ChildWindow* editor = window.Open(form::kEditTable);
    TryAll({[&](int number) {
                std::filesystem::remove(folder.Path("a.tbl~"));
                editor->Load(folder.Write(
                    "a.tbl", InCodePage(";" + std::to_string(number) + "\nT¤1\n\n1§A\n")));
                editor->findChild<QLineEdit*>("txtTitle")->setText(QString::number(number));
            },
            [editor] { Click(*editor, "btnSave"); }, editor});
}

TEST_F(Writers, TableImporter) {
    ChildWindow* importer = window.Open(form::kImportTable);
    auto* box = importer->findChild<TextBox*>("txtOut");
    TryAll({[&](int number) {
                std::filesystem::remove(folder.Path("list.tbl~"));
                importer->Load(
                    folder.Write("list.tbl", "sword " + std::to_string(number) + "\r\nbow"));
                box->insertPlainText(QStringLiteral("axe\n"));
            },
            [&] {
                dialogs.WillGive("Loot");
                Click(*importer, "btnSave");
            },
            importer});
}

TEST_F(Writers, Author) {
    ChildWindow* author = window.Open(form::kAuthor);
    auto* box = author->findChild<RichTextBox*>("rtfAuthor");
    author->Load(folder.Write("notes.rtf", "{\\rtf1 {\\b old} notes\\par}"));
    TryAll({[box](int) { QTest::keyClick(box, Qt::Key_X); },
            [author] { Click(*author, "btnSave"); }, author});
}

TEST_F(Writers, Exports) {
    for (const char* name : {form::kEdit, form::kEditTable, form::kScript, form::kLists,
                             form::kSingleList, form::kProbability, form::kDice, form::kExplorer}) {
        SCOPED_TRACE(name);
        TryAll({[&](int) { window.Open(name); },
                [this] {
                    dialogs.WillGive(folder.Path("export.txt"));
                    Choose(window, "mnuFile_Export");
                }});
    }
}

TEST_F(Writers, AnalysisReport) {
    ChildWindow* analysis = window.Open(form::kProbability);
    TryAll({[](int) {},
            [&] {
                dialogs.WillGive(folder.Path("report.txt"));
                Click(*analysis, "btnSaveResultTofile");
            }});
}

TEST_F(Writers, PrintToFile) {
    QtPrinter pdf([this](QPrinter& setUp) {
        setUp.setOutputFormat(QPrinter::PdfFormat);
        setUp.setOutputFileName(QString::fromStdString(folder.Path("out.pdf")));
        return true;
    });
    folder.Write("out.pdf", "what stood there");
    ASSERT_TRUE(pdf.ChoosePrinter());
    TryAll({[](int) {},
            [&] {
                if (const std::string failure = pdf.PrintText("A page."); !failure.empty()) {
                    dialogs.ShowMessage(failure, MessageIcon::Warning);
                }
            }});
}

TEST_F(Writers, Settings) {
    FontSettings fonts;
    std::unique_ptr<frmSettings> dialog;
    TryAll(
        {[&](int number) {
             dialog = std::make_unique<frmSettings>(Services(), fonts, &window);
             dialog->findChild<QLineEdit*>("txtFontName")->setText("F" + QString::number(number));
             dialog->findChild<QLineEdit*>("txtFontSize")->setText(QString::number(number));
         },
         [&] { Click(*dialog, "btnOk"); }});
}

TEST_F(Writers, SlotsOfTheListPage) {
    SlotPage page;
    TryAll({[&](int number) {
                for (int slot = 0; slot < 3; ++slot) {
                    page.Bind(slot, {folder.LibraryPath(std::to_string(number) + ".tbl"), "T", ""});
                }
            },
            [&] { page.Save(files, profile); }});
}

TEST_F(Writers, SlotsOfTheToolbox) {
    QuickTables tables;
    TryAll({[&](int number) {
                for (int slot = 0; slot < 3; ++slot) {
                    tables.Bind(slot, engine, folder.LibraryPath(std::to_string(number) + ".tbl"));
                }
            },
            [&] { tables.Save(profile); }});
}

TEST_F(Writers, RecentFiles) {
    RecentFiles recent(profile);
    TryAll({[&](int number) { recent.Add(folder.Path(std::to_string(number) + ".tbl")); },
            [&] { recent.Save(); }});
}

TEST_F(Writers, PlaceOfTheMainWindow) {
    constexpr int kWidth = 500;
    TryAll({[&](int number) { window.resize(kWidth + number % 100, kWidth); },
            [&] { SaveWindowGeometry(window, profile); }});
}

TEST_F(Writers, KeptTexts) {
    RecoveryFolder kept(folder.Path("state"));
    KeptText text;
    kept.Keep(1, text);
    TryAll({[&](int number) { text.text = "typed " + std::to_string(number); },
            [&] {
                try {
                    kept.Keep(1, text);
                } catch (const FileError& error) {
                    dialogs.ShowMessage(std::string(error.what()) + ".", MessageIcon::Warning);
                }
            }});
}

TEST_F(Writers, DeletionOfAFile) {
    ChildWindow* editor = window.Open(form::kEdit);
    const std::string path = folder.Path("gone.spt");
    TryAll({[&](int) {
                editor->findChild<CodeBox*>()->document()->setModified(false);
                editor->Load(folder.Write("gone.spt", "text"));
            },
            [&] {
                if (IsThere(path)) {
                    dialogs.WillAnswer(Answer::Yes);
                    Click(*editor, "btnDelete");
                }
            }});
}

TEST_F(Writers, NewFolder) {
    profile.WriteProfileString("Settings", "Libpath", folder.Path(), profile.GetProfileFileName());
    ChildWindow* explorer = window.Open(form::kExplorer);
    auto* tree = explorer->findChild<QTreeView*>("treExplorer");
    auto* model = qobject_cast<LibraryModel*>(tree->model());
    const std::string name = "New folder";
    TryAll({[&](int) {
                std::filesystem::remove(folder.Path(name));
                ASSERT_TRUE(QTest::qWaitFor([model] { return !model->IsReading(); }));
                tree->setCurrentIndex(model->index(0, 0, {}));
            },
            [&] {
                if (!IsThere(folder.Path(name))) {
                    dialogs.WillGive(name);
                    Click(*explorer, "btnNewDirectory");
                }
            }});
}

// The copy begins anew at the next start, in another folder: only what lies there can be checked.
TEST_F(Writers, CopyOfTheSampleLibrary) {
    const Fault& broken = kFaults[1];
    folder.Write("share/library/a.tbl", "one table");
    folder.Write("share/library/sub/b.spt", "one script");
    bool hasStruck = true;
    for (int number = 1; hasStruck; ++number) {
        SCOPED_TRACE(number);
        std::filesystem::remove_all(folder.Path("home"));
        std::filesystem::create_directory(folder.Path("home"));
        folder.Write("quenloft.INI", "");
        dialogs.WillAnswer(Answer::Yes);
        dialogs.WillGive(folder.Path("home"));
        {
            const FaultyDisk disk(folder.Path("home"), broken, number);
            OfferSampleLibrary(Services(), folder.Path("share"));
            hasStruck = disk.HasStruck();
        }
        const std::vector<std::string> messages = TakeMessages();
        EXPECT_LE(messages.size(), 1U);
        const bool isDone = messages.empty();
        for (const auto& [path, bytes] : Snapshot()) {
            if (path.find("/home/") != std::string::npos && !path.ends_with('/')) {
                EXPECT_EQ(bytes, path.ends_with("a.tbl") ? "one table" : "one script") << path;
            }
        }
        const std::string copy = folder.Path("home/Quenloft library");
        EXPECT_EQ(
            folder.Read("quenloft.INI"),
            "[Settings]\r\nLibpath=" + (isDone ? copy : folder.Path("share/library")) + "\r\n");
        if (!isDone) {
            const bool isPartThere = std::filesystem::exists(copy);
            EXPECT_EQ(
                messages[0].find("Only a part of it lies in " + copy + ".") != std::string::npos,
                isPartThere)
                << messages[0];
        }
    }
}

}  // namespace
}  // namespace quenloft
