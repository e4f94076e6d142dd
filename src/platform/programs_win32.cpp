// Programs by way of Windows' calls.
#include <optional>
#include <string_view>

#include "platform/programs.h"
#include "platform/win32_handle.h"
#include "platform/win32_text.h"

namespace tidemark {

namespace {

class RunningProcess : public RunningProgram {
  public:
    explicit RunningProcess(HANDLE process) : process_(process) {}

    std::optional<ProgramEnd> End() override {
        DWORD status = 0;
        if (WaitForSingleObject(process_.Get(), 0) != WAIT_OBJECT_0) return std::nullopt;
        GetExitCodeProcess(process_.Get(), &status);
        return ProgramEnd{.Status = status};
    }

  private:
    Handle process_;
};

// As programs cut their command line: in quotes, a quote after a backslash is one of the text, and
// backslashes count double where they come before a quote.
std::wstring Quoted(std::wstring_view argument) {
    if (!argument.empty() && argument.find_first_of(L" \t\n\v\"") == argument.npos)
        return std::wstring(argument);
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : argument) {
        if (c == L'"') quoted.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    return quoted.append(backslashes, L'\\') + L'"';
}

std::wstring Command_line(const Command& command) {
    std::wstring line = L'"' + To_windows(command.Program) + L'"';
    for (const std::string& argument : command.Arguments)
        line += L' ' + Quoted(To_windows(argument));
    return line;
}

std::unique_ptr<RunningProgram> Spawn(const Command& command) {
    const std::wstring program = To_windows(command.Program);
    const std::wstring folder = To_windows(command.Folder);
    std::wstring line = Command_line(command);
    const bool is_bare_name = program.find_first_of(L"\\/") == program.npos;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(is_bare_name ? nullptr : program.c_str(), line.data(), nullptr, nullptr,
                        false, CREATE_NEW_CONSOLE, nullptr,
                        folder.empty() ? nullptr : folder.c_str(), &startup, &started))
        return nullptr;
    CloseHandle(started.hThread);
    return std::make_unique<RunningProcess>(started.hProcess);
}

}  // namespace

SystemPrograms::SystemPrograms(Patience& patience) : patience_(patience) {}

ProgramStart SystemPrograms::Start(const Command& command) {
    return {Spawn(command), ""};
}

bool SystemPrograms::Show_text(const std::string& path) {
    // By its full path: a program of that name in the project's folder is not the one meant.
    wchar_t folder[MAX_PATH];
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) return false;
    return Spawn({From_windows({folder, length}) + "\\notepad.exe", {path}, ""}) != nullptr;
}

// What ShellExecute returns is a number in a pointer's clothes, above 32 when it has worked.
bool SystemPrograms::Show_document(const std::string& address) {
    constexpr INT_PTR last_error = 32;
    return reinterpret_cast<INT_PTR>(ShellExecuteW(nullptr, L"open", To_windows(address).c_str(),
                                                   nullptr, nullptr, SW_SHOWNORMAL)) > last_error;
}

}  // namespace tidemark
