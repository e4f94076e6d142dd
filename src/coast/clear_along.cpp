#include "coast/clear_along.h"

#include <set>

#include "coast/cell_path.h"
#include "coast/project_places.h"
#include "model/drawing_modes.h"
#include "model/records.h"
#include "model/segments.h"

namespace tidemark {

namespace {

int Code_for(const Project& p, int point) {
    return Clear_code(p.VTPMode(Segment_first(p, point)));
}

}  // namespace

int Clear_code(int mode) {
    if (Is_coastline(mode)) return ClearCoastlines;
    if (mode == Stream) return ClearRivers;
    return mode == DirtRoad ? ClearMinorRoads : ClearMajorRoads;
}

std::vector<LOD13Cell> Cells_to_clear(const Project& p, int point) {
    const int first = Segment_first(p, point), last = Segment_last(p, point);
    std::set<LOD13Cell> cells;
    for (int i = first; i <= last; ++i) {
        cells.insert(Cell_of_point(p, i));
        if (i == first) continue;
        const auto between = Cells_between(VTP_position(p, i - 1), VTP_position(p, i));
        cells.insert(between.begin(), between.end());
    }
    for (int k = 1; k <= p.KillCount; ++k)
        if (p.KillType(k) == Code_for(p, point)) cells.erase({p.KillCell(k, 0), p.KillCell(k, 1)});
    std::erase_if(cells, [](LOD13Cell cell) { return !Is_in_LOD8_cell(cell); });
    return {cells.begin(), cells.end()};
}

void Clear_cells(Project& p, int point, const std::vector<LOD13Cell>& cells) {
    const int code = Code_for(p, point);
    for (const LOD13Cell& cell : cells) {
        const int entry = p.KillCount + 1;
        ClearedCellTable::Set_count(p, entry);
        ClearedCellTable::Set(p, entry, {cell.Column, cell.Row, code});
    }
}

}  // namespace tidemark
