// The sentences for what the system refused.
#pragma once

#include <string>

#include "platform/file_system.h"

namespace quenloft {

FileError FileNotFound(const std::string& shownPath);
FileError PathNotFound(const std::string& shownPath);
FileError IsAFolder(const std::string& shownPath);
FileError IsNoRegularFile(const std::string& shownPath);
/// `error` is an errno.
FileError SystemRefused(int error, const std::string& shownPath);
FileError CouldNotBeSaved(int error, const std::string& shownPath);
/// It stands there, but the disk did not confirm it.
FileError MayNotLast(int error, const std::string& shownPath);

}  // namespace quenloft
