// Keeps texts in the background: a disk may take its time, typing must not.
#pragma once

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <thread>

#include "shell/recovery/recovery_folder.h"

namespace quenloft {

/// What is asked of it is done in a thread of its own, for each number in the order of the calls; a
/// later text takes the place of one that is still waiting.
class RecoveryWriter {
  public:
    /// `parent` as for RecoveryFolder. `failed` gets the sentence of the first text that cannot be
    /// kept; it is called in the thread.
    RecoveryWriter(std::string parent, std::function<void(const std::string&)> failed);
    /// Waits for what is being written; then nothing is kept any more.
    ~RecoveryWriter();

    /// `text` is called in the thread, for what `kept` leaves open.
    void Keep(int number, KeptText kept, std::function<std::string()> text);
    void Remove(int number);
    /// `leftFile` is to be deleted as soon as `number` has been kept, or removed.
    void Replace(int number, const std::string& leftFile);

    /// The last that was done for `number` came to nothing: it should be asked for again.
    bool HasFailed(int number);

    /// Until all that was asked for is done.
    void Wait();

  private:
    struct Task {
        KeptText kept;
        std::function<std::string()> text;  // Without it nothing is to be kept.
    };
    using Tasks = std::map<int, Task>;

    void Work(const std::stop_token& stop);
    void Do(int number, Task task);
    void NoteOutcome(int number, bool hasFailed);
    void DeleteReplaced(int number);

    RecoveryFolder folder_;  // Of the thread alone.
    const std::function<void(const std::string&)> failed_;
    bool hasTold_ = false;  // Likewise.
    std::mutex mutex_;
    std::condition_variable_any changed_;
    Tasks waiting_;
    std::multimap<int, std::string> replaced_;
    std::set<int> failures_;
    bool isBusy_ = false;
    std::jthread thread_;  // Last: it uses all the others.
};

}  // namespace quenloft
