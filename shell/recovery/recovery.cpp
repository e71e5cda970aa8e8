#include "shell/recovery/recovery.h"

#include <algorithm>

#include "platform/dialogs.h"
#include "shell/child_window.h"
#include "shell/workspace.h"

namespace quenloft {
namespace {

std::string FolderOfInstances(const std::string& stateFolder) {
    return stateFolder.empty() ? stateFolder : stateFolder + "/unsaved";
}

}  // namespace

Recovery::Recovery(const std::string& stateFolder, Dialogs& dialogs)
    : dialogs_(dialogs),
      left_(FolderOfInstances(stateFolder)),
      writer_(FolderOfInstances(stateFolder), [this](const std::string& sentence) {
          QMetaObject::invokeMethod(
              this, [this, sentence] { TellFailure(sentence); }, Qt::QueuedConnection);
      }) {}

Recovery::~Recovery() = default;

void Recovery::Begin(const QMdiArea& area, std::chrono::milliseconds interval) {
    watch_ = std::make_unique<RecoveryWatch>(writer_, area, interval);
}

void Recovery::TellSetAside() {
    std::string files;
    for (const std::string& file : left_.SetAside()) {
        files += "\r\n" + file;
    }
    if (!files.empty()) {
        dialogs_.ShowMessage(
            "Among the unsaved texts of an earlier start are files that cannot be read. They are "
            "passed over from now on, and stay here:" +
                files,
            MessageIcon::Warning);
    }
}

const LeftText* Recovery::Find(const std::string& file) const {
    const auto place = std::ranges::find(Left(), file, &LeftText::file);
    return place == Left().end() ? nullptr : &*place;
}

void Recovery::Restore(const LeftText& left, Workspace& workspace) {
    const LeftText copy = left;  // The list is about to change.
    ChildWindow* window = workspace.Open(copy.kept.form);
    if (window) {
        window->PutBack(copy.kept);
    }
    if (!window || !window->Unsaved()) {
        dialogs_.ShowMessage("The text in " + copy.file +
                                 " cannot be restored: this version of the program has no window "
                                 "for it.",
                             MessageIcon::Warning);
        return;
    }
    left_.Forget(copy.file);
    if (watch_) {
        watch_->TakeOver(*window, copy.file);
    }
    emit LeftChanged();
}

void Recovery::RestoreAll(Workspace& workspace) {
    const std::vector<LeftText> all = Left();
    for (const LeftText& left : all) {
        Restore(left, workspace);
    }
}

void Recovery::Discard(const LeftText& left) {
    const std::string file = left.file;
    DeleteLeftText(file);
    left_.Forget(file);
    emit LeftChanged();
}

void Recovery::TellFailure(const std::string& sentence) {
    dialogs_.ShowMessage("Unsaved texts cannot be kept for the time after a crash. " + sentence +
                             ".\r\nSave often until that is mended; this is not told again.",
                         MessageIcon::Warning);
}

}  // namespace quenloft
