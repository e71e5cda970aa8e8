// The disk of a Linux machine in the language of the library's files. What a path names is found
// by PathFinder, read text is kept by TextCache; this class joins them and words the refusals.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "platform/linux/path_finder.h"
#include "platform/linux/text_cache.h"

namespace quenloft {

class LinuxFileSystem : public FileSystem {
  public:
    /// Begins at the process's current directory; at the root where that does not exist any more.
    LinuxFileSystem();

    const std::string& CurrentDirectory() const override;
    FolderId CurrentFolder() const override { return current_; }
    void ChangeDirectory(std::string_view path) override;
    void SetCurrentFolder(FolderId folder) override;
    void SyncProcessDirectory() override;

    void LookAgain() override { finder_.LookAgain(); }
    std::uint64_t Look() const override { return finder_.Look(); }
    bool FileExists(std::string_view path) override;
    bool FolderExists(std::string_view path) override;
    std::string AbsolutePath(std::string_view path) override;
    std::string NativePath(std::string_view path) override;
    std::vector<FolderEntry> ListFolder(std::string_view path) override;

    std::shared_ptr<const TextFile> OpenText(std::string_view path) override;
    std::unique_ptr<LineReader> ReadLines(std::string_view path) override;
    std::string ReadBytes(std::string_view path) override;

    void WriteBytes(std::string_view path, std::string_view bytes) override;
    void CreateFolder(std::string_view path) override;
    void DeleteFile(std::string_view path) override;

  private:
    Place& Find(std::string_view path) { return finder_.Find(current_, path); }
    /// The place of a file that can be read. Throws FileError.
    Place& FindFile(std::string_view path);

    PathFinder finder_;
    TextCache texts_;
    FolderId current_;
};

}  // namespace quenloft
