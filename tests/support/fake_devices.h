// Clipboard, printer and desktop that record.
#pragma once

#include <string>
#include <vector>

#include "platform/clipboard.h"
#include "platform/desktop.h"
#include "platform/printer.h"

namespace quenloft {

class FakeClipboard : public Clipboard {
  public:
    std::string GetText() override { return text; }
    void SetText(const std::string& newText) override { text = newText; }

    std::string text;
};

class FakePrinter : public Printer {
  public:
    bool ChoosePrinter() override { return accepts; }
    std::string PrintText(const std::string& text) override {
        printed.push_back(text);
        return failure;
    }
    std::string PrintHtml(const std::string& html) override {
        printedHtml.push_back(html);
        return failure;
    }

    bool accepts = true;
    std::string failure;
    std::vector<std::string> printed;
    std::vector<std::string> printedHtml;
};

class FakeDesktop : public Desktop {
  public:
    bool MoveToTrash(const std::string& nativePath) override {
        trashed.push_back(nativePath);
        return hasTrash;
    }
    bool StartProgram(const std::string& name, const std::vector<std::string>& arguments) override {
        started.push_back(name);
        for (const std::string& argument : arguments) {
            started.back() += " " + argument;
        }
        return name == installed;
    }

    bool hasTrash = false;
    std::vector<std::string> trashed;
    /// The one program that there is.
    std::string installed;
    /// Every attempt, with its arguments.
    std::vector<std::string> started;
};

}  // namespace quenloft
