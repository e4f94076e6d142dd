// Windows tells a program with windows of the end of its session by messages, not by signals.
#include <cstdlib>

#include "platform/ending_signals.h"

namespace tidemark {

int Pipe_of_ending_signals() {
    return -1;
}

void End_by_signal(int) {
    std::_Exit(EXIT_FAILURE);
}

}  // namespace tidemark
