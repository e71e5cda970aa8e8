// The tables and scripts that were opened last, kept in the profile.
#pragma once

#include <string>
#include <vector>

namespace quenloft {

class ProfileFile;

class RecentFiles {
  public:
    /// `profile` outlives this object; it is read here and written by Save.
    explicit RecentFiles(ProfileFile& profile);

    /// Puts a native path first; the list holds each path once and ten at most. A path that the
    /// profile cannot hold (over 249 bytes) is left out.
    void Add(const std::string& path);
    void Save();
    /// The last one first.
    const std::vector<std::string>& Paths() const { return paths_; }

  private:
    ProfileFile& profile_;
    std::vector<std::string> paths_;
};

}  // namespace quenloft
