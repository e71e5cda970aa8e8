// The port to the disk, in the language of the library's files.
//
// Libraries are made on Windows: their references use "\" and ignore case. So paths in and out of
// this port are *library paths*: "Z:\home\u\lib\x.tbl" is the native "/home/u/lib/x.tbl". Every
// function also takes a native path ("/home/u/lib/x.tbl") and a path relative to the current
// directory. "/" and "\" are the same, repeated separators count once, ".." is resolved in the
// text and stops at the root, trailing blanks and dots of a path are cut. A name is looked up
// exactly first, then without regard to case, component by component; where several differ only by
// case, the first in byte order is taken. All text is UTF-8.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quenloft {

/// What the disk refused. `what()` is a sentence without a final stop that names the cause and the
/// path ("File not found: /home/u/lib/x.tbl"), fit to be shown to the user.
class FileError : public std::runtime_error {
  public:
    enum class Kind { FileNotFound, PathNotFound, PermissionDenied, Other };
    FileError(Kind kind, const std::string& sentence) : std::runtime_error(sentence), kind_(kind) {}
    Kind GetKind() const { return kind_; }

  private:
    Kind kind_;
};

/// The lines of one text file as they stood when it was read: decoded, without their line ends.
/// Never changes; a file changed on disk becomes a new TextFile at the next OpenText.
class TextFile {
  public:
    virtual ~TextFile() = default;
    virtual std::size_t LineCount() const = 0;
    /// `index` below LineCount(); the view lives as long as this object.
    virtual std::string_view Line(std::size_t index) const = 0;
    /// The library path of the file as it is spelled on disk ("Z:\lib\Names.tbl").
    virtual const std::string& Path() const = 0;

    /// What a reader has worked out about this file and wants to find again; dropped with the file.
    struct Notes {
        virtual ~Notes() = default;
    };
    mutable std::unique_ptr<Notes> notes;
};

/// Reads a file from its start, no further than asked, keeping nothing.
class LineReader {
  public:
    virtual ~LineReader() = default;
    /// Puts the next line, decoded and without its end, into `line`; false at the end of the file.
    virtual bool ReadLine(std::string& line) = 0;
};

struct FolderEntry {
    std::string name;  ///< As spelled on disk, UTF-8 (other bytes read as Windows-1252).
    bool isFolder = false;
    bool isHidden = false;  ///< The name begins with ".".
};

/// A folder that this port has met. Cheap to copy and to compare; 0 is the root.
using FolderId = std::uint32_t;

class FileSystem {
  public:
    virtual ~FileSystem() = default;

    // --- The current directory. Kept here; the process's own follows in SyncProcessDirectory. ---

    /// "Z:\home\u\lib"; the root is "Z:\". No other path ends with a backslash.
    virtual const std::string& CurrentDirectory() const = 0;
    virtual FolderId CurrentFolder() const = 0;
    /// Throws FileError (PathNotFound) where `path` is no folder; the directory stays as it was.
    virtual void ChangeDirectory(std::string_view path) = 0;
    /// Back to a folder that CurrentFolder() returned before. Never fails.
    virtual void SetCurrentFolder(FolderId folder) = 0;
    /// Makes the process's current directory the one kept here. Failure is passed over.
    virtual void SyncProcessDirectory() = 0;

    // --- Looking. What was once looked up is believed until LookAgain. ---

    /// From now on the state of files and folders on disk is looked at anew, each at its next use.
    /// Called when a generation starts and when the program has let other programs have a turn.
    virtual void LookAgain() = 0;
    /// The number of the present look. While it stays the same, so does everything that was found.
    virtual std::uint64_t Look() const = 0;
    virtual bool FileExists(std::string_view path) = 0;
    virtual bool FolderExists(std::string_view path) = 0;
    /// The full library path of `path`, with the disk's spelling where it exists.
    virtual std::string AbsolutePath(std::string_view path) = 0;
    /// The native path ("/home/u/lib/x.tbl") to show to a user or to hand to the system.
    virtual std::string NativePath(std::string_view path) = 0;
    /// Folders and files of a folder in byte order of their names, without "." and "..".
    /// Throws FileError.
    virtual std::vector<FolderEntry> ListFolder(std::string_view path) = 0;

    // --- Reading. ---

    /// The whole file. The same object comes back until the file changes on disk (and LookAgain
    /// was called); one `stat` then tells. Throws FileError.
    virtual std::shared_ptr<const TextFile> OpenText(std::string_view path) = 0;
    /// For a look at the first lines only; nothing is kept in memory. Throws FileError.
    virtual std::unique_ptr<LineReader> ReadLines(std::string_view path) = 0;
    /// All bytes as they are. Throws FileError.
    virtual std::string ReadBytes(std::string_view path) = 0;

    // --- Writing. ---

    /// Replaces or creates the file: the old content or the new stands on disk, never a mixture.
    /// A temporary file in the same folder, flushed, renamed over the old one; permissions and the
    /// target of a symbolic link are kept, and so is the spelling of an existing name. Throws
    /// FileError.
    virtual void WriteBytes(std::string_view path, std::string_view bytes) = 0;
    /// Throws FileError, also where something of that name exists or its folder does not.
    virtual void CreateFolder(std::string_view path) = 0;
    /// Throws FileError; a folder is refused.
    virtual void DeleteFile(std::string_view path) = 0;
};

}  // namespace quenloft
