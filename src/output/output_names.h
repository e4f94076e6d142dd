// The names of the files around the output: the two assembler files made from the filename root,
// the compiled file, the compiler. Paths are cut at "\" and at "/".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tidemark {

// One of the two assembler files, as the preferences name it.
struct OutputKind {
    std::string_view Label;   // how the label with its name begins
    std::string_view Suffix;  // what is added to the root, before its extension
};
inline constexpr OutputKind LWMOutput{"LWM output filename is ", "-LWM"};
inline constexpr OutputKind VTPOutput{"VTP output filename is ", "-VTP"};

// The root with the kind's suffix before its last "."; nothing when the root has no ".".
std::optional<std::string> Output_name(const OutputKind& kind, std::string_view root);

// What the kind's label shows: its file name, or that it is not available.
std::string Output_label(const OutputKind& kind, std::string_view root);

// The file that the compiler makes of an assembler file: its last three characters replaced by
// "BGL", whatever its extension.
std::string BGL_name(std::string_view assembler_file);

// Where the compiler is expected: beside the assembler file.
std::string Compiler_path(std::string_view assembler_file);

}  // namespace tidemark
