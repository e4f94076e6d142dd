// The memory of the process itself, as the kernel counts it.
#pragma once

#include <fstream>
#include <string>

namespace tidemark {

// In MiB: "VmRSS:" what is resident now, "VmHWM:" the most that ever was.
inline double Process_MiB(const std::string& figure) {
    std::ifstream status("/proc/self/status");
    double kilobytes = 0;
    for (std::string word; status >> word;)
        if (word == figure) status >> kilobytes;
    return kilobytes / 1024;
}

}  // namespace tidemark
