// A folder of its own for one test, removed with everything in it at the end.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <stdlib.h>
#include <string>
#include <string_view>
#include <system_error>

namespace quenloft {

/// The text with its ¤ and § as single bytes, as old table files hold them.
inline std::string InCodePage(std::string text) {
    std::erase(text, '\xC2');
    return text;
}

class TempFolder {
  public:
    TempFolder() {
        std::string pattern =
            (std::filesystem::canonical(std::filesystem::temp_directory_path()) / "quenloft-XXXXXX")
                .string();
        if (mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("No temporary folder could be made at " + pattern);
        }
        path_ = pattern;
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// Native path of the folder, without symbolic links and without a final "/".
    const std::string& Path() const { return path_; }
    /// Native path of `name` ("a/b.tbl", relative with "/") in the folder, whether it exists or
    /// not.
    std::string Path(std::string_view name) const { return path_ + "/" + std::string(name); }
    /// Library path ("Z:\tmp\...\a\b.tbl") of `name`; of the folder itself where `name` is empty.
    std::string LibraryPath(std::string_view name = {}) const {
        std::string result = "Z:" + (name.empty() ? path_ : Path(name));
        for (char& c : result) {
            c = c == '/' ? '\\' : c;
        }
        return result;
    }

    /// Writes the bytes as they are; makes the folders on the way. Returns the native path.
    std::string Write(std::string_view name, std::string_view bytes) const {
        const std::filesystem::path file = Path(name);
        std::filesystem::create_directories(file.parent_path());
        std::ofstream stream(file, std::ios::binary | std::ios::trunc);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        stream.close();
        if (!stream) {
            throw std::runtime_error(file.string() + " could not be written");
        }
        return file.string();
    }
    /// Writes a table of one entry. Returns the native path.
    std::string WriteTable(std::string_view name, const std::string& title,
                           const std::string& entry) const {
        return Write(name, InCodePage(title + "¤1\r\n\r\n1§" + entry + "\r\n"));
    }
    /// All bytes of a file, as they are.
    std::string Read(std::string_view name) const {
        std::ifstream stream(Path(name), std::ios::binary);
        if (!stream) {
            throw std::runtime_error(Path(name) + " could not be read");
        }
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

  private:
    std::string path_;
};

}  // namespace quenloft
