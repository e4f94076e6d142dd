// Message boxes that are written down and answered by the test.
#pragma once

#include <deque>
#include <utility>
#include <vector>

#include "platform/messages.h"

namespace tidemark {

using Texts = std::vector<std::string>;

// Takes the first of the answers that a test has laid out.
template <class T>
T Next_of(std::deque<T>& answers, T when_none_is_left) {
    if (answers.empty()) return when_none_is_left;
    T answer = std::move(answers.front());
    answers.pop_front();
    return answer;
}

class RecordingMessages : public Messages {
  public:
    std::vector<Message> Shown;
    std::deque<MessageAnswer> Answers;  // to the questions, in order; No when there is none left

    MessageAnswer Show(const Message& message) override {
        Shown.push_back(message);
        const bool is_question = message.Buttons == MessageButtons::YesNo;
        return is_question ? Next_of(Answers, MessageAnswer::No) : MessageAnswer::OK;
    }

    // What has been said since the last look, one below the other: the text of a warning, "title:
    // text" of any other message.
    std::string Said() {
        std::string said;
        for (const auto& [text, title, icon, buttons] : std::exchange(Shown, {}))
            said += (said.empty() ? "" : "\n") +
                    (title == "Tidemark - Warning" ? "" : title + ": ") + text;
        return said;
    }
};

}  // namespace tidemark
