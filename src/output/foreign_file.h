// Whose work a file is that an assembler file would replace.
#pragma once

#include <string>

#include "platform/files.h"

namespace tidemark {

// Whether the path leads to a file that does not begin as the assembler files written here do, of
// whatever version: somebody else's work, which is not to be lost. A file without a byte is
// nobody's. False, too, of what cannot be read: writing it fails and says why.
bool Is_foreign_file(const std::string& path, Files& files);

}  // namespace tidemark
