// Windows has squeezed `argv` into an alphabet of its own, so the arguments are asked for again.

#include "platform/arguments.h"
#include "platform/win32_text.h"

namespace tidemark {

std::vector<std::string> Console_arguments(int argc, char** argv) {
    SetConsoleOutputCP(CP_UTF8);
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    if (!wide) return {argv, argv + argc};
    std::vector<std::string> arguments;
    for (int i = 0; i < count; ++i) arguments.push_back(From_windows(wide[i]));
    LocalFree(wide);
    return arguments;
}

}  // namespace tidemark
