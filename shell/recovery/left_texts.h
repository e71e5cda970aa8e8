// The unsaved texts of instances of the program that did not end as they should.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/linux/file_descriptor.h"
#include "shell/recovery/kept_text.h"

namespace quenloft {

struct LeftText {
    std::string file;  ///< Native path of the file that keeps it.
    KeptText kept;
};

/// What it finds belongs to this instance from then on, and to nobody else while it runs.
class LeftTexts {
  public:
    /// Looks below `parent`, the folder given to RecoveryFolder. Never fails.
    explicit LeftTexts(const std::string& parent);

    /// The latest first.
    const std::vector<LeftText>& All() const { return texts_; }
    /// Files that hold no text of ours. They were renamed: the next start passes them over. Native
    /// paths of what they are called now.
    const std::vector<std::string>& SetAside() const { return setAside_; }

    /// Takes it from the list; the file stays.
    void Forget(const std::string& file);

  private:
    void TakeOver(const std::string& folder);
    void Read(const std::string& file);

    std::vector<FileDescriptor> locks_;
    std::vector<LeftText> texts_;
    std::vector<std::string> setAside_;
};

/// Deletes the file of a left text, with its folder where it was the last one there. Never fails:
/// what cannot be deleted is offered once more.
void DeleteLeftText(const std::string& file);

}  // namespace quenloft
