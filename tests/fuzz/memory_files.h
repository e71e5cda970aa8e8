// One folder of files in memory, for runs that must be fast and leave nothing behind.
#pragma once

#include <map>
#include <string>

#include "platform/letter_case.h"
#include "platform/linux/text_lines.h"

namespace quenloft {

class MemoryFiles : public FileSystem {
  public:
    /// Any folder of a path is this one; names ignore case.
    void Put(std::string_view name, std::string_view bytes) {
        files_[Key(name)] =
            std::make_shared<LoadedTextFile>(bytes, "Z:\\lib\\" + std::string(name));
    }

    const std::string& CurrentDirectory() const override { return folder_; }
    FolderId CurrentFolder() const override { return 0; }
    void ChangeDirectory(std::string_view) override {}
    void SetCurrentFolder(FolderId) override {}
    void SyncProcessDirectory() override {}
    void LookAgain() override { ++look_; }
    std::uint64_t Look() const override { return look_; }
    bool FileExists(std::string_view path) override { return files_.contains(Key(path)); }
    bool FolderExists(std::string_view) override { return true; }
    std::string AbsolutePath(std::string_view path) override {
        return "Z:\\lib\\" + std::string(NameOf(path));
    }
    std::string NativePath(std::string_view path) override {
        return "/lib/" + std::string(NameOf(path));
    }
    std::vector<FolderEntry> ListFolder(std::string_view) override { return {}; }
    std::shared_ptr<const TextFile> OpenText(std::string_view path) override {
        const auto file = files_.find(Key(path));
        if (file == files_.end()) {
            throw FileError(FileError::Kind::FileNotFound, "File not found: " + NativePath(path));
        }
        return file->second;
    }
    std::unique_ptr<LineReader> ReadLines(std::string_view path) override {
        return std::make_unique<Lines>(OpenText(path));
    }
    std::string ReadBytes(std::string_view) override { return {}; }
    void WriteBytes(std::string_view, std::string_view) override {}
    void CreateFolder(std::string_view) override {}
    void DeleteFile(std::string_view) override {}

  private:
    class Lines : public LineReader {
      public:
        explicit Lines(std::shared_ptr<const TextFile> file) : file_(std::move(file)) {}
        bool ReadLine(std::string& line) override {
            if (next_ == file_->LineCount()) {
                return false;
            }
            line = file_->Line(next_++);
            return true;
        }

      private:
        std::shared_ptr<const TextFile> file_;
        std::size_t next_ = 0;
    };

    static std::string_view NameOf(std::string_view path) {
        return path.substr(path.find_last_of("\\/") + 1);
    }
    static std::string Key(std::string_view path) { return FoldCase(NameOf(path)); }

    std::map<std::string, std::shared_ptr<const LoadedTextFile>> files_;
    std::string folder_ = "Z:\\lib";
    std::uint64_t look_ = 0;
};

}  // namespace quenloft
