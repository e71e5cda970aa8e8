#include "author/rich_document.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <gtest/gtest.h>

#include "author/qt_formats.h"
#include "tests/author/random_text.h"
#include "tests/author/rich_text_outline.h"

namespace quenloft {
namespace {

/// As the document keeps it: an item of a list stands as far in as its level, at the least.
RichText AsShown(RichText text) {
    for (Paragraph& paragraph : text.paragraphs) {
        ParagraphFormat& format = paragraph.format;
        if (format.list.kind != ListKind::None) {
            format.leftIndent = std::max(format.leftIndent, 360 * (format.list.level + 1));
        }
    }
    return text;
}

RichText OneRun(const std::string& words) {
    return {{{{},
              {{words, {.font = "Serif", .halfPoints = 24}}},
              {.font = "Serif", .halfPoints = 24}}}};
}

TEST(RichDocument, KeepsWhateverIsShown) {
    QTextDocument document;
    for (unsigned seed = 0; seed < 200; ++seed) {
        const RichText text = AsShown(RandomText(seed).Make());
        ShowText(text, document);
        ASSERT_EQ(TextOf(document), text) << "seed " << seed;
        ASSERT_FALSE(document.isModified());
        ASSERT_FALSE(document.isUndoAvailable());
    }
}

TEST(RichDocument, WhatATextLeavesOpenIsTheDocumentsOwn) {
    QTextDocument document;
    QFont font(QStringLiteral("Serif"), 14);
    font.setBold(true);
    document.setDefaultFont(font);
    ShowText({{{{}, {{"a", {}}}, {}}}}, document);
    EXPECT_EQ(OutlineOf(TextOf(document)), "{b 28 Serif:a}");
    ShowText({{{{}, {{"a", {.font = "Sans"}}}, {}}}}, document);
    EXPECT_EQ(OutlineOf(TextOf(document)), "{28 Sans:a}") << "not bold, as it says";
    // The automatic colour follows the palette, so that notes can be read on a dark screen.
    EXPECT_FALSE(
        document.begin().begin().fragment().charFormat().hasProperty(QTextFormat::ForegroundBrush));
}

TEST(RichDocument, ItemsThatCountOnAreOneList) {
    QTextDocument document;
    RichText text;
    for (const ListItem item : {ListItem{ListKind::Decimal, 0, 1},
                                {ListKind::LowerLetter, 1, 1},
                                {},
                                {ListKind::Decimal, 0, 2},
                                {ListKind::Decimal, 0, 1}}) {
        text.paragraphs.push_back({.format = {.list = item}, .runs = {}, .endFormat = {}});
    }
    ShowText(text, document);
    const QTextBlock first = document.begin();
    const QTextBlock second = document.findBlockByNumber(3);
    EXPECT_EQ(first.textList(), second.textList());
    EXPECT_EQ(second.textList()->itemText(second), "2.");
    EXPECT_NE(second.textList(), second.next().textList());
}

TEST(RichDocument, TextOfWebPagesComesWithoutTheirTablesAndPictures) {
    QTextDocument document;
    document.setDefaultFont(QFont(QStringLiteral("Serif"), 12));
    PrepareDocument(document);
    document.setHtml(
        QStringLiteral("<p>a<img "
                       "src='x.png'><b>b</b></p><table><tr><td>c</td><td>d<br>e</td></"
                       "tr><tr><td>f</td></tr></table>"
                       "<ul><li>g<ol><li>h</li></ol></li></ul>"));
    std::string outline;
    for (const Paragraph& paragraph : TextOf(document).paragraphs) {
        outline += ListLabel(paragraph.format.list.kind, paragraph.format.list.number);
        for (const TextRun& run : paragraph.runs) {
            outline += run.format.bold ? "*" + run.text : run.text;
        }
        outline += "|";
    }
    EXPECT_EQ(outline,
              "a*b|c\td\u2028"
              "e|f\t||\u2022g|1h|");
}

TEST(RichDocument, OneEndlessWordDoesNotHoldUpTheWindow) {
    const RichText text = OneRun(std::string(200'000, 'x'));
    QTextDocument document;
    ShowText(text, document);
    EXPECT_EQ(TextOf(document), text);
    EXPECT_GT(document.blockCount(), 40) << "laid out as one, it would take minutes";
    RichText colorful = OneRun("");
    colorful.paragraphs.front().runs.clear();
    for (int i = 0; i < 2000; ++i) {
        const CharFormat format{.font = "Serif", .halfPoints = 24, .bold = i % 2 == 0};
        colorful.paragraphs.front().runs.push_back({"z", format});
    }
    ShowText(colorful, document);
    EXPECT_EQ(TextOf(document), colorful);
    EXPECT_GT(document.blockCount(), 4) << "changes of form are slow as well";
    ShowText(OneRun("word " + std::string(4000, 'y') + std::string(60'000, ' ')), document);
    EXPECT_EQ(document.blockCount(), 1) << "ordinary text";
    QTextCursor cursor(&document);
    InsertPlainText(QString(20'000, u'z') + QStringLiteral("\r\nz"), cursor);
    const RichText pasted = TextOf(document);
    EXPECT_EQ(pasted.paragraphs.size(), 2U);
    document.undo();
    document.redo();
    EXPECT_EQ(TextOf(document), pasted);
}

TEST(RichDocument, AnInsertionContinuesTheParagraphAtTheCursor) {
    QTextDocument document;
    ShowText(OneRun("ab"), document);
    QTextCursor cursor(&document);
    cursor.setPosition(1);
    RichText more = OneRun("1");
    more.paragraphs.push_back(more.paragraphs.front());
    more.paragraphs.back().format.alignment = Alignment::Center;
    InsertText(more, cursor);
    EXPECT_EQ(OutlineOf(TextOf(document)), "{Serif:a1}|<qc>{Serif:1b}");
    document.undo();
    EXPECT_EQ(OutlineOf(TextOf(document)), "{Serif:ab}") << "in one step";

    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.createList(ListFormatOf(ListKind::Decimal, 0));
    InsertText(OneRun("c"), cursor);
    EXPECT_EQ(OutlineOf(TextOf(document)), "<1 li360 fi-360>{Serif:c}") << "an item remains one";
}

}  // namespace
}  // namespace quenloft
