// The folder that is current while a table is rolled or a script run.
#pragma once

#include <string>
#include <string_view>

namespace quenloft {

class Engine;
class FileSystem;

/// The library path of the folder that the file at `path` lies in.
std::string FolderOf(FileSystem& files, std::string_view path);

/// Makes `folder` the current directory. A run that is going on keeps its own, and a folder that
/// went away changes nothing: what then reads a file there says so.
void EnterFolder(Engine& engine, const std::string& folder);

}  // namespace quenloft
