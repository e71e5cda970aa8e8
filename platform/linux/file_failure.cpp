#include "platform/linux/file_failure.h"

#include <cerrno>
#include <system_error>

namespace quenloft {

namespace {

using Kind = FileError::Kind;

std::string ReasonOf(int error) { return std::system_category().message(error); }

Kind KindOf(int error) {
    switch (error) {
        case EACCES:
        case EPERM:
        case EROFS:
            return Kind::PermissionDenied;
        case ENOENT:
        case ENOTDIR:
            return Kind::PathNotFound;
        default:
            return Kind::Other;
    }
}

}  // namespace

FileError FileNotFound(const std::string& shownPath) {
    return {Kind::FileNotFound, "File not found: " + shownPath};
}

FileError PathNotFound(const std::string& shownPath) {
    return {Kind::PathNotFound, "Path not found: " + shownPath};
}

FileError IsAFolder(const std::string& shownPath) {
    return {Kind::Other, shownPath + " is a folder"};
}

FileError IsNoRegularFile(const std::string& shownPath) {
    return {Kind::Other, shownPath + " is not a regular file"};
}

FileError SystemRefused(int error, const std::string& shownPath) {
    switch (error) {
        case ENOENT:
            return FileNotFound(shownPath);
        case ENOTDIR:
            return PathNotFound(shownPath);
        case EACCES:
        case EPERM:
            return {Kind::PermissionDenied, "Permission denied: " + shownPath};
        default:
            return {KindOf(error), shownPath + ": " + ReasonOf(error)};
    }
}

FileError CouldNotBeSaved(int error, const std::string& shownPath) {
    return {KindOf(error), shownPath + " could not be saved: " + ReasonOf(error)};
}

FileError MayNotLast(int error, const std::string& shownPath) {
    return {KindOf(error),
            shownPath + " was saved, but may not outlast a power failure: " + ReasonOf(error)};
}

}  // namespace quenloft
