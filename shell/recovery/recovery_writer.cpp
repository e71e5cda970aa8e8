#include "shell/recovery/recovery_writer.h"

#include <utility>
#include <vector>

#include "platform/file_system.h"
#include "shell/recovery/left_texts.h"

namespace quenloft {

RecoveryWriter::RecoveryWriter(std::string parent, std::function<void(const std::string&)> failed)
    : folder_(std::move(parent)),
      failed_(std::move(failed)),
      thread_([this](const std::stop_token& stop) { Work(stop); }) {}

RecoveryWriter::~RecoveryWriter() = default;

void RecoveryWriter::Keep(int number, KeptText kept, std::function<std::string()> text) {
    const std::scoped_lock lock(mutex_);
    waiting_[number] = {std::move(kept), std::move(text)};
    changed_.notify_all();
}

void RecoveryWriter::Remove(int number) {
    const std::scoped_lock lock(mutex_);
    waiting_[number] = {};
    changed_.notify_all();
}

void RecoveryWriter::Replace(int number, const std::string& leftFile) {
    const std::scoped_lock lock(mutex_);
    replaced_.emplace(number, leftFile);
}

bool RecoveryWriter::HasFailed(int number) {
    const std::scoped_lock lock(mutex_);
    return failures_.contains(number);
}

void RecoveryWriter::Wait() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return waiting_.empty() && !isBusy_; });
}

void RecoveryWriter::Work(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    // What waits at the end is done too: a left text may have to go.
    while (changed_.wait(lock, stop, [this] { return !waiting_.empty(); })) {
        Tasks tasks = std::exchange(waiting_, {});
        isBusy_ = true;
        lock.unlock();
        for (auto& [number, task] : tasks) {
            Do(number, std::move(task));
        }
        lock.lock();
        isBusy_ = false;
        changed_.notify_all();
    }
}

void RecoveryWriter::Do(int number, Task task) {
    try {
        if (task.text) {
            task.kept.text = task.text();
            folder_.Keep(number, task.kept);
        } else {
            folder_.Remove(number);
        }
    } catch (const FileError& error) {
        NoteOutcome(number, true);
        if (!std::exchange(hasTold_, true)) {
            failed_(error.what());
        }
        return;
    }
    NoteOutcome(number, false);
    DeleteReplaced(number);
}

void RecoveryWriter::NoteOutcome(int number, bool hasFailed) {
    const std::scoped_lock lock(mutex_);
    if (hasFailed) {
        failures_.insert(number);
    } else {
        failures_.erase(number);
    }
}

void RecoveryWriter::DeleteReplaced(int number) {
    std::vector<std::string> replaced;
    {
        const std::scoped_lock lock(mutex_);
        const auto [first, last] = replaced_.equal_range(number);
        for (auto left = first; left != last; ++left) {
            replaced.push_back(left->second);
        }
        replaced_.erase(first, last);
    }
    for (const std::string& file : replaced) {
        DeleteLeftText(file);
    }
}

}  // namespace quenloft
