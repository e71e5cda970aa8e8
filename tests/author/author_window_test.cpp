#include "author/author_window.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>
#include <QToolButton>

#include "author/rich_text_box.h"
#include "author/rtf_writer.h"
#include "tests/author/rich_text_outline.h"
#include "tests/support/windows_fixture.h"

namespace quenloft {
namespace {

constexpr char kFilter[] = "Rich Text (*.rtf)|*.rtf|All files (*.*)|*.*";

class AuthorWindowTest : public WindowsFixture {
  protected:
    AuthorWindowTest() {
        folder.Write("notes.rtf", "{\\rtf1 {\\b old} notes\\par}");
        ShowMainWindow(window);
        author = window.Open(form::kAuthor);
        box = author->findChild<RichTextBox*>("rtfAuthor");
        box->setFocus();
    }

    void Click(const char* name) { WindowsFixture::Click(*author, name); }
    void Type(const char* text) { QTest::keyClicks(box, QLatin1String(text)); }
    /// A file that was loaded and then changed by the user.
    void LoadAndType(const std::string& name) {
        author->Load(folder.Path(name));
        Type("x");
    }
    /// Without the font, which depends on the machine.
    std::string Outline() const {
        RichText text = box->Text();
        const CharFormat usual = PlainFormat();
        for (Paragraph& paragraph : text.paragraphs) {
            for (TextRun& run : paragraph.runs) {
                run.format.font = run.format.font == usual.font ? "" : run.format.font;
                run.format.halfPoints =
                    run.format.halfPoints == usual.halfPoints ? 24 : run.format.halfPoints;
            }
        }
        return OutlineOf(text);
    }
    static CharFormat PlainFormat() {
        RichTextBox empty;
        return empty.Text().paragraphs.front().endFormat;
    }
    std::string Plain() const { return box->toPlainText().toStdString(); }
    std::string Title() const { return TitleOf(*author); }
    bool IsChecked(const char* name) { return author->findChild<QToolButton*>(name)->isChecked(); }

