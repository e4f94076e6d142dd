// tidemark-asm: writes the assembler files of projects from the command line.
#include <getopt.h>
#include <iostream>

#include "app/asm_companion.h"

namespace {

constexpr int ExitRefused = 1;
constexpr int ExitUsage = 2;

constexpr const char* Usage =
    "Usage: tidemark-asm [--output-folder DIR] PROJECT.TDM...\n"
    "Writes the VTP and LWM assembler files of Tidemark projects.\n"
    "\n"
    "  --output-folder DIR  put the files into DIR instead of where their names say\n"
    "  --help               show this help\n"
    "  --version            show the version\n";

}  // namespace

int main(int argc, char** argv) {
    constexpr option options[] = {{"output-folder", required_argument, nullptr, 'o'},
                                  {"help", no_argument, nullptr, 'h'},
                                  {"version", no_argument, nullptr, 'v'},
                                  {}};
    tidemark::CompanionTask task;
    for (int found; (found = getopt_long(argc, argv, "", options, nullptr)) != -1;) {
        switch (found) {
            case 'o':
                task.OutputFolder = optarg;
                break;
            case 'h':
                std::cout << Usage;
                return 0;
            case 'v':
                std::cout << "tidemark-asm " TIDEMARK_VERSION "\n";
                return 0;
            default:
                std::cerr << Usage;
                return ExitUsage;
        }
    }
    task.Projects.assign(argv + optind, argv + argc);
    if (task.Projects.empty()) {
        std::cerr << Usage;
        return ExitUsage;
    }
    tidemark::DiskFiles files;
    return Write_assembler_files(task, files, std::cout, std::cerr) ? 0 : ExitRefused;
}
