#include "shell/recovery/left_texts.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <iterator>
#include <optional>
#include <sys/file.h>
#include <system_error>

#include "platform/file_system.h"
#include "platform/linux/file_reading.h"
#include "shell/recovery/recovery_folder.h"

namespace quenloft {
namespace {

constexpr char kSetAsideSuffix[] = ".unreadable";
// Left by a write that did not come to its end (see atomic_file); the whole text is beside it.
constexpr char kTemporaryPrefix[] = ".quenloft-";

std::vector<std::string> NamesIn(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        names.push_back(entry->path().filename().string());
    }
    std::ranges::sort(names);
    return names;
}

void RemoveIfEmpty(const std::string& folder) {
    const std::vector<std::string> names = NamesIn(folder);
    if (std::ranges::all_of(names, [](const std::string& name) { return name == kLockName; })) {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
}

std::optional<KeptText> ReadKept(const std::string& file) {
    try {
        const FileDescriptor open = OpenForReading(file);
        return KeptOfBytes(ReadToEnd(open.Number(), file));
    } catch (const FileError&) {
        return std::nullopt;
    }
}

}  // namespace

LeftTexts::LeftTexts(const std::string& parent) {
    for (const std::string& name : NamesIn(parent)) {
        if (!name.starts_with('.')) {
            TakeOver(parent + "/" + name);
        }
    }
    std::ranges::stable_sort(texts_, std::greater(),
                             [](const LeftText& text) { return text.kept.when; });
}

void LeftTexts::Forget(const std::string& file) {
    std::erase_if(texts_, [&file](const LeftText& text) { return text.file == file; });
}

void LeftTexts::TakeOver(const std::string& folder) {
    FileDescriptor lock(open((folder + "/" + kLockName).c_str(), O_RDWR | O_CLOEXEC));
    if (!lock.IsOpen() || flock(lock.Number(), LOCK_EX | LOCK_NB) != 0) {
        return;  // Another instance's.
    }
    for (const std::string& name : NamesIn(folder)) {
        if (name.starts_with(kTemporaryPrefix)) {
            std::error_code ignored;
            std::filesystem::remove(folder + "/" + name, ignored);
        } else if (name != kLockName && !name.ends_with(kSetAsideSuffix)) {
            Read(folder + "/" + name);
        }
    }
    RemoveIfEmpty(folder);
    locks_.push_back(std::move(lock));
}

void LeftTexts::Read(const std::string& file) {
    if (auto kept = ReadKept(file)) {
        texts_.push_back({file, std::move(*kept)});
        return;
    }
    const std::string aside = file + kSetAsideSuffix;
    std::error_code error;
    std::filesystem::rename(file, aside, error);
    setAside_.push_back(error ? file : aside);
}

void DeleteLeftText(const std::string& file) {
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
    RemoveIfEmpty(file.substr(0, file.rfind('/')));
}

}  // namespace quenloft
