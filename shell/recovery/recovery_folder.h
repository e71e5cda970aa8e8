// The folder in which one instance of the program keeps its unsaved texts.
#pragma once

#include <memory>
#include <string>

#include "shell/recovery/kept_text.h"

namespace quenloft {

class FileDescriptor;

/// Of the files in such a folder. Whoever holds the lock (flock) owns the folder: a lock that can
/// be had belongs to an instance that is no more.
inline constexpr char kLockName[] = "lock";
inline constexpr char kKeptSuffix[] = ".text";

/// Made with the first text, readable by the user alone; gone with this object. An instance that
/// dies leaves it to the next one (see LeftTexts). Its functions may take as long as the disk does.
class RecoveryFolder {
  public:
    /// `parent` is the native path of the folder for the folders of all instances; it is made when
    /// it is needed. Empty where there is none: then Keep fails.
    explicit RecoveryFolder(std::string parent);
    ~RecoveryFolder();
    RecoveryFolder(const RecoveryFolder&) = delete;
    RecoveryFolder& operator=(const RecoveryFolder&) = delete;

    /// Puts `kept` in the place of what was kept under this number before: the one or the other
    /// is on the disk, whatever happens. Throws FileError.
    void Keep(int number, const KeptText& kept);
    /// Never fails; does nothing where nothing is kept.
    void Remove(int number);

  private:
    void Make();
    std::string FileOf(int number) const;

    const std::string parent_;
    std::string folder_;  // Empty until it is made.
    std::unique_ptr<FileDescriptor> lock_;
};

}  // namespace quenloft
