// Lines from the start of a file, block by block.
#pragma once

#include <string>

#include "platform/file_system.h"
#include "platform/linux/file_descriptor.h"

namespace quenloft {

class DiskLineReader : public LineReader {
  public:
    /// Opens the file. Throws FileError.
    explicit DiskLineReader(const std::string& diskPath);
    /// Throws FileError where the disk fails on the way, and for a line of more than a megabyte.
    bool ReadLine(std::string& line) override;

  private:
    /// Reads the next block behind what is left of the last one; false at the end of the file.
    bool ReadBlock();
    /// Where the next line ends in block_; the end of block_ for the last line of the file.
    std::size_t FindLineEnd();

    std::string diskPath_;
    FileDescriptor file_;
    std::string block_;
    std::size_t position_ = 0;
    bool isAtEnd_ = false;
};

}  // namespace quenloft
