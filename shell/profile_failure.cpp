#include "shell/profile_failure.h"

#include <QTimer>

#include "platform/dialogs.h"

namespace quenloft {

void ProfileFailure::Tell(const std::string& sentence) {
    if (isTold_) {
        return;
    }
    isTold_ = true;
    dialogs_.ShowMessage(sentence + ". The settings hold until the program ends.",
                         MessageIcon::Warning);
    QTimer::singleShot(0, this, [this] { isTold_ = false; });
}

}  // namespace quenloft
