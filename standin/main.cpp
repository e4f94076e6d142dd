// A stand-in for the scenery compiler, built under its name: it takes the same command line, checks
// the assembler file, and writes the compiled file of the same name. What it writes is the source
// between two marks, so that a test can tell whether a copy is whole.
//
//   STANDIN_DELAY=seconds   waits before it writes
//   STANDIN_PIECES=number   writes in so many pieces, a tenth of a second apart
//   STANDIN_NEVER_WRITES=1  ends without writing
//   STANDIN_NEVER_ENDS=1    goes on until the assembler file is taken away
//   STANDIN_LOWER_CASE=1    writes a name that ends in "bgl"
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>

#include "standin/assembler_check.h"

namespace {

double Option(const char* name) {
    const char* const value = std::getenv(name);
    return value ? std::atof(value) : 0;
}

void Pause(double seconds) {
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

void Write(const std::string& path, const std::string& content) {
    const auto pieces = static_cast<std::size_t>(std::max(1.0, Option("STANDIN_PIECES")));
    const std::size_t length = content.size() / pieces + 1;
    std::ofstream file(path, std::ios::binary);
    for (std::size_t start = 0; start < content.size(); start += length) {
        if (start > 0) Pause(0.1);
        file << content.substr(start, length) << std::flush;
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: BGLC.EXE assembler-file\n";
        return 1;
    }
    const std::string path = argv[1];
    std::ifstream file(path, std::ios::binary);
    std::ostringstream source;
    source << file.rdbuf();
    if (!file) {
        std::cerr << path << ": cannot be read\n";
        return 1;
    }
    if (const auto error = tidemark::Check_assembler(source.str())) {
        std::cerr << path << '(' << error->Line << "): error: " << error->What << '\n';
        return 1;
    }
    Pause(Option("STANDIN_DELAY"));
    const char* const ending = Option("STANDIN_LOWER_CASE") > 0 ? "bgl" : "BGL";
    if (Option("STANDIN_NEVER_WRITES") == 0)
        Write(path.substr(0, path.size() - 3) + ending, "BGL begins\n" + source.str() + "BGL ends");
    while (Option("STANDIN_NEVER_ENDS") > 0 && std::ifstream(path)) Pause(0.05);
    return 0;
}
