#include "shell/text_box.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>
#include <gtest/gtest.h>

namespace quenloft {
namespace {

TEST(TextBox, GivesBackWhatWentIn) {
    const std::string cases[] = {
        "",
        "one line",
        "two\r\nlines\r\n",
        "\r\n\r\nblank lines",
        "no\xC2\xA0"
        "break",
        "trailing blanks  \r\n\ttab",
        std::string(20'000, 'x') + "\r\nshort\r\n" + std::string(9'000, 'y') + " z",
        std::string(4'096, ' ') + "\xF0\x9F\x90\x89" + std::string(5'000, '-'),
        // What the document has uses for.
        (QString::fromUtf16(u"a\u2029b\u2028c\uFDD0\uFDD1d\u206F\uFFFCe\U00010000") + QChar(u'\0') +
         QString(5000, QChar(0x206F)))
            .toStdString(),
    };
    TextBox box;
    for (const std::string& text : cases) {
        box.SetText(text);
        EXPECT_EQ(box.Text(), text);
        EXPECT_LT(box.document()->firstBlock().length(), 5'000) << "its layout would take minutes";
    }
}

TEST(TextBox, AppendsToLinesOfAnyLength) {
    TextBox box;
    const std::string line(10'000, 'x');
    box.AppendText(line);
    box.AppendText(line + "\r\n");
    box.AppendText("end");
    EXPECT_EQ(box.Text(), line + line + "\r\nend");
}

// As narrow as its scroll bar, it could show and hide that for ever.
TEST(TextBox, SettlesInAnySize) {
    QWidget window;
    window.resize(300, 300);
    TextBox box(&window);
    box.SetText("word word word word word word word");
    window.show();
    QCoreApplication::processEvents();
    for (int width = 1; width <= 40; ++width) {
        for (int height = 1; height <= 80; height += 5) {
            box.setGeometry(0, 0, width, height);
            QCoreApplication::processEvents();
        }
    }
}

TEST(TextBox, ShiftEnterEndsALine) {
    TextBox box;
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClicks(&box, "a");
        QTest::keyClick(&box, key, Qt::ShiftModifier);
    }
    EXPECT_EQ(box.Text(), "a\r\na\r\n");
    box.setReadOnly(true);
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(box.Text(), "a\r\na\r\n");
}

// Lines of any length stay one line, whatever is done where they are broken.
TEST(TextBox, EditsLongLinesAsOne) {
    TextBox box;
    // The first break is behind the last blank of the first 1024 letters.
    const QString line = QString(1000, 'x') + " " + QString(4096, 'y') + "z\nend";
    const auto text = [&box] { return QString::fromStdString(box.Text()).remove('\r'); };
    const auto edit = [&](int position, auto... keys) {
        box.SetText(line.toStdString());
        QTextCursor cursor = box.textCursor();
        cursor.setPosition(position);
        box.setTextCursor(cursor);
        (QTest::keyClick(&box, keys), ...);
        const QString edited = text();
        box.document()->undo();
        EXPECT_EQ(text(), line);
        box.document()->redo();
        EXPECT_EQ(text(), edited);
        return edited;
    };
    EXPECT_EQ(edit(1, Qt::Key_End, Qt::Key_Q), QString(line).insert(1001, 'q'));
    EXPECT_EQ(edit(1001, Qt::Key_Right, Qt::Key_Q), QString(line).insert(1001, 'q'));
    EXPECT_EQ(edit(1003, Qt::Key_Left, Qt::Key_Q), QString(line).insert(1001, 'q'));
    EXPECT_EQ(edit(1003, Qt::Key_Return), QString(line).insert(1001, '\n'));
    EXPECT_EQ(edit(1001, Qt::Key_Return), QString(line).insert(1001, '\n'));
    EXPECT_EQ(edit(1003, Qt::Key_Backspace), QString(line).remove(1000, 1));
    EXPECT_EQ(edit(1001, Qt::Key_Delete), QString(line).remove(1001, 1));
}

TEST(TextBox, CutsAndPastesAnyPartOfLongLines) {
    TextBox box;
    const QString line = "first\n" + QString(4096, 'x') + QString(4096, 'y') + "z\nend";
    const int starts[] = {0, 5, 6, 7, 1030, 1031, 1032, 1033};
    for (const int start : starts) {
        for (const int length : {1, 2, 3, 1024, 1026, 8195}) {
            box.SetText(line.toStdString());
            QTextCursor cursor = box.textCursor();
            cursor.setPosition(start);
            cursor.setPosition(qMin(start + length, box.document()->characterCount() - 1),
                               QTextCursor::KeepAnchor);
            box.setTextCursor(cursor);
            if (!box.textCursor().hasSelection()) {
                continue;  // Nothing but the place where the line is broken.
            }
            box.cut();
            box.paste();
            EXPECT_TRUE(QString::fromStdString(box.Text()).remove('\r') == line)
                << start << " " << length;
        }
    }
}

TEST(TextBox, NothingPastedMakesABlockTooLong) {
    TextBox box;
    QString expected = "[]";
    box.SetText(expected.toStdString());
    box.moveCursor(QTextCursor::Right);
    for (int i = 0; i < 20; ++i) {
        const QString piece(3000, QChar('a' + i));
        InsertText(box, piece);
        expected.insert(expected.size() - 1, piece);
    }
    EXPECT_EQ(box.Text(), expected.toStdString());
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
        EXPECT_LT(block.length(), 9'000);
    }
}

TEST(TextBox, CopiesPlainTextOnly) {
    TextBox box;
    const QString line(9'000, 'x');
    box.SetText((line + "\r\nno\u00A0break").toStdString());
    box.selectAll();
    box.copy();
    const QMimeData* data = QApplication::clipboard()->mimeData();
    ASSERT_TRUE(data);
    EXPECT_EQ(data->text(), line + "\nno\u00A0break");
    EXPECT_FALSE(data->hasHtml());
    EXPECT_EQ(SelectedText(box), box.Text());
}

}  // namespace
}  // namespace quenloft
