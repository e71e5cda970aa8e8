#include "platform/linux/disk_line_reader.h"

#include <cerrno>

#include "platform/linux/file_failure.h"
#include "platform/linux/file_reading.h"
#include "platform/linux/path_translation.h"
#include "platform/linux/text_lines.h"
#include "platform/text_encoding.h"

namespace quenloft {

namespace {

/// A table's header fits into one; most readers want no more than that.
constexpr std::size_t kBlock = 4096;
/// What has no line end for so long is no text: a disk image must not fill the memory.
constexpr std::size_t kLongestLine = std::size_t{1} << 20;

}  // namespace

DiskLineReader::DiskLineReader(const std::string& diskPath)
    : diskPath_(diskPath), file_(OpenForReading(diskPath)) {
    while (block_.size() < 3 && ReadBlock()) {
    }
    position_ = block_.size() - WithoutByteOrderMark(block_).size();
}

bool DiskLineReader::ReadBlock() {
    block_.erase(0, position_);
    position_ = 0;
    const std::size_t kept = block_.size();
    if (kept > kLongestLine) {
        throw SystemRefused(EFBIG, ShownNativePath(diskPath_));
    }
    block_.resize(kept + kBlock);
    const std::size_t count = ReadSome(file_.Number(), block_.data() + kept, kBlock, diskPath_);
    block_.resize(kept + count);
    isAtEnd_ = count == 0;
    return !isAtEnd_;
}

std::size_t DiskLineReader::FindLineEnd() {
    std::size_t searched = 0;
    while (true) {
        const std::size_t end = block_.find_first_of("\r\n", position_ + searched);
        if (end != std::string::npos) {
            return end;
        }
        searched = block_.size() - position_;
        if (!ReadBlock()) {
            return block_.size();
        }
    }
}

bool DiskLineReader::ReadLine(std::string& line) {
    if (position_ == block_.size() && (isAtEnd_ || !ReadBlock())) {
        return false;
    }
    std::size_t end = FindLineEnd();
    if (end + 1 == block_.size() && block_[end] == '\r') {
        // Whether a LF belongs to this CR stands in the next block.
        const std::size_t length = end - position_;
        ReadBlock();
        end = position_ + length;
    }
    line = DecodeText(std::string_view(block_).substr(position_, end - position_));
    const bool endsInTwo = std::string_view(block_).substr(end).starts_with("\r\n");
    position_ = std::min(end + (endsInTwo ? 2 : 1), block_.size());
    return true;
}

}  // namespace quenloft
