// tidemark-asm: writes the assembler files of projects from the command line, and checks their
// coasts.
#include <getopt.h>
#include <iostream>

#include "app/asm_companion.h"
#include "platform/console.h"

namespace {

constexpr int ExitRefused = 1;
constexpr int ExitUsage = 2;

constexpr const char* Usage =
    "Usage: tidemark-asm [--output-folder DIR] PROJECT.TDM...\n"
    "       tidemark-asm --check PROJECT.TDM...\n"
    "Writes the VTP and LWM assembler files of Tidemark projects, and warns of errors in\n"
    "their coasts.\n"
    "\n"
    "  --check              print what the coast check finds instead, and write nothing\n"
    "  --output-folder DIR  put the files into DIR instead of where their names say\n"
    "  --help               show this help\n"
    "  --version            show the version\n";

// The exit code, once all that was printed has been taken: a full disk is no success.
int Ended(int code) {
    if (std::cout.flush()) return code;
    std::cerr << "tidemark-asm: standard output cannot be written to\n";
    return ExitRefused;
}

}  // namespace

int main(int argc, char** argv) {
    constexpr option options[] = {{"check", no_argument, nullptr, 'c'},
                                  {"output-folder", required_argument, nullptr, 'o'},
                                  {"help", no_argument, nullptr, 'h'},
                                  {"version", no_argument, nullptr, 'v'},
                                  {}};
    const auto prints_utf8 = tidemark::Console_in_utf8();
    std::vector<std::string> arguments = tidemark::Console_arguments(argc, argv);
    std::vector<char*> words;  // as getopt wants them, which puts the options first
    words.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) words.push_back(argument.data());
    words.push_back(nullptr);
    const int count = static_cast<int>(arguments.size());

    tidemark::CompanionTask task;
    for (int found; (found = getopt_long(count, words.data(), "", options, nullptr)) != -1;) {
        switch (found) {
            case 'c':
                task.ChecksOnly = true;
                break;
            case 'o':
                task.OutputFolder = optarg;
                break;
            case 'h':
                std::cout << Usage;
                return Ended(0);
            case 'v':
                std::cout << "tidemark-asm " TIDEMARK_VERSION "\n";
                return Ended(0);
            default:
                std::cerr << Usage;
                return ExitUsage;
        }
    }
    for (int i = optind; i < count; ++i)
        for (const std::string& project : tidemark::Files_meant(words[static_cast<std::size_t>(i)]))
            task.Projects.push_back(project);
    if (task.Projects.empty()) {
        std::cerr << Usage;
        return ExitUsage;
    }
    tidemark::DiskFiles files;
    const bool all_is_well = Write_assembler_files(task, files, std::cout, std::cerr);
    return Ended(all_is_well ? 0 : ExitRefused);
}
