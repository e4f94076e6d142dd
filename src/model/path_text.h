// Cutting paths. Both "\" and "/" separate folders, wherever a path was typed.
#pragma once

#include <string>
#include <string_view>

namespace tidemark {

// What follows the last separator; the whole path when it has none.
std::string Last_part(std::string_view path);

// The path up to and with its last separator; empty when it has none.
std::string Folder_part(std::string_view path);

// Whether the path says by itself where it leads: it begins with a separator or names a drive.
bool Is_full_path(std::string_view path);

// Whether a path can only be meant for a system other than the one on which `own`, a full path, is
// one: it names a drive or a server of Windows elsewhere, or begins with "/" on Windows.
bool Is_path_of_another_system(std::string_view path, std::string_view own);

// Whether the path ends with the extension, such as ".TDM", whatever the case of A to Z.
bool Has_extension(std::string_view path, std::string_view extension);

}  // namespace tidemark
