// The file behind an editor: how it was read, and how its next content gets to the disk.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/text_encoding.h"

namespace quenloft {

class Dialogs;
class FileSystem;

/// What becomes of the file that is written over.
enum class Former {
    Replace,
    Keep  ///< Stays beside the new one, as its name + "~" ("~2" where that is taken, and so on).
};

/// Asks before it writes over what another program wrote meanwhile, and before it changes a file's
/// encoding; says why when something cannot be written. What stands in the file and whether it was
/// changed by the user is the editor's affair.
class EditedFile {
  public:
    EditedFile(FileSystem& files, Dialogs& dialogs);

    /// Native; empty while the text has no file.
    const std::string& Path() const { return path_; }
    /// The file's name in that path.
    std::string Name() const;
    /// Native path of the folder that file dialogs begin in: the file's, else the current one.
    std::string Folder() const;

    /// Reads `path` and makes it the file of this editor. Returns the lines as UTF-8 with "\n"
    /// between them (see TextOfBytes). Throws FileError; then everything stays as it was.
    std::string Read(const std::string& path);
    /// Fingerprint of the file's content as it was read or written last; empty without a file.
    const std::string& Base() const { return base_; }
    /// Makes `path` the file of a text that an earlier editor had begun with the content `base`; a
    /// file that holds another content is asked about before it is written over. Returns the lines
    /// that the file has now, none where it cannot be read. An empty `path` is no file.
    std::string Resume(const std::string& path, const std::string& base);
    /// From now on the text has no file.
    void Forget();

    /// Writes lines as Read returns them; see BytesOfText for what is kept of the file. `path`
    /// becomes this editor's file. False when nothing was written; the user knows why.
    bool SaveLines(const std::string& path, std::string_view lines);
    /// Writes `text` (UTF-8) with its line ends as they stand, in the encoding that was read.
    bool SaveWhole(const std::string& path, std::string_view text, Former former);

  private:
    bool MayWriteOver(const std::string& path);
    bool AllowsUtf8(const std::string& path);
    void Know(const std::string& path, std::string bytes);
    bool Write(const std::string& path, std::string bytes, Former former);
    void KeepFormer(const std::string& path);

    FileSystem& files_;
    Dialogs& dialogs_;
    std::string path_;
    std::string bytes_;  // What the next content takes unchanged lines from.
    std::string base_;
    /// Of what it failed to write after that. All of it may stand there nevertheless.
    std::string attempted_;
    TextEncoding encoding_ = TextEncoding::Windows1252;
};

}  // namespace quenloft
