// The port to the printer: one text a job, plain or formatted.
#pragma once

#include <string>

namespace quenloft {

class Printer {
  public:
    virtual ~Printer() = default;
    /// Shows the printer dialog; false on Cancel. Printers are looked for here and not before:
    /// a print server that hangs must not hold up the program's start.
    virtual bool ChoosePrinter() = 0;
    /// Prints `text` (lines ended by CR LF or LF) on the chosen printer with margins, page breaks
    /// and page numbers. Empty on success, otherwise a sentence that says what went wrong.
    virtual std::string PrintText(const std::string& text) = 0;
    /// Likewise for formatted text, as a page of HTML. What names no colour is printed black.
    virtual std::string PrintHtml(const std::string& html) = 0;
};

}  // namespace quenloft
