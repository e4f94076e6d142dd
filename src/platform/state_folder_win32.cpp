// What stays on this machine rather than following its user to others.
#include "platform/folder.h"
#include "platform/win32_file.h"
#include "platform/win32_text.h"

namespace tidemark {

std::string State_folder() {
    const std::wstring folder = Filled([](wchar_t* buffer, DWORD size) {
        return GetEnvironmentVariableW(L"LOCALAPPDATA", buffer, size);
    });
    return folder.empty() ? "" : From_windows(folder) + "\\Tidemark";
}

}  // namespace tidemark
