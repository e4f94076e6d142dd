// Projects of which one LOD13 cell matters, written as text.
//
// Points are "x,y" in the cell's units, with blanks between them: "-20,100 60,110 300,130". Lines
// are separated by "|"; one that begins with a number and a colon has that drawing mode instead of
// 0: "0,10 80,90 | 5: 10,0 10,300".
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "lwm/cell_edges.h"
#include "model/project.h"

namespace tidemark {

// The cell that the pictures show, in an area that begins elsewhere.
inline constexpr int PictureColumn = 12;
inline constexpr int PictureRow = 7;

std::vector<CellPoint> Points_from(std::string_view text);
std::string Points_text(std::span<const CellPoint> points);

// A segment of points in the cell's units.
void Add_line(Project& project, int mode, std::span<const CellPoint> points);

std::unique_ptr<Project> Cell_project(std::string_view lines);

// The cursor in the cell at `click`, and water polygons to be built.
Session Cell_session(CellPoint click = {128, 128});

}  // namespace tidemark
