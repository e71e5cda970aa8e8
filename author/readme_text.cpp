#include "author/readme_text.h"

#include "platform/file_system.h"

namespace quenloft {
namespace {

constexpr char kFileName[] = "/readme.txt";
constexpr char kLineEnd[] = "\r\n";

std::string AllLines(const TextFile& file) {
    std::string text;
    for (std::size_t i = 0; i < file.LineCount(); ++i) {
        text.append(file.Line(i)).append(kLineEnd);
    }
    return text;
}

}  // namespace

std::string ReadmeText(FileSystem& files, const std::vector<std::string>& folders) {
    files.LookAgain();
    std::string missing =
        std::string("There is no readme. It should be one of these files:") + kLineEnd;
    for (const std::string& folder : folders) {
        const std::string path = folder + kFileName;
        if (!files.FileExists(path)) {
            missing += files.NativePath(path) + kLineEnd;
            continue;
        }
        try {
            return AllLines(*files.OpenText(path));
        } catch (const FileError& error) {
            return std::string("The readme cannot be shown. ") + error.what() + "." + kLineEnd;
        }
    }
    return missing;
}

}  // namespace quenloft
