// Ends the process where one action never ends: a hang is a failure with a name then.
#pragma once

#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <mutex>
#include <pthread.h>
#include <string>
#include <thread>

namespace quenloft {

class WatchDog {
  public:
    /// Watches the thread that makes it.
    WatchDog() : thread_([this] { Watch(); }) {}
    ~WatchDog() {
        {
            const std::lock_guard lock(mutex_);
            isOver_ = true;
        }
        changed_.notify_one();
        thread_.join();
    }
    WatchDog(const WatchDog&) = delete;
    WatchDog& operator=(const WatchDog&) = delete;

    /// Another action begins, which gets a minute.
    void Begin(std::string action) {
        {
            const std::lock_guard lock(mutex_);
            action_ = std::move(action);
            ++count_;
        }
        changed_.notify_one();
    }

  private:
    void Watch() {
        std::unique_lock lock(mutex_);
        while (!isOver_) {
            const long before = count_;
            constexpr std::chrono::minutes kLongest(1);
            if (!changed_.wait_for(lock, kLongest, [&] { return isOver_ || count_ != before; })) {
                std::fprintf(stderr, "More than a minute: %s\n", action_.c_str());
                // In the thread that hangs: debuggers and sanitizers show where.
                pthread_kill(watched_, SIGABRT);
                return;
            }
        }
    }

    const pthread_t watched_ = pthread_self();
    std::mutex mutex_;
    std::condition_variable changed_;
    std::string action_ = "setting up";
    long count_ = 0;
    bool isOver_ = false;
    std::thread thread_;
};

}  // namespace quenloft
