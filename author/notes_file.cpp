#include "author/notes_file.h"

#include "author/plain_text.h"
#include "author/rtf_writer.h"
#include "platform/file_system.h"
#include "platform/fingerprint.h"

namespace quenloft {

RichText NotesFile::Read(const std::string& path) {
    const std::string bytes = files_.ReadBytes(path);
    const bool isRtf = IsRtf(bytes);
    RtfContent content = isRtf ? ReadRtf(bytes) : ReadPlainText(bytes);
    path_ = files_.NativePath(path);
    base_ = Fingerprint(bytes);
    attempted_.clear();
    losses_ = std::move(content.losses);
    // An empty file becomes what is saved into it.
    isPlainText_ = !isRtf && !bytes.empty();
    return std::move(content.text);
}

void NotesFile::Resume(const std::string& path, const std::string& base) {
    if (path.empty()) {
        return;
    }
    try {
        Read(path);  // For what would be lost from it.
    } catch (const FileError&) {
        path_ = files_.NativePath(path);  // Saving makes it again.
    }
    base_ = base;
}

void NotesFile::Write(const std::string& path, const RichText& text) {
    const std::string bytes = WriteRtf(text);
    attempted_ = Fingerprint(bytes);
    files_.WriteBytes(path, bytes);
    files_.LookAgain();
    path_ = files_.NativePath(path);
    base_ = attempted_;
    losses_.clear();
    isPlainText_ = false;
}

std::vector<std::string> NotesFile::QuestionsBefore(const std::string& path) const {
    std::vector<std::string> questions;
    const bool isSameFile = !path_.empty() && files_.NativePath(path) == path_;
    if (isSameFile && ChangedOnDisk()) {
        questions.push_back("The file " + path_ +
                            " was changed by another program since it was read. "
                            "Save over these changes?");
    }
    if (!losses_.empty()) {
        questions.push_back("The file " + path_ + " also holds " + NamesOf(losses_) +
                            ", which the Author Area cannot keep. Save without them?");
    }
    if (isSameFile && isPlainText_) {
        questions.push_back("The file " + path_ +
                            " is plain text. Saving makes it Rich Text, which programs for plain "
                            "text cannot read. Save?");
    }
    return questions;
}

bool NotesFile::ChangedOnDisk() const {
    try {
        const std::string now = Fingerprint(files_.ReadBytes(path_));
        return now != base_ && now != attempted_;
    } catch (const FileError&) {
        return false;  // It is gone, or writing will tell what is wrong with it.
    }
}

}  // namespace quenloft
