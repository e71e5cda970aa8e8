#include "platform/qt/qt_printer.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPrintDialog>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include "platform/file_system.h"
#include "platform/linux/atomic_file.h"
#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

constexpr double kMarginMm = 20;
constexpr double kFontPoints = 10;
// A level of a list, in dots of which an inch has 96: a quarter of an inch, as on the screen.
constexpr double kListIndent = 24;
// The line of the page number, and the space above it.
constexpr double kFootLines = 2;
const std::string kFailure = "The text could not be printed on ";

void SetUpDocument(QTextDocument& document, QPrinter& printer) {
    QFont font = QApplication::font();
    font.setPointSizeF(kFontPoints);
    document.setDocumentMargin(0);
    document.documentLayout()->setPaintDevice(&printer);
    document.setDefaultFont(font);
    QSizeF page = printer.pageLayout().paintRectPixels(printer.resolution()).size();
    page.rheight() -= kFootLines * QFontMetricsF(font, &printer).lineSpacing();
    document.setPageSize(page);
}

// Laying out a paragraph takes a time that grows with the square of its length: a longer one than
// this becomes several.
constexpr qsizetype kLongestParagraph = 4096;

// Up to the last blank of `head`, if there is one.
qsizetype PieceLength(QStringView head) {
    const qsizetype words = head.lastIndexOf(u' ') + 1;
    const bool splitsLetter = head.back().isHighSurrogate();
    return words > 0 ? words : head.size() - (splitsLetter ? 1 : 0);
}

QString InShortParagraphs(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QString result;
    result.reserve(text.size() + text.size() / kLongestParagraph);
    for (QStringView rest = text; !rest.isEmpty();) {
        const QStringView head = rest.left(kLongestParagraph);
        const qsizetype lineLength = head.indexOf(u'\n') + 1;
        const bool isLong = lineLength == 0 && rest.size() > head.size();
        const qsizetype length = isLong           ? PieceLength(head)
                                 : lineLength > 0 ? lineLength
                                                  : head.size();
        result += rest.left(length);
        result += QLatin1String(isLong ? "\n" : "");
        rest = rest.mid(length);
    }
    return result;
}

// The layout brings all lengths to the size of the paper but those from left to right.
void BringMarginsToPaper(QTextDocument& document, const QPrinter& printer) {
    constexpr double kDotsOfHtml = 96;
    const double factor = printer.resolution() / kDotsOfHtml;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        format.setLeftMargin(format.leftMargin() * factor);
        format.setRightMargin(format.rightMargin() * factor);
        format.setTextIndent(format.textIndent() * factor);
        QTextCursor(block).setBlockFormat(format);
    }
}

void DrawPage(QPainter& painter, QTextDocument& document, int page) {
    const QSizeF size = document.pageSize();
    painter.save();
    painter.translate(0, -page * size.height());
    const QRectF part(0, page * size.height(), size.width(), size.height());
    painter.setClipRect(part);
    QAbstractTextDocumentLayout::PaintContext context;
    // The screen's palette may be light text on dark; paper is white.
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = part;
    document.documentLayout()->draw(&painter, context);
    painter.restore();

    painter.setFont(document.defaultFont());
    const double foot = painter.fontMetrics().lineSpacing() * kFootLines;
    painter.drawText(QRectF(0, size.height(), size.width(), foot),
                     Qt::AlignHCenter | Qt::AlignBottom,
                     QStringLiteral("Page %1 of %2").arg(page + 1).arg(document.pageCount()));
}

// The printing system may stop taking data without a word; a PDF that is whole ends with its mark.
bool IsWholePdf(const QByteArray& pdf) {
    constexpr int kTail = 32;
    return pdf.right(kTail).contains("%%EOF");
}

}  // namespace

bool ShowPrinterDialog(QPrinter& printer) {
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    return dialog.exec() == QDialog::Accepted;
}

bool QtPrinter::ChoosePrinter() {
    if (!printer_) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer_->setPageMargins(QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm),
                                 QPageLayout::Millimeter);
    }
    return setUp_(*printer_);
}

std::string QtPrinter::PrintText(const std::string& text) {
    return Print(
        [&text](QTextDocument& document) { document.setPlainText(InShortParagraphs(ToQt(text))); });
}

std::string QtPrinter::PrintHtml(const std::string& html) {
    return Print([this, &html](QTextDocument& document) {
        document.setIndentWidth(kListIndent);
        document.setHtml(ToQt(html));
        BringMarginsToPaper(document, *printer_);
    });
}

std::string QtPrinter::Print(const std::function<void(QTextDocument& document)>& fill) {
    const bool toFile = printer_ && printer_->outputFormat() == QPrinter::PdfFormat;
    if (!printer_ || (toFile && printer_->outputFileName().isEmpty())) {
        return "Nothing was printed: no printer is set up. Choose \"Print to File (PDF)\" instead.";
    }
    QTextDocument document;
    SetUpDocument(document, *printer_);
    fill(document);
    return toFile ? PrintToFile(document)
                  : Draw(document, kFailure + FromQt(printer_->printerName()));
}

// By way of a file of its own: what stood under the chosen name before stays until the new one is
// whole.
std::string QtPrinter::PrintToFile(QTextDocument& document) {
    const QString target = printer_->outputFileName();
    const std::string noRoom = kFailure + FromQt(target) + ": there is no room for it in " +
                               FromQt(QDir::tempPath()) + ".";
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        return noRoom;  // Without a name for the draft it would go to a printer.
    }
    const QString draft = folder.filePath(QStringLiteral("print.pdf"));
    printer_->setOutputFileName(draft);
    std::string failure = Draw(document, kFailure + FromQt(target));
    printer_->setOutputFileName(target);
    if (!failure.empty()) {
        return failure;
    }
    QFile file(draft);
    const QByteArray pdf = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (!IsWholePdf(pdf)) {
        return noRoom;
    }
    try {
        WriteFileAtomically(QFile::encodeName(target).toStdString(), pdf.toStdString());
    } catch (const FileError& error) {
        return std::string("The text could not be printed: ") + error.what() + ".";
    }
    return {};
}

std::string QtPrinter::Draw(QTextDocument& document, const std::string& failure) {
    QPainter painter;
    if (!painter.begin(printer_.get())) {
        return failure + ": it does not accept print jobs.";
    }
    const bool someOnly = printer_->printRange() == QPrinter::PageRange && printer_->fromPage() > 0;
    const int first = someOnly ? qMin(printer_->fromPage(), document.pageCount()) - 1 : 0;
    const int last =
        someOnly ? qMin(printer_->toPage(), document.pageCount()) : document.pageCount();
    for (int page = first; page < last; ++page) {
        if (page > first && !printer_->newPage()) {
            painter.end();
            return failure + ": it stopped at page " + std::to_string(page + 1) + ".";
        }
        DrawPage(painter, document, page);
    }
    painter.end();
    if (printer_->printerState() == QPrinter::Error) {
        return failure + ": the printing system reports an error.";
    }
    return {};
}

}  // namespace quenloft
