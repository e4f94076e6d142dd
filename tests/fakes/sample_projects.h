// Projects for tests.
#pragma once

#include <utility>
#include <vector>

#include "model/project.h"

namespace tidemark {

// Gives the project the area from one LOD13 cell to another, at one pixel to the VTP unit.
void Place_area(Project& project, int left, int top, int right, int bottom);

// Appends a segment of the given points (VTP units) and leaves all flags as a list refresh would.
void Add_segment(Project& project, int mode, int width,
                 const std::vector<std::pair<int, int>>& points);

void Add_cleared_cell(Project& project, int column, int row, int code);

// Appends a polygon of `points` vertices: the cell's corners, clockwise from (0, 0), and for every
// further one a point on its west edge.
void Add_polygon(Project& project, int column, int row, int type, int height, int points);

// Every table full: 999 points in segments of every mode, 1000 cleared cells, 200 polygons of 200
// points each, and every other value set to something of its own.
Project Largest_project();

// Every value that a project file keeps set to something of its own, negative numbers included.
Project Project_of_all_values();

}  // namespace tidemark
