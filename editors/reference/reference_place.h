// Where the reference browser stands: the folder it lists, and the way there from where it began.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

class ReferencePlace {
  public:
    ReferencePlace() = default;
    /// Begins in `folder`, a full library path ("Z:\home\u\lib").
    explicit ReferencePlace(std::string folder);

    /// The listed folder. A drive's root is the drive alone ("Z:").
    const std::string& Folder() const { return folder_; }
    /// Full library path of something in that folder; of the folder itself where `name` is empty.
    std::string PathOf(std::string_view name) const;
    /// From the folder where it began, with a final "\" ("..\Monsters\"); empty in that folder.
    const std::string& RelativePath() const { return relative_; }
    bool IsDriveRoot() const { return folder_.ends_with(':'); }

    void Enter(std::string_view name);
    /// To the folder above, but not past a drive's root. Returns the name of the folder that was
    /// left; empty, and nothing changes, at a root.
    std::string GoUp();

  private:
    std::string folder_;
    std::string relative_;
};

}  // namespace quenloft