    frmMain window{Services(), {{form::kAuthor, Instances::Many, Make<frmAuthor>}}};
    QPointer<ChildWindow> author;
    RichTextBox* box = nullptr;
};

TEST_F(AuthorWindowTest, NotesAreSavedAndOpenedAgain) {
    Type("a");
    EXPECT_EQ(Title(), "Author Area*");
    dialogs.WillGive(folder.Path("new.rtf"));
    Click("btnSave");
    EXPECT_EQ(Title(), "Author Area new.rtf");
    QTest::keyClick(box, Qt::Key_B, Qt::ControlModifier);
    Type("b");
    QTest::keyClick(box, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(folder.Read("new.rtf"), WriteRtf(box->Text()));
    for (const auto& [name, outline] :
         {std::pair("notes.rtf", "{b:old} notes"), std::pair("new.rtf", "a{b:b}")}) {
        dialogs.WillGive(folder.Path(name));
        Click("btnOpen");
        EXPECT_EQ(Outline(), outline);
    }
    const std::string filter = std::string(kFilter) + " in " + folder.Path();
    EXPECT_EQ(dialogs.TakeLog(), (Log{std::string("save: ") + kFilter + " at " + folder.Path(),
                                      "open: " + filter, "open: " + filter}));
}

TEST_F(AuthorWindowTest, AsksBeforeASaveDestroysSomething) {
    const std::string picture = "{\\rtf1 a{\\pict 00}\\trowd b\\cell\\row}";
    const struct {
        std::string before;
        std::string onDisk;    ///< When it is saved.
        std::string question;  ///< Behind the path.
    } cases[] = {
        {picture, picture,
         " also holds pictures and the form of tables, which the Author Area cannot keep. Save "
         "without them?"},
        {"plain \xE9", "plain \xE9",
         " is plain text. Saving makes it Rich Text, which programs for plain text cannot read. "
         "Save?"},
        {"{\\rtf1 a}", "{\\rtf1 b}",
         " was changed by another program since it was read. Save over these changes?"},
    };
    const std::string path = folder.Path("asked.rtf");
    for (const auto& [before, onDisk, question] : cases) {
        folder.Write("asked.rtf", before);
        LoadAndType("asked.rtf");
        folder.Write("asked.rtf", onDisk);
        dialogs.WillAnswer(Answer::No);
        Click("btnSave");
        EXPECT_EQ(dialogs.TakeLog(), Log{"yes or no: The file " + path + question});
        EXPECT_EQ(folder.Read("asked.rtf"), onDisk);
        EXPECT_EQ(Title(), "Author Area asked.rtf*");
        dialogs.WillAnswer(Answer::Yes);
        Click("btnSave");
        Type("y");
        Click("btnSave");  // Asked once only.
        EXPECT_EQ(folder.Read("asked.rtf"), WriteRtf(box->Text()));
        dialogs.TakeLog();
    }
    folder.Write("asked.rtf", picture);
    LoadAndType("asked.rtf");
    dialogs.WillGive(folder.Path("other.rtf"));
    dialogs.WillAnswer(Answer::Yes);
    Click("btnSaveAs");
    EXPECT_EQ(dialogs.TakeLog().back(), "yes or no: The file " + path + cases[0].question)
        << "nor is it in the other file";
    EXPECT_EQ(folder.Read("asked.rtf"), picture);
}

TEST_F(AuthorWindowTest, TheBarChangesTheTextAndShowsWhatItIs) {
    Type("plain");
    for (const char* button : {"btnBold", "btnItalic", "btnUnderline", "btnStrike"}) {
        Click(button);
    }
    Type("all");
    Click("btnCenter");
    EXPECT_EQ(Outline(), "<qc>plain{b i u s:all}");
    EXPECT_TRUE(IsChecked("btnBold") && IsChecked("btnStrike") && IsChecked("btnCenter"));
    box->moveCursor(QTextCursor::Start);
    EXPECT_FALSE(IsChecked("btnBold"));

    box->selectAll();
    author->findChild<QComboBox*>("cmbSize")->setCurrentText("31");
    QTest::keyClick(author->findChild<QComboBox*>("cmbSize"), Qt::Key_Return);
    const auto colors = author->findChild<QToolButton*>("btnColor")->menu()->actions();
    colors.at(1)->trigger();
    EXPECT_EQ(Outline(), "<qc>{62 209,52,56:plain}{b i u s 62 209,52,56:all}");
    colors.at(0)->trigger();
    EXPECT_EQ(Outline(), "<qc>{62:plain}{b i u s 62:all}") << "automatic is no colour";
    Click("btnUndo");
    Click("btnUndo");
    QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Outline(), "<qc>{62 209,52,56:plain}{b i u s 62 209,52,56:all}");
}

TEST_F(AuthorWindowTest, OnlyWhatIsChosenOrTypedInTheBarChangesTheText) {
    folder.Write("mixed.rtf", "{\\rtf1{\\fs24 small}{\\fs48 large}}");
    author->Load(folder.Path("mixed.rtf"));
    box->selectAll();
    const std::string before = Outline();
    auto* font = author->findChild<QComboBox*>("cmbFont");
    auto* size = author->findChild<QComboBox*>("cmbSize");
    font->setFocus();
    QTest::keyClick(font, Qt::Key_Tab);
    QTest::keyClick(size, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), author->findChild<QToolButton*>("btnBold"));
    EXPECT_EQ(Outline(), before);
    EXPECT_FALSE(box->document()->isModified());

    size->showPopup();
    QTest::keyClick(size->view(), Qt::Key_Return);
    EXPECT_EQ(Outline(), "{48:smalllarge}") << "chosen, though it was the one that showed";
    Click("btnUndo");
    box->selectAll();

