// Bytes of a text file as lines. CR LF, LF and a lone CR end a line; each line is UTF-8 where it is
// valid UTF-8, otherwise Windows-1252; a byte-order mark at the start of the file is dropped.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace quenloft {

/// Removes a UTF-8 byte-order mark from the front.
std::string_view WithoutByteOrderMark(std::string_view bytes);

/// All lines of a file in one buffer.
class LoadedTextFile : public TextFile {
  public:
    /// `bytes` as read from disk, at most a gigabyte.
    LoadedTextFile(std::string_view bytes, std::string libraryPath);

    std::size_t LineCount() const override { return starts_.size() - 1; }
    std::string_view Line(std::size_t index) const override {
        return std::string_view(text_).substr(starts_[index], starts_[index + 1] - starts_[index]);
    }
    const std::string& Path() const override { return path_; }

    /// What it keeps in memory, in bytes.
    std::size_t MemorySize() const;
    bool HasSameLines(const LoadedTextFile& other) const {
        return text_ == other.text_ && starts_ == other.starts_;
    }

  private:
    /// The lines without their ends, one after the other.
    std::string text_;
    /// Where each line begins in text_, and the end of the last one.
    std::vector<std::uint32_t> starts_;
    std::string path_;
};

}  // namespace quenloft
