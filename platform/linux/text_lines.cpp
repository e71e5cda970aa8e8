#include "platform/linux/text_lines.h"

#include <utility>

#include "platform/text_encoding.h"

namespace quenloft {

namespace {

/// Takes one line and its end off the front of `bytes`, which is not empty.
std::string_view TakeLine(std::string_view& bytes) {
    const std::size_t length = std::min(bytes.find_first_of("\r\n"), bytes.size());
    const std::string_view line = bytes.substr(0, length);
    const bool endsInTwo = bytes.substr(length).starts_with("\r\n");
    bytes.remove_prefix(std::min(length + (endsInTwo ? 2 : 1), bytes.size()));
    return line;
}

void AppendDecoded(std::string& text, std::string_view line) {
    if (IsUtf8(line)) {
        text += line;
    } else {
        text += FromWindows1252(line);
    }
}

}  // namespace

std::string_view WithoutByteOrderMark(std::string_view bytes) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    return bytes.starts_with(kMark) ? bytes.substr(kMark.size()) : bytes;
}

LoadedTextFile::LoadedTextFile(std::string_view bytes, std::string libraryPath)
    : path_(std::move(libraryPath)) {
    bytes = WithoutByteOrderMark(bytes);
    text_.reserve(bytes.size());
    starts_.push_back(0);
    while (!bytes.empty()) {
        AppendDecoded(text_, TakeLine(bytes));
        starts_.push_back(static_cast<std::uint32_t>(text_.size()));
    }
    text_.shrink_to_fit();
    starts_.shrink_to_fit();
}

std::size_t LoadedTextFile::MemorySize() const {
    return sizeof(*this) + text_.capacity() + starts_.capacity() * sizeof(starts_[0]) +
           path_.capacity();
}

}  // namespace quenloft
