// Folders of the program's own. Paths are as in platform/files.h.
#pragma once

#include <string>
#include <vector>

#include "platform/files.h"

namespace tidemark {

// Where this user's programs keep what is to outlive them but is no document, with a folder of
// Tidemark's own in it; it need not be there. Empty when the system does not say.
std::string State_folder();

// Makes a folder with all those above it, unless it is there; a new one is for its owner only.
FileResult Make_folder(const std::string& path);

// The names of the files in a folder, in order; none when it cannot be read.
std::vector<std::string> Names_in(const std::string& folder);

// Gives a file another name; a file that has it already is lost.
FileResult Rename_file(const std::string& from, const std::string& to);

}  // namespace tidemark
