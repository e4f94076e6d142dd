// Windows has squeezed `argv` into an alphabet of its own, so the arguments are asked for again.
#include "platform/console.h"
#include "platform/win32_text.h"

namespace tidemark {

std::vector<std::string> Console_arguments(int argc, char** argv) {
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    if (!wide) return {argv, argv + argc};
    std::vector<std::string> arguments;
    for (int i = 0; i < count; ++i) arguments.push_back(From_windows(wide[i]));
    LocalFree(wide);
    return arguments;
}

std::vector<std::string> Files_meant(const std::string& argument) {
    if (argument.find_first_of("*?") == argument.npos) return {argument};
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(To_windows(argument).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return {argument};
    const std::string folder = argument.substr(0, argument.find_last_of("\\/:") + 1);
    std::vector<std::string> files;
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            files.push_back(folder + From_windows(found.cFileName));
    } while (FindNextFileW(search, &found));
    FindClose(search);
    return files.empty() ? std::vector{argument} : files;
}

Utf8Console::Utf8Console() : before_(GetConsoleOutputCP()) {  // 0 without a console
    SetConsoleOutputCP(CP_UTF8);
}

Utf8Console::~Utf8Console() {
    if (before_ != 0) SetConsoleOutputCP(before_);
}

}  // namespace tidemark