    font->setFocus();
    font->lineEdit()->selectAll();
    QTest::keyClick(font, Qt::Key_Delete);
    QTest::keyClick(font, Qt::Key_Tab);
    EXPECT_EQ(Outline(), before) << "no font has no name";
    font->setFocus();
    font->lineEdit()->selectAll();
    QTest::keyClicks(font, "Nosuchfont");
    EXPECT_EQ(Outline(), before) << "not yet";
    QTest::keyClick(font, Qt::Key_Tab);
    EXPECT_EQ(Outline(), "{Nosuchfont:small}{48 Nosuchfont:large}");
}

TEST_F(AuthorWindowTest, ListsAreMadeByTheKeyboardToo) {
    Click("btnNumbers");
    Type("one\r");
    QTest::keyClick(box, Qt::Key_Tab);
    Type("inner\r");
    QTest::keyClick(box, Qt::Key_Backtab);
    Type("two\r");
    QTest::keyClick(box, Qt::Key_Return);
    Type("no item\r");
    Click("btnBullets");
    EXPECT_EQ(Outline(),
              "<1 li360 fi-360>one|<1 level1 li720 fi-360>inner|<2 li360 fi-360>two|no "
              "item|<\u2022 li360 fi-360>");
    QTest::keyClick(box, Qt::Key_Backspace);
    EXPECT_FALSE(IsChecked("btnBullets"));
}

TEST_F(AuthorWindowTest, KeysAndButtonsChangeTheSelectedItemsAndNoMore) {
    Click("btnBullets");
    Type("a\rb\rc");
    QTextCursor cursor = box->textCursor();
    cursor.setPosition(1);
    cursor.setPosition(4, QTextCursor::KeepAnchor);  // Up to the start of the third.
    box->setTextCursor(cursor);
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_EQ(Outline(),
              "<\u2022 level1 li720 fi-360>a|<\u2022 level1 li720 fi-360>b|<\u2022 li360 fi-360>c");
    QTest::keyClick(box, Qt::Key_Backtab);
    Click("btnNumbers");
    EXPECT_EQ(Outline(), "<1 li360 fi-360>a|<2 li360 fi-360>b|<\u2022 li360 fi-360>c");
    Click("btnNumbers");
    EXPECT_EQ(Outline(), "a|b|<\u2022 li360 fi-360>c");
}

TEST_F(AuthorWindowTest, TheKeysKeepTheFormAndTheMenuDoesNot) {
    const auto offer = [](const char* type, const char* bytes) {
        auto* data = new QMimeData;
        data->setData(QLatin1String(type), bytes);
        data->setText("rich");
        QApplication::clipboard()->setMimeData(data);
    };
    const std::pair<const char*, const char*> kinds[] = {
        {"text/html", "<b>ri</b>ch<img src='a.png'>"},
        {"text/rtf", "{\\rtf1\\fs0{\\b ri}ch{\\pict 00}}"}};
    for (const auto& [type, bytes] : kinds) {
        box->clear();
        offer(type, bytes);
        QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(box->toPlainText(), "rich") << type;
        QTextCursor cursor(box->document());
        cursor.setPosition(1);
        EXPECT_EQ(cursor.charFormat().fontWeight(), QFont::Bold) << type;
    }
    box->selectAll();
    QTest::keyClick(box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->data("text/rtf").contains("\\b"));
    box->setPlainText("a\u2028z\n");
    box->selectAll();
    Choose(window, "mnuEdit_Copy");
    EXPECT_EQ(clipboard.text, "a\r\nz\r\n");
    box->clear();
    const std::string word = "<i>" + std::string(5000, 'w');
    clipboard.text = word;
    Choose(window, "mnuEdit_Paste");
    EXPECT_EQ(Outline(), word);
    clipboard.text.clear();
    box->selectAll();
    Choose(window, "mnuEdit_Cut");
    EXPECT_EQ(clipboard.text, word);
    EXPECT_EQ(Outline(), "");
}

TEST_F(AuthorWindowTest, PrintsTheFormattedText) {
    author->Load(folder.Path("notes.rtf"));
    printer.failure = "The printer burns.";
    dialogs.WillConfirm();
    Choose(window, "mnuFile_Print");
    EXPECT_EQ(dialogs.TakeLog(), Log{"warning: The printer burns."});
    ASSERT_EQ(printer.printedHtml.size(), 1U);
    QTextDocument printed;
    printed.setHtml(QString::fromStdString(printer.printedHtml.front()));
    EXPECT_EQ(printed.toPlainText(), "old notes");
    EXPECT_GE(printed.begin().begin().fragment().charFormat().fontWeight(), QFont::Bold);
}

}  // namespace
}  // namespace quenloft
