#include "shell/text_box.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
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
    };
    TextBox box;
    for (const std::string& text : cases) {
        box.SetText(text);
        EXPECT_EQ(box.Text(), text);
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

TEST(TextBox, LongWordsDoNotHoldUpTheProgram) {
    // As one line this would take minutes.
    TextBox box;
    box.resize(400, 300);
    box.show();
    box.SetText(std::string(1'000'000, 'x'));
    QCoreApplication::processEvents();
    EXPECT_LT(box.document()->firstBlock().length(), 5'000);
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
