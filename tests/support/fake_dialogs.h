// Dialogs that answer from a list and record what they were asked.
#pragma once

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <variant>
#include <vector>

#include "platform/dialogs.h"

namespace quenloft {

using Log = std::vector<std::string>;

/// A dialog that no answer was prepared for is a failure, and so is an answer that nothing asked
/// for.
class FakeDialogs : public Dialogs {
  public:
    ~FakeDialogs() override { EXPECT_TRUE(answers_.empty()) << "a dialog did not come"; }

    void WillConfirm() { answers_.emplace_back(std::monostate()); }
    void WillCancel() { answers_.emplace_back(std::monostate()); }
    void WillAnswer(Answer answer) { answers_.emplace_back(answer); }
    /// The text typed, or the file or folder chosen.
    void WillGive(std::string text) { answers_.emplace_back(std::move(text)); }
    /// From now on messages may come at any time; TakeLog shows them like the others.
    void WillConfirmEveryMessage() { confirmsEveryMessage_ = true; }
    void WillChoose(FontChoice font) { answers_.emplace_back(std::move(font)); }

    /// What the dialogs since the last call showed, each as "kind: text".
    Log TakeLog() { return std::exchange(log_, {}); }

    void ShowMessage(const std::string& text, MessageIcon icon) override {
        const char* kinds[] = {"message: ", "information: ", "warning: "};
        const std::string shown = kinds[static_cast<int>(icon)] + text;
        if (confirmsEveryMessage_) {
            log_.push_back(shown);
        } else {
            Next<std::monostate>(shown);
        }
    }
    Answer AskYesNo(const std::string& text) override {
        return Next<Answer>("yes or no: " + text).value_or(Answer::No);
    }
    Answer AskYesNoCancel(const std::string& text) override {
        return Next<Answer>("yes, no or cancel: " + text).value_or(Answer::Cancel);
    }
    std::optional<std::string> AskText(const std::string& prompt, const std::string& defaultText,
                                       const std::string& title) override {
        return Next<std::string>("text: " + prompt + " [" + defaultText + "]" +
                                 (title.empty() ? "" : " titled " + title));
    }
    std::optional<std::string> ChooseFileToOpen(const std::string& filter,
                                                const std::string& folder) override {
        return Next<std::string>("open: " + filter + " in " + folder);
    }
    std::optional<std::string> ChooseFileToSave(const std::string& filter, const std::string& path,
                                                int filterIndex) override {
        return Next<std::string>("save: " + filter +
                                 (filterIndex == 1 ? "" : " from " + std::to_string(filterIndex)) +
                                 " at " + path);
    }
    std::optional<std::string> ChooseFolder(const std::string& title,
                                            const std::string& folder) override {
        return Next<std::string>("folder: " + title + " in " + folder);
    }
    std::optional<FontChoice> ChooseFont(const FontChoice& initial) override {
        return Next<FontChoice>("font: " + initial.name + " " + std::to_string(initial.size) +
                                (initial.bold ? " bold" : "") + (initial.italic ? " italic" : ""));
    }

  private:
    using Reply = std::variant<std::monostate, Answer, std::string, FontChoice>;

    template <typename Wanted>
    std::optional<Wanted> Next(const std::string& asked) {
        log_.push_back(asked);
        if (answers_.empty()) {
            ADD_FAILURE() << "no answer was prepared for: " << asked;
            return std::nullopt;
        }
        const Reply reply = answers_.front();
        answers_.pop_front();
        const auto* wanted = std::get_if<Wanted>(&reply);
        return wanted ? std::optional<Wanted>(*wanted) : std::nullopt;
    }

    std::deque<Reply> answers_;
    bool confirmsEveryMessage_ = false;
    Log log_;
};

}  // namespace quenloft
