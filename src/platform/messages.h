// Message boxes, as the rules ask for them.
#pragma once

#include <string>
#include <string_view>

namespace tidemark {

enum class MessageIcon { None, Information, Exclamation };
enum class MessageButtons { OK, YesNo };
enum class MessageAnswer { OK, Yes, No };

struct Message {
    std::string Text;  // lines are joined with a line feed
    std::string Title;
    MessageIcon Icon = MessageIcon::None;
    MessageButtons Buttons = MessageButtons::OK;

    bool operator==(const Message&) const = default;
};

class Messages {
  public:
    virtual ~Messages() = default;

    // Shows the message and waits for its answer. A YesNo message closed in any other way is No.
    virtual MessageAnswer Show(const Message& message) = 0;
};

// A warning about bad input: title "Tidemark - Warning", exclamation icon, OK.
void Warn(Messages& messages, std::string_view text);

// Information icon, OK.
void Inform(Messages& messages, std::string_view title, std::string_view text);

// A question with Yes and No; true for Yes.
bool Ask(Messages& messages, std::string_view title, std::string_view text,
         MessageIcon icon = MessageIcon::Exclamation);

// The plain box of internal errors: the program's title, no icon, OK.
void Plain_box(Messages& messages, std::string_view text);

}  // namespace tidemark
