#include "editors/reference/reference_place.h"

#include "engine/text_helpers.h"

namespace quenloft {
namespace {

constexpr std::string_view kUp = "..\\";

// The folder that `relative` ends in is above the one where it began.
bool EndsAbove(std::string_view relative) {
    return relative == kUp || relative.ends_with("\\..\\");
}

}  // namespace

ReferencePlace::ReferencePlace(std::string folder) : folder_(std::move(folder)) {
    if (folder_.ends_with('\\')) {
        folder_.pop_back();
    }
}

std::string ReferencePlace::PathOf(std::string_view name) const {
    // A drive alone would be its current folder.
    if (name.empty() && !IsDriveRoot()) {
        return folder_;
    }
    return folder_ + "\\" + std::string(name);
}

void ReferencePlace::Enter(std::string_view name) {
    relative_.append(name).append("\\");
    folder_.append("\\").append(name);
}

std::string ReferencePlace::GoUp() {
    if (IsDriveRoot()) {
        return {};
    }
    if (relative_.empty() || EndsAbove(relative_)) {
        relative_.insert(0, kUp);
    } else {
        relative_.pop_back();
        relative_.erase(relative_.rfind('\\') + 1);
    }
    std::string left(FileName(folder_));
    folder_ = DirectoryPart(folder_);
    return left;
}

}  // namespace quenloft
