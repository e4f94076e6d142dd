#include "app/console_program.h"

#include <getopt.h>
#include <iostream>

namespace tidemark {

namespace {

constexpr int HelpFound = 1000, VersionFound = 1001;  // beyond all letters

std::vector<option> Getopt_table(std::span<const ConsoleOption> options) {
    std::vector<option> table;
    for (const ConsoleOption& each : options)
        table.push_back(
            {each.Name, each.TakesText ? required_argument : no_argument, nullptr, each.Letter});
    table.push_back({"help", no_argument, nullptr, HelpFound});
    table.push_back({"version", no_argument, nullptr, VersionFound});
    table.push_back({});
    return table;
}

}  // namespace

std::optional<int> ConsoleProgram::Read(std::vector<std::string> arguments,
                                        std::span<const ConsoleOption> options,
                                        const TakeOption& take) {
    const std::vector<option> table = Getopt_table(options);
    std::vector<char*> words;  // as getopt wants them, which puts the options first
    words.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) words.push_back(argument.data());
    words.push_back(nullptr);
    const int count = static_cast<int>(arguments.size());

    int index = 0;
    for (int found; (found = getopt_long(count, words.data(), "", table.data(), &index)) != -1;) {
        if (found == HelpFound) {
            std::cout << usage_;
            return Ended(true);
        }
        if (found == VersionFound) {
            std::cout << name_ << " " TIDEMARK_VERSION "\n";
            return Ended(true);
        }
        if (found == '?') return Show_usage();
        const std::string_view text = optarg ? optarg : "";
        if (!take(static_cast<char>(found), text))
            return Complain("--" + std::string(table[static_cast<std::size_t>(index)].name) +
                            " does not take '" + std::string(text) + "'");
    }
    for (int i = optind; i < count; ++i)
        for (const std::string& file : Files_meant(words[static_cast<std::size_t>(i)]))
            files_.push_back(file);
    return std::nullopt;
}

int ConsoleProgram::Ended(bool all_is_well) const {
    if (std::cout.flush()) return all_is_well ? 0 : ExitRefused;
    std::cerr << name_ << ": standard output cannot be written to\n";
    return ExitRefused;
}

int ConsoleProgram::Complain(const std::string& what) const {
    std::cerr << name_ << ": " << what << "\nTry '" << name_ << " --help'.\n";
    return ExitUsage;
}

int ConsoleProgram::Show_usage() const {
    std::cerr << usage_;
    return ExitUsage;
}

}  // namespace tidemark
