#include "generators/result_box.h"

#include <QCoreApplication>

#include "shell/append_result.h"
#include "shell/service_set.h"
#include "shell/text_box.h"

namespace quenloft {

ResultBox::ResultBox(TextBox& box, const ServiceSet& services) : box_(box), services_(services) {
    box_.SetText({});
    box_.setPlaceholderText(QCoreApplication::translate(
        "ResultBox", "Running. Esc or \"Abort Running Processes!\" stops it."));
}

ResultBox::~ResultBox() { box_.setPlaceholderText({}); }

void ResultBox::Show(std::string_view result) {
    // What the user typed meanwhile.
    box_.SetText({});
    AppendResult(box_, result, services_.engine, services_.host);
}

}  // namespace quenloft
