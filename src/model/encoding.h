// Texts are held and written as UTF-8, the file system's own encoding.
#pragma once

#include <string>
#include <string_view>

namespace tidemark {

// Bytes read from a file as text: as they are when they are valid UTF-8, otherwise each byte is
// taken as a Latin-1 character.
std::string Text_from_bytes(std::string_view bytes);

}  // namespace tidemark
