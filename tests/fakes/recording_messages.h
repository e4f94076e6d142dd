// Message boxes that are written down and answered by the test.
#pragma once

#include <deque>
#include <vector>

#include "platform/messages.h"

namespace tidemark {

class RecordingMessages : public Messages {
  public:
    std::vector<Message> Shown;
    std::deque<MessageAnswer> Answers;  // to the questions, in order; No when there is none left

    MessageAnswer Show(const Message& message) override {
        Shown.push_back(message);
        if (message.Buttons == MessageButtons::OK) return MessageAnswer::OK;
        if (Answers.empty()) return MessageAnswer::No;
        const MessageAnswer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }

    // The texts alone, for tests that do not care for titles and icons.
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const Message& message : Shown) texts.push_back(message.Text);
        return texts;
    }
};

}  // namespace tidemark
