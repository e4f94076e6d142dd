// A POSIX system hands the bytes over as they were typed.
#include "platform/arguments.h"

namespace tidemark {

std::vector<std::string> Console_arguments(int argc, char** argv) {
    return {argv, argv + argc};
}

}  // namespace tidemark
