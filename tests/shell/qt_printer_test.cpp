#include "platform/qt/qt_printer.h"

#include <QPdfWriter>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include "tests/support/repeated.h"
#include "tests/support/temp_folder.h"

namespace quenloft {
namespace {

class QtPrinterTest : public testing::Test {
  protected:
    /// Set up as by a user who prints to a PDF file.
    QtPrinter PdfPrinter(const std::string& path) {
        return QtPrinter([path](QPrinter& printer) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(QString::fromStdString(path));
            printer.setPageSize(QPageSize(QPageSize::A4));
            return true;
        });
    }
    std::string Print(const std::string& text, const std::string& path) {
        QtPrinter printer = PdfPrinter(path);
        EXPECT_TRUE(printer.ChoosePrinter());
        return printer.PrintText(text);
    }
    int PagesIn(const char* file) {
        const QByteArray pdf = QByteArray::fromStdString(folder.Read(file));
        const auto match = QRegularExpression("/Count (\\d+)").match(QString::fromLatin1(pdf));
        return match.captured(1).toInt();
    }

    TempFolder folder;
    std::string pdf = folder.Path("out.pdf");
};

TEST_F(QtPrinterTest, BreaksTextIntoPages) {
    const struct {
        std::string text;
        int least, most;
    } cases[] = {
        {"", 1, 1},
        {Repeated("A line of the result.\r\n", 40), 1, 1},
        {Repeated("A line of the result.\r\n", 400), 6, 9},
        {std::string(400'000, 'x'), 50, 150},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Print(c.text, pdf), "");
        EXPECT_GE(PagesIn("out.pdf"), c.least);
        EXPECT_LE(PagesIn("out.pdf"), c.most);
    }
}

TEST_F(QtPrinterTest, FormattedTextKeepsItsFontsAndItsPages) {
    QtPrinter printer = PdfPrinter(pdf);
    ASSERT_TRUE(printer.ChoosePrinter());
    EXPECT_EQ(printer.PrintHtml("<p style='font-size:40pt'>Large</p>"
                                "<p style='page-break-before:always'><b>Next</b></p>"),
              "");
    EXPECT_EQ(PagesIn("out.pdf"), 2);
    // Bold is a font of its own beside the one of the page numbers.
    EXPECT_GE(QByteArray::fromStdString(folder.Read("out.pdf")).count("/Type /Font\n"), 2);
}

TEST_F(QtPrinterTest, PrintsTheChosenPagesOnly) {
    QtPrinter printer([this](QPrinter& setUp) {
        setUp.setOutputFormat(QPrinter::PdfFormat);
        setUp.setOutputFileName(QString::fromStdString(pdf));
        setUp.setPrintRange(QPrinter::PageRange);
        setUp.setFromTo(2, 3);
        return true;
    });
    ASSERT_TRUE(printer.ChoosePrinter());
    EXPECT_EQ(printer.PrintText(std::string(2'000, '\n')), "");
    EXPECT_EQ(PagesIn("out.pdf"), 2);
}

TEST_F(QtPrinterTest, SaysWhyNothingWasPrinted) {
    const std::string noPrinter =
        "Nothing was printed: no printer is set up. Choose \"Print to File (PDF)\" instead.";
    EXPECT_EQ(QtPrinter().PrintText("x"), noPrinter);
    EXPECT_EQ(Print("x", ""), noPrinter);
    const std::string unreachable = folder.Path("missing/out.pdf");
    EXPECT_EQ(Print("x", unreachable), "The text could not be printed: " + unreachable +
                                           " could not be saved: No such file or directory.");
    const std::string noFolder = folder.Write("file", "");
    qputenv("TMPDIR", QByteArray::fromStdString(noFolder));
    EXPECT_EQ(Print("x", pdf), "The text could not be printed on " + pdf +
                                   ": there is no room for it in " + noFolder + ".");
    qunsetenv("TMPDIR");
}

}  // namespace
}  // namespace quenloft
