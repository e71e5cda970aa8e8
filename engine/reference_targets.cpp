#include "engine/reference_targets.h"

#include <utility>

#include "platform/letter_case.h"

namespace quenloft {

namespace {

/// References made up by scripts must not fill the memory; no library has so many files.
constexpr std::size_t kMostTargets = 100'000;

}  // namespace

ReferenceTarget::ReferenceTarget(std::string spelledPath)
    : path(std::move(spelledPath)),
      fileName(std::string(FileBaseName(path)).append(".").append(FileExtension(path))),
      folderLength(DirectoryPart(path).size()),
      hasDrive(HasDrive(path)),
      isScript(IsScriptPath(path)),
      letterCase(LetterCaseOfName(path)) {}

std::string FromCurrentDirectory(const FileSystem& files, std::string_view path) {
    return path.starts_with('\\') ? files.CurrentDirectory() + std::string(path)
                                  : std::string(path);
}

std::string PathAsSpelled(FileSystem& files, std::string_view path) {
    const std::string onDisk = files.AbsolutePath(path);
    const std::string_view name = path.substr(path.find_last_of("/\\") + 1);
    if (FoldCase(name) != FoldCase(FileName(onDisk))) {
        return onDisk;
    }
    return std::string(DirectoryPart(onDisk)).append("\\").append(name);
}

std::string ResolveFileKind(FileSystem& files, std::string name) {
    if (IsScriptPath(name) || IsTablePath(name)) {
        return name;
    }
    // Names match without regard to case, so ".TBL" is found as well.
    const std::size_t size = name.size();
    name += ".tbl";
    if (files.FileExists(name)) {
        return name;
    }
    name.replace(size, std::string::npos, ".spt");
    if (files.FileExists(name)) {
        return name;
    }
    name.resize(size);
    return name;
}

std::shared_ptr<const ReferenceTarget> ReferenceTargets::Find(std::string_view reference) {
    const FolderId folder = files_.CurrentFolder();
    if (folder >= byFolder_.size()) {
        byFolder_.resize(folder + 1);
    }
    const auto known = byFolder_[folder].find(reference);
    if (known != byFolder_[folder].end()) {
        if (known->second->look != files_.Look()) {
            known->second = Resolve(reference);
        }
        return known->second;
    }
    if (count_ >= kMostTargets) {
        for (Targets& targets : byFolder_) {
            targets.clear();
        }
        count_ = 0;
    }
    ++count_;
    return byFolder_[folder].emplace(reference, Resolve(reference)).first->second;
}

std::shared_ptr<const ReferenceTarget> ReferenceTargets::Resolve(std::string_view reference) {
    // Resolved once for all repeats: the first roll may lead the current directory elsewhere.
    auto target = std::make_shared<ReferenceTarget>(
        ResolveFileKind(files_, FromCurrentDirectory(files_, reference)));
    target->look = files_.Look();
    if (target->folderLength == 0 && !target->isScript && files_.FileExists(target->fileName)) {
        try {
            target->text = files_.OpenText(target->fileName);
        } catch (const FileError&) {
            // Told by the roll, which opens it again.
        }
    }
    return target;
}

}  // namespace quenloft
