// A path in a reference: taken apart, translated, and looked for on the disk.
#include "platform/linux/linux_file_system.h"
#include "platform/linux/path_translation.h"
#include "tests/fuzz/fuzz.h"

void quenloft::Fuzz(std::string_view input) {
    static LinuxFileSystem files;
    const PathParts parts = SplitPath(input);
    for (const std::string_view name : parts.names) {
        FUZZ_CHECK(name != "." && name != "..");
    }
    const std::string path = files.AbsolutePath(input);
    FUZZ_CHECK(files.AbsolutePath(path) == path);
    FUZZ_CHECK(files.FileExists(input) == files.FileExists(path));
    files.NativePath(input);
    ShownLibraryPath("/" + std::string(input));
    CutTrailing(input);
}
