// A POSIX system hands the bytes over as they were typed and prints them as they are.
#include "platform/console.h"

namespace tidemark {

std::vector<std::string> Console_arguments(int argc, char** argv) {
    return {argv, argv + argc};
}

std::vector<std::string> Files_meant(const std::string& argument) {
    return {argument};
}

Utf8Console::Utf8Console() = default;
Utf8Console::~Utf8Console() = default;

}  // namespace tidemark
