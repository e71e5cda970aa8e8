#include "platform/linux/path_translation.h"

#include "platform/text_encoding.h"

namespace quenloft {

namespace {

constexpr std::string_view kShownBackslash = "\xEF\x81\x9C";  // U+F05C

bool IsSeparator(char c) { return c == '/' || c == '\\'; }

bool IsAsciiLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

void AddName(PathParts& parts, std::string_view name) {
    if (name.empty() || name == ".") {
        return;
    }
    if (name != "..") {
        parts.names.push_back(name);
    } else if (!parts.names.empty()) {
        parts.names.pop_back();
    } else if (!parts.isFromRoot) {
        ++parts.climbs;
    }
}

std::string ShownPath(std::string_view diskPath, char separator) {
    std::string result;
    while (!diskPath.empty()) {
        const std::size_t slash = diskPath.find('/');
        result += ShownName(diskPath.substr(0, slash));
        if (slash == std::string_view::npos) {
            break;
        }
        result += separator;
        diskPath.remove_prefix(slash + 1);
    }
    return result;
}

}  // namespace

PathParts SplitPath(std::string_view path) {
    PathParts parts;
    if (path.size() >= 2 && IsAsciiLetter(path[0]) && path[1] == ':') {
        parts.drive = static_cast<char>(path[0] & ~0x20);
        path.remove_prefix(2);
    }
    parts.isFromRoot = (!path.empty() && IsSeparator(path[0])) || parts.drive != kRootDrive;
    while (!path.empty()) {
        std::size_t end = 0;
        while (end < path.size() && !IsSeparator(path[end])) {
            ++end;
        }
        AddName(parts, path.substr(0, end));
        path.remove_prefix(end < path.size() ? end + 1 : end);
    }
    while (!parts.names.empty()) {
        parts.names.back() = CutTrailing(parts.names.back());
        if (!parts.names.back().empty()) {
            break;
        }
        parts.names.pop_back();
    }
    return parts;
}

std::string_view CutTrailing(std::string_view name) {
    return name.substr(0, name.find_last_not_of(". ") + 1);
}

std::string ShownName(std::string_view diskName) {
    std::string result = DecodeText(diskName);
    for (std::size_t at = result.find('\\'); at != std::string::npos; at = result.find('\\', at)) {
        result.replace(at, 1, kShownBackslash);
    }
    return result;
}

std::string ShownNativePath(std::string_view diskPath) { return ShownPath(diskPath, '/'); }

std::string ShownLibraryPath(std::string_view diskPath, char drive) {
    return std::string{drive, ':'} + ShownPath(diskPath, '\\');
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string result;
    result.reserve(folder.size() + 1 + name.size());
    result += folder;
    if (!folder.ends_with('/')) {
        result += '/';
    }
    result += name;
    return result;
}

std::string ParentPath(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return std::string(path.substr(0, slash == 0 ? 1 : slash));
}

}  // namespace quenloft
