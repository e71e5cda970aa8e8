// The desktop's printers, and printing to a PDF file.
#pragma once

#include <QPrinter>
#include <functional>
#include <memory>

#include "platform/printer.h"

class QTextDocument;

namespace quenloft {

/// Lets the user set up `printer`; false on Cancel.
using PrinterSetUp = std::function<bool(QPrinter& printer)>;

/// The toolkit's printer dialog.
bool ShowPrinterDialog(QPrinter& printer);

class QtPrinter : public Printer {
  public:
    explicit QtPrinter(PrinterSetUp setUp = ShowPrinterDialog) : setUp_(std::move(setUp)) {}

    bool ChoosePrinter() override;
    std::string PrintText(const std::string& text) override;
    std::string PrintHtml(const std::string& html) override;

  private:
    std::string Print(const std::function<void(QTextDocument& document)>& fill);
    std::string PrintToFile(QTextDocument& document);
    /// Onto the printer as it is set up; a failure begins with `failure`.
    std::string Draw(QTextDocument& document, const std::string& failure);

    PrinterSetUp setUp_;
    std::unique_ptr<QPrinter> printer_;  // Made when the user first prints.
};

}  // namespace quenloft
