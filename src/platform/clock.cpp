#include "platform/clock.h"

#include <ctime>
#include <iomanip>
#include <sstream>

namespace tidemark {

std::string SystemClock::Now_text() {
    const std::time_t now = std::time(nullptr);
    std::ostringstream text;
    text << std::put_time(std::localtime(&now), "%Y-%m-%d %H:%M:%S");
    return text.str();
}

}  // namespace tidemark
