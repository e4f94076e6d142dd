// The command line of a console program.
#pragma once

#include <string>
#include <vector>

namespace tidemark {

// The arguments in UTF-8, the program's name first. What the program prints is then taken for
// UTF-8 too, where the system can be told so.
std::vector<std::string> Console_arguments(int argc, char** argv);

}  // namespace tidemark
