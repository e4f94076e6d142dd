// What a console program is called with, and how what it prints is shown.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace tidemark {

// The arguments, the program's name first: in UTF-8 on Windows, as the shell hands them over
// elsewhere.
std::vector<std::string> Console_arguments(int argc, char** argv);

// The files that an argument such as "*.TDM" stands for on Windows, whose shell leaves that to the
// program. The argument itself when it fits no file, and wherever the shell has done it.
std::vector<std::string> Files_meant(const std::string& argument);

// As long as the result is kept, the console takes what is printed as UTF-8, where it can be set.
[[nodiscard]] std::shared_ptr<void> Console_in_utf8();

}  // namespace tidemark
