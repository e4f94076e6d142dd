#include "output/output_names.h"

#include <algorithm>

#include "model/path_text.h"

namespace tidemark {

std::optional<std::string> Output_name(const OutputKind& kind, std::string_view root) {
    const auto dot = root.rfind('.');
    if (dot == root.npos) return std::nullopt;
    std::string name(root);
    return name.insert(dot, kind.Suffix);
}

std::string Output_label(const OutputKind& kind, std::string_view root) {
    return std::string(kind.Label) + Output_name(kind, root).value_or("not available");
}

std::string BGL_name(std::string_view assembler_file) {
    const auto kept = std::max<std::size_t>(assembler_file.size(), 3) - 3;
    return std::string(assembler_file.substr(0, kept)) + "BGL";
}

std::string Compiler_path(std::string_view assembler_file) {
    return Folder_part(assembler_file) + "BGLC.EXE";
}

}  // namespace tidemark
