// A program that writes the folder it runs in and its arguments, each on a line, into the file that
// the variable RECORD names. The file appears whole.
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "platform/console.h"

int main(int argc, char** argv) {
    const std::filesystem::path record = std::getenv("RECORD");
    const std::filesystem::path part = record.string() + ".part";
    std::ofstream file(part, std::ios::binary);
    file << std::filesystem::current_path().string() << '\n';
    auto arguments = tidemark::Console_arguments(argc, argv);
    for (auto argument = arguments.begin() + 1; argument != arguments.end(); ++argument)
        file << *argument << '\n';
    file.close();
    std::filesystem::rename(part, record);
}
