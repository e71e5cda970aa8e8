// A disk that fails on demand. The functions of the system's library through which files are read
// and written are defined in this test program and hand on to the real ones; one chosen call, of
// those that concern a folder, fails instead.
#pragma once

#include <string>
#include <vector>

namespace quenloft {

enum class DiskCall { Look, Open, Create, Read, Write, Flush, Close, Rename, Delete, Own };

/// What goes wrong, and in which kinds of calls.
struct Fault {
    const char* name;
    std::vector<DiskCall> calls;
    /// An errno. With `cutsShort` it is what the write behind the short one fails with; 0 there:
    /// the rest is taken.
    int error;
    /// The call takes or gives half the bytes.
    bool cutsShort = false;
};

/// While it lives, the `number`-th (from 1) of the fault's calls that concern something in `folder`
/// goes wrong. One at a time.
class FaultyDisk {
  public:
    FaultyDisk(std::string folder, const Fault& fault, int number);
    ~FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    bool HasStruck() const;
};

}  // namespace quenloft
