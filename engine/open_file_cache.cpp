#include "engine/open_file_cache.h"

#include "engine/failure.h"

namespace quenloft {

std::string_view FileHandle::ReadLine() {
    if (AtEnd()) {
        throw Failure(FailureNumber::InputPastEnd);
    }
    return file_->Line(next_++);
}

OpenedFile::OpenedFile(OpenFileCache& cache, std::string_view path, const TextFile& file)
    : cache_(cache), path_(path), handle_(&own_) {
    for (OpenedFile* other = cache.innermost_; other != nullptr; other = other->outer_) {
        if (other->path_ == path && other->own_.file_->Path() == file.Path()) {
            handle_ = &other->own_;
            return;
        }
    }
    own_.file_ = &file;
    outer_ = cache.innermost_;
    cache.innermost_ = this;
    registered_ = true;
}

void OpenedFile::Close() {
    // Readers end in the reverse order of their beginning, so this one is the innermost.
    if (registered_) {
        cache_.innermost_ = outer_;
        registered_ = false;
    }
}

}  // namespace quenloft
