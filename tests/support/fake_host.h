// A host that records what it was asked and answers from a list.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "engine/host.h"
#include "platform/linux/stack_left.h"

namespace quenloft {

class FakeHost : public EngineHost {
  public:
    bool Yield() override {
        ++yields;
        return onYield ? onYield() : false;
    }
    void ShowMessage(const std::string& text) override { messages.push_back(text); }
    std::string AskForText(const std::string& prompt) override {
        prompts.push_back(prompt);
        if (answers.empty()) {
            return {};
        }
        std::string answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::size_t StackBytesLeft() override { return quenloft::StackBytesLeft(); }

    /// What happens while the event loop has its turn; true when files may have changed.
    std::function<bool()> onYield;
    long yields = 0;
    std::vector<std::string> messages;
    std::vector<std::string> prompts;
    std::deque<std::string> answers;
};

}  // namespace quenloft
