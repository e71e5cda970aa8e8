// An open file of the system, closed at the end of its scope.
#pragma once

#include <unistd.h>
#include <utility>

namespace quenloft {

class FileDescriptor {
  public:
    explicit FileDescriptor(int number) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&&) = delete;
    ~FileDescriptor() {
        if (number_ >= 0) {
            ::close(number_);
        }
    }

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    /// Closes now and returns what the system said: some disks report a failed write only here.
    int Close() { return ::close(std::exchange(number_, -1)); }

  private:
    int number_;
};

}  // namespace quenloft
