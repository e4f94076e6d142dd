// What the two assembler files have in common.
//
// Every line ends with CR LF; a line that looks empty holds exactly one space. Numbers are plain
// (Int_text) unless a line says otherwise.
#pragma once

#include <string>
#include <string_view>

#include "model/line_writer.h"
#include "model/project.h"

namespace tidemark {

// A line that looks empty.
inline constexpr std::string_view BlankLine = " ";

// What both begin with, whatever version has written them.
inline constexpr std::string_view AssemblerFileStart = "; ###        Made with Tidemark ";

// "Cellv_" and the LOD8 column and row: the label of the project's cell in both files.
std::string Cell_name(const Project& project);

// "122, 148": the project's LOD8 cell as macro arguments.
std::string LOD8_cell(const Project& project);

// The first eleven lines: banner, what the file contains, the include lines and the BGLHeader line
// with the file's limits (2 degrees around the cell, within the poles and the date line), ending in
// the two labels given.
void Write_assembler_header(LineWriter& lines, const Project& project, std::string_view contents,
                            std::string_view labels);

}  // namespace tidemark
