#include "editors/shared/edited_file.h"

#include "editors/shared/text_form.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/fingerprint.h"
#include "platform/replacing.h"

namespace quenloft {

EditedFile::EditedFile(FileSystem& files, Dialogs& dialogs) : files_(files), dialogs_(dialogs) {}

std::string EditedFile::Name() const { return path_.substr(path_.rfind('/') + 1); }

std::string EditedFile::Folder() const {
    return path_.empty() ? files_.NativePath(files_.CurrentDirectory())
                         : path_.substr(0, path_.rfind('/') + 1);
}

std::string EditedFile::Read(const std::string& path) {
    files_.LookAgain();
    Know(path, files_.ReadBytes(path));
    return TextOfBytes(bytes_);
}

std::string EditedFile::Resume(const std::string& path, const std::string& base) {
    Forget();
    if (path.empty()) {
        return {};
    }
    try {
        Read(path);
    } catch (const FileError&) {
        path_ = files_.NativePath(path);  // Saving makes it again.
    }
    base_ = base;
    return TextOfBytes(bytes_);
}

void EditedFile::Forget() {
    path_.clear();
    bytes_.clear();
    base_.clear();
    attempted_.clear();
    encoding_ = TextEncoding::Windows1252;
}

bool EditedFile::SaveLines(const std::string& path, std::string_view lines) {
    if (!MayWriteOver(path)) {
        return false;
    }
    if (auto bytes = BytesOfText(lines, bytes_, encoding_)) {
        return Write(path, std::move(*bytes), Former::Replace);
    }
    return AllowsUtf8(path) && Write(path, Utf8BytesOfText(lines, bytes_), Former::Replace);
}

bool EditedFile::SaveWhole(const std::string& path, std::string_view text, Former former) {
    if (!MayWriteOver(path)) {
        return false;
    }
    if (auto bytes = EncodeText(text, encoding_)) {
        return Write(path, std::move(*bytes), former);
    }
    return AllowsUtf8(path) && Write(path, std::string(text), former);
}

bool EditedFile::MayWriteOver(const std::string& path) {
    files_.LookAgain();
    const std::string nativePath = files_.NativePath(path);
    if (nativePath != path_) {
        return MayReplace(files_, dialogs_, path);
    }
    try {
        const std::string onDisk = Fingerprint(files_.ReadBytes(path));
        return onDisk == base_ || onDisk == attempted_ ||
               dialogs_.AskYesNo("The file " + nativePath +
                                 " was changed by another program since it was read. "
                                 "Save over these changes?") == Answer::Yes;
    } catch (const FileError&) {
        return true;  // It is gone, or writing will tell what is wrong with it.
    }
}

bool EditedFile::AllowsUtf8(const std::string& path) {
    return dialogs_.AskYesNo("The text for " + files_.NativePath(path) +
                             " holds characters that Windows-1252 lacks or would mix up. "
                             "Save it as UTF-8?") == Answer::Yes;
}

void EditedFile::Know(const std::string& path, std::string bytes) {
    path_ = files_.NativePath(path);
    bytes_ = std::move(bytes);
    base_ = Fingerprint(bytes_);
    attempted_.clear();
    encoding_ = DetectEncoding(bytes_);
}

bool EditedFile::Write(const std::string& path, std::string bytes, Former former) {
    try {
        if (former == Former::Keep) {
            KeepFormer(path);
        }
        files_.WriteBytes(path, bytes);
    } catch (const FileError& error) {
        attempted_ = Fingerprint(bytes);
        dialogs_.ShowMessage(std::string(error.what()) + ".", MessageIcon::Warning);
        return false;
    }
    files_.LookAgain();
    Know(path, std::move(bytes));
    return true;
}

void EditedFile::KeepFormer(const std::string& path) {
    std::string former;
    try {
        former = files_.ReadBytes(path);
    } catch (const FileError& error) {
        if (error.GetKind() != FileError::Kind::FileNotFound) {
            throw;
        }
        return;
    }
    const std::string name = files_.NativePath(path) + "~";
    std::string kept = name;
    // What was kept before is what its author wrote: it stays.
    for (int number = 2; files_.FileExists(kept) && files_.ReadBytes(kept) != former; ++number) {
        kept = name + std::to_string(number);
    }
    files_.WriteBytes(kept, former);
}

}  // namespace quenloft
