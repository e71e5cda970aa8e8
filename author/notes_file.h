// The file behind the notes of one window.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "author/rtf_reader.h"

namespace quenloft {

class FileSystem;

/// Reads RTF, and plain text as text without form; writes RTF. Asks nothing: what a user must be
/// asked before the file is written over, it says.
class NotesFile {
  public:
    explicit NotesFile(FileSystem& files) : files_(files) {}

    /// Native; empty before the first Read or Write.
    const std::string& Path() const { return path_; }

    /// Throws FileError, and then remains as it was.
    RichText Read(const std::string& path);
    /// Makes `path` the file of notes that were begun with the content `base`. An empty one is no
    /// file. Never fails.
    void Resume(const std::string& path, const std::string& base);
    /// Fingerprint of what the file held when it was read or written last; empty without a file.
    const std::string& Base() const { return base_; }
    /// As Read. `path` is what Path() gives from then on.
    void Write(const std::string& path, const RichText& text);

    /// What writing to `path` would destroy, as questions to be answered with yes or no, the most
    /// serious first. In another file than Path(), too, the user would look for what was read.
    std::vector<std::string> QuestionsBefore(const std::string& path) const;

  private:
    bool ChangedOnDisk() const;

    FileSystem& files_;
    std::string path_;
    std::string base_;
    /// Of what was to be written last. All of it may stand there though it failed.
    std::string attempted_;
    std::vector<Loss> losses_;
    bool isPlainText_ = false;
};

}  // namespace quenloft
