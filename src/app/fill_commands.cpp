#include "app/fill_commands.h"

#include <algorithm>
#include <cmath>

#include "app/map_commands.h"
#include "canvas/map_frame.h"
#include "coast/clear_along.h"
#include "coast/lay_coast.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

// The column (row) that a canvas coordinate lies in, among first..last.
int Cell_at(double pixel, float scale, int first, int last) {
    const double cells = std::floor(pixel / double{scale} / CellSizeVTP);
    return first + static_cast<int>(std::clamp(cells, 0.0, double(last - first)));
}

}  // namespace

std::string Fill_along_coast(Document& document, Session& session, const FillPlan& plan) {
    document.Do("fill along the coast", [&](Project& project) {
        Fill(project, plan);
        session.DataChanged = true;
        Refresh_lists(project, session);
    });
    return Counted(plan.Polygons.size(), "polygon") + " added along the coast.";
}

std::string Clear_along_coast(Document& document, Session& session) {
    const int point = session.Panel.SelectedPoint + 1;
    const Project& now = document.Now();
    if (point < 1 || point > now.VTPCount)
        return "Choose a point of the segment first, along which cells are to be cleared.";
    const std::vector<LOD13Cell> cells = Cells_to_clear(now, point);
    const int count = static_cast<int>(cells.size()), free = MaxKillCount - now.KillCount;
    if (count == 0) return "All cells along this segment are cleared already.";
    if (count > free)
        return std::to_string(count) + " cells are to be cleared, and " + std::to_string(free) +
               " entries are free; nothing was cleared.";
    document.Do("clear along the coast", [&](Project& project) {
        Clear_cells(project, point, cells);
        session.DataChanged = true;
        Refresh_lists(project, session);
    });
    return Counted(count, "cell") + " cleared along the segment.";
}

std::optional<CellRange> Cells_in_view(const Project& p, CanvasPoint from, CanvasPoint to) {
    if (!Has_scale(p) || !Has_map_area(p)) return std::nullopt;
    const auto column = [&](double x) { return Cell_at(x, p.ScaleX, p.BGLOD13tlX, p.BGLOD13brX); };
    const auto row = [&](double y) { return Cell_at(y, p.ScaleY, p.BGLOD13tlY, p.BGLOD13brY); };
    return CellRange{{column(from.X), row(from.Y)}, {column(to.X), row(to.Y)}};
}

}  // namespace tidemark
