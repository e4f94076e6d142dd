// What the console programs have in common: their command line, and how they end.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/console.h"

namespace tidemark {

// Exit codes; 0 is for success.
inline constexpr int ExitRefused = 1;
inline constexpr int ExitUsage = 2;

struct ConsoleOption {
    const char* Name;  // without its "--"
    char Letter;       // that stands for it in the program, another one for each option
    bool TakesText = false;
};

class ConsoleProgram {
  public:
    // False when the text is none that the option takes.
    using TakeOption = std::function<bool(char letter, std::string_view text)>;

    // Both texts live as long as this does.
    ConsoleProgram(const char* name, const char* usage) : name_(name), usage_(usage) {}

    // Takes one option after the other; --help and --version are every program's. The exit code
    // when the program has to end there; nothing when it can go on.
    std::optional<int> Read(std::vector<std::string> arguments,
                            std::span<const ConsoleOption> options, const TakeOption& take);
    // The files that the command line names.
    const std::vector<std::string>& Files() const { return files_; }

    // The exit code, once all that was printed has been taken: a full disk is no success.
    int Ended(bool all_is_well) const;
    // The same for a command line that is not understood.
    int Complain(const std::string& what) const;
    int Show_usage() const;

  private:
    const char* name_;
    const char* usage_;
    std::vector<std::string> files_;
    Utf8Console console_;
};

}  // namespace tidemark
