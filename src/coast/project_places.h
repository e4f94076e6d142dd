// Where points and polygons of a project lie among the LOD13 cells, whatever numbers it holds.
#pragma once

#include <map>
#include <vector>

#include "coast/position.h"
#include "lwm/cell_edges.h"
#include "model/project.h"

namespace tidemark {

inline Position VTP_position(const Project& p, int point) {
    return {p.VTPPoint(point, 0), p.VTPPoint(point, 1)};
}

inline LOD13Cell Cell_of_point(const Project& p, int point) {
    const auto [column, row] = Cell_of(VTP_position(p, point));
    return {column, row};
}

inline LOD13Cell Cell_of_polygon(const Project& p, int polygon) {
    return {p.LWMCell(polygon, 0), p.LWMCell(polygon, 1)};
}

// The numbers of the polygons, by their cells.
inline std::map<LOD13Cell, std::vector<int>> Polygons_by_cell(const Project& p) {
    std::map<LOD13Cell, std::vector<int>> cells;
    for (int polygon = 1; polygon <= p.LWMCount; ++polygon)
        cells[Cell_of_polygon(p, polygon)].push_back(polygon);
    return cells;
}

// In cell units.
inline CellPoint Place_in_cell(const Project& p, int point) {
    const auto [x, y] = VTP_position(p, point);
    return {(x - FirstVTP) & LastCellUnit, (y - FirstVTP) & LastCellUnit};
}

}  // namespace tidemark
