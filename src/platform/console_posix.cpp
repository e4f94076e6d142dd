// A POSIX system hands the bytes over as they were typed and prints them as they are.
#include "platform/console.h"

namespace tidemark {

std::vector<std::string> Console_arguments(int argc, char** argv) {
    return {argv, argv + argc};
}

std::vector<std::string> Files_meant(const std::string& argument) {
    return {argument};
}

std::shared_ptr<void> Console_in_utf8() {
    return nullptr;
}

}  // namespace tidemark
