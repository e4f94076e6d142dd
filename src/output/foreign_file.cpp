#include "output/foreign_file.h"

#include "output/assembler_text.h"

namespace tidemark {

bool Is_foreign_file(const std::string& path, Files& files) {
    std::string start;
    const FileResult read = files.Read_start(path, AssemblerFileStart.size(), start);
    return read && !start.empty() && start != AssemblerFileStart;
}

}  // namespace tidemark
