// The files that are being read right now, by the path under which they were opened.
//
// A reader whose path is registered shares the handle of the reader further up the recursion: it
// rewinds it, and the outer reader goes on from wherever the inner one stopped. A handle is a
// cursor over lines in memory and lives in its reader's frame, so none is ever left behind.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/file_system.h"

namespace quenloft {

class OpenFileCache;

/// A place in the lines of one file.
class FileHandle {
  public:
    void Rewind() { next_ = 0; }
    void GoTo(std::size_t line) { next_ = line; }
    bool AtEnd() const { return next_ >= file_->LineCount(); }
    /// The line under the cursor, which moves on. Throws Failure "Input past end of file".
    std::string_view ReadLine();
    /// Number of the line last read, counted from 1; 0 after Rewind.
    std::size_t Position() const { return next_; }
    const TextFile& File() const { return *file_; }

  private:
    friend class OpenedFile;
    const TextFile* file_ = nullptr;
    std::size_t next_ = 0;
};

/// Opens a file or joins the reader that has it open; closes it at the end where it opened it.
class OpenedFile {
  public:
    /// `path` is the key, compared exactly; `file` is what it names now, and the caller keeps it. A
    /// handle under the same key that belongs to another file (of the same name, in another folder)
    /// is not shared.
    OpenedFile(OpenFileCache& cache, std::string_view path, const TextFile& file);
    ~OpenedFile() { Close(); }
    OpenedFile(const OpenedFile&) = delete;
    OpenedFile& operator=(const OpenedFile&) = delete;

    FileHandle& Handle() { return *handle_; }
    /// An outer reader has it open.
    bool IsShared() const { return handle_ != &own_; }
    /// Closes what this object opened; a shared handle stays open. The handle must not be used any
    /// more.
    void Close();

  private:
    OpenFileCache& cache_;
    std::string_view path_;
    FileHandle own_;
    FileHandle* handle_;
    OpenedFile* outer_ = nullptr;
    bool registered_ = false;
};

/// The files of one run.
class OpenFileCache {
    friend class OpenedFile;
    OpenedFile* innermost_ = nullptr;
};

}  // namespace quenloft
