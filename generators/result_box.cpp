#include "generators/result_box.h"

#include <QCoreApplication>

#include "shell/text_box.h"

namespace quenloft {

ResultBox::ResultBox(TextBox& box) : box_(box) {
    box_.SetText({});
    box_.setPlaceholderText(QCoreApplication::translate(
        "ResultBox", "Running. Esc or \"Abort Running Processes!\" stops it."));
}

ResultBox::~ResultBox() { box_.setPlaceholderText({}); }

void ResultBox::Show(std::string_view result) { box_.SetText(result); }

}  // namespace quenloft
