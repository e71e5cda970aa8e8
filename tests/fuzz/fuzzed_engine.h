// An engine for inputs that nobody has looked at: it ends every run soon.
#pragma once

#include "engine/engine.h"
#include "platform/linux/system_random_source.h"
#include "tests/fuzz/memory_files.h"

namespace quenloft {

class FuzzedEngine : private EngineHost {
  public:
    MemoryFiles files;

    std::string Roll(std::string_view name) {
        Begin();
        return engine_.RollTable("Z:\\lib\\" + std::string(name));
    }
    std::string Run(std::string_view name) {
        Begin();
        return engine_.RunScript("Z:\\lib\\" + std::string(name), true);
    }

  private:
    void Begin() {
        turns_ = 0;
        engine_.ClearAbortFlag();
        engine_.ResetGeneration();
    }
    bool Yield() override {
        constexpr int kMostTurns = 2000;
        if (++turns_ > kMostTurns) {
            engine_.SetAbortFlag();
        }
        return false;
    }
    void ShowMessage(const std::string&) override {}
    std::string AskForText(const std::string&) override { return "7"; }
    /// Recursion ends after some dozen levels: that is cheap under the sanitizer, and the way out
    /// is the same.
    std::size_t StackBytesLeft() override { return std::size_t{3} << 19; }

    SystemRandomSource random_;
    int turns_ = 0;
    Engine engine_{files, random_, *this};
};

}  // namespace quenloft
