#include "shell/recent_files.h"

#include <algorithm>

#include "platform/profile_file.h"

namespace quenloft {
namespace {

constexpr char kSection[] = "Recent";
constexpr std::size_t kMost = 10;
constexpr std::size_t kLongestPath = 249;  // Of a value in a profile.

std::string KeyOf(std::size_t index) { return "File" + std::to_string(index); }

}  // namespace

RecentFiles::RecentFiles(ProfileFile& profile) : profile_(profile) {
    const std::string file = profile_.GetProfileFileName();
    for (std::size_t i = 0; i < kMost; ++i) {
        std::string path = profile_.ReadProfileString(kSection, KeyOf(i), "", file);
        if (!path.empty()) {
            paths_.push_back(std::move(path));
        }
    }
}

void RecentFiles::Add(const std::string& path) {
    if (path.size() > kLongestPath) {
        return;
    }
    std::erase(paths_, path);
    paths_.insert(paths_.begin(), path);
    paths_.resize(std::min(paths_.size(), kMost));
}

void RecentFiles::Save() {
    const std::string file = profile_.GetProfileFileName();
    std::vector<ProfileEntry> entries;
    for (std::size_t i = 0; i < kMost; ++i) {
        std::string path = i < paths_.size() ? paths_[i] : std::string();
        if (path != profile_.ReadProfileString(kSection, KeyOf(i), "", file)) {
            entries.push_back({kSection, KeyOf(i), std::move(path)});
        }
    }
    profile_.WriteProfileStrings(entries, file);
}

}  // namespace quenloft
