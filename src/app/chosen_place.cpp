#include "app/chosen_place.h"

#include "model/cell_frame.h"

namespace tidemark {

namespace {

VTPPlace Middle_of_cell(Int16 column, Int16 row) {
    return {Cell_edge_VTP(column) + CellSizeVTP / 2, Cell_edge_VTP(row) + CellSizeVTP / 2};
}

std::optional<VTPPlace> Place_of(const Project& p, const Session& session) {
    const int point = session.Panel.SelectedPoint + 1;
    const int polygon = session.Panel.SelectedPolygon + 1;
    const int cell = session.Panel.SelectedCell + 1;
    switch (session.LastChosen) {
        case ListKind::Points:
            if (point < 1 || point > p.VTPCount) break;
            return VTPPlace{p.VTPPoint(point, 0), p.VTPPoint(point, 1)};
        case ListKind::Polygons:
            if (polygon < 1 || polygon > p.LWMCount) break;
            return Middle_of_cell(p.LWMCell(polygon, 0), p.LWMCell(polygon, 1));
        case ListKind::ClearedCells:
            if (cell < 1 || cell > p.KillCount) break;
            return Middle_of_cell(p.KillCell(cell, 0), p.KillCell(cell, 1));
    }
    return std::nullopt;
}

}  // namespace

std::optional<VTPPlace> Chosen_place(const Project& project, const Session& session) {
    try {
        return Place_of(project, session);
    } catch (const Overflow&) {
        return std::nullopt;  // of a cell far outside the world's grid
    }
}

}  // namespace tidemark
