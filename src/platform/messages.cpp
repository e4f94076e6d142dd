#include "platform/messages.h"

namespace tidemark {

void Warn(Messages& messages, std::string_view text) {
    messages.Show(
        {std::string(text), "Tidemark - Warning", MessageIcon::Exclamation, MessageButtons::OK});
}

void Inform(Messages& messages, std::string_view title, std::string_view text) {
    messages.Show(
        {std::string(text), std::string(title), MessageIcon::Information, MessageButtons::OK});
}

bool Ask(Messages& messages, std::string_view title, std::string_view text, MessageIcon icon) {
    const MessageAnswer answer =
        messages.Show({std::string(text), std::string(title), icon, MessageButtons::YesNo});
    return answer == MessageAnswer::Yes;
}

void Plain_box(Messages& messages, std::string_view text) {
    messages.Show({std::string(text), "Tidemark", MessageIcon::None, MessageButtons::OK});
}

}  // namespace tidemark
