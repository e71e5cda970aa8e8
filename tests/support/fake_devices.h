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

    bool accepts = true;
    std::string failure;
    std::vector<std::string> printed;
};

class FakeDesktop : public Desktop {
  public:
    bool MoveToTrash(const std::string& nativePath) override {
        trashed.push_back(nativePath);
        return hasTrash;
    }

    bool hasTrash = false;
    std::vector<std::string> trashed;
};

}  // namespace quenloft
