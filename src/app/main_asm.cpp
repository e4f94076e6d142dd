// tidemark-asm: writes the assembler files of projects from the command line, and checks their
// coasts.
#include <array>
#include <iostream>
#include <utility>

#include "app/asm_companion.h"
#include "app/console_program.h"

namespace tidemark {
namespace {

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

constexpr std::array<ConsoleOption, 2> Options{{
    {.Name = "check", .Letter = 'c'},
    {.Name = "output-folder", .Letter = 'o', .TakesText = true},
}};

int Run(std::vector<std::string> arguments) {
    ConsoleProgram program("tidemark-asm", Usage);
    CompanionTask task;
    const auto take = [&task](char letter, std::string_view text) {
        if (letter == 'c') task.ChecksOnly = true;
        if (letter == 'o') task.OutputFolder = text;
        return true;
    };
    if (const auto code = program.Read(std::move(arguments), Options, take)) return *code;
    task.Projects = program.Files();
    if (task.Projects.empty()) return program.Show_usage();
    DiskFiles files;
    return program.Ended(Write_assembler_files(task, files, std::cout, std::cerr));
}

}  // namespace
}  // namespace tidemark

int main(int argc, char** argv) {
    return tidemark::Run(tidemark::Console_arguments(argc, argv));
}
