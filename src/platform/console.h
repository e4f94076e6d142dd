// What a console program is called with, and how what it prints is shown.
#pragma once

#include <string>
#include <vector>

namespace tidemark {

// The arguments, the program's name first: in UTF-8 on Windows, as the shell hands them over
// elsewhere.
std::vector<std::string> Console_arguments(int argc, char** argv);

// The files that an argument such as "*.TDM" stands for on Windows, whose shell leaves that to the
// program. The argument itself when it fits no file, and wherever the shell has done it.
std::vector<std::string> Files_meant(const std::string& argument);

// As long as this lives, the console takes what is printed for UTF-8, where it can be told.
class Utf8Console {
  public:
    Utf8Console();
    Utf8Console(const Utf8Console&) = delete;
    Utf8Console& operator=(const Utf8Console&) = delete;
    ~Utf8Console();  // NOLINT(performance-trivially-destructible): on Windows it does something

  private:
    [[maybe_unused]] unsigned before_ = 0;  // the alphabet that it was told before; 0: none
};

}  // namespace tidemark
