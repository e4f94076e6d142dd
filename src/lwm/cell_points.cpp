#include "lwm/cell_points.h"

#include "model/cell_frame.h"
#include "model/rounding.h"

namespace tidemark {

namespace {

// Rounded down: -1 just west (north) of the area.
constexpr Int16 Whole_cells(Int16 distance) {
    return int{distance} >> 8;
}
static_assert(CellSizeVTP == 1 << 8);

// Where the step (ddx, ddy) that ends at `a` crosses the boundary; `outside` is its outer end.
// Where that lies beyond two edges, the top or bottom one counts. The quotient comes before the
// product: the order decides to which side a crossing near a half is rounded.
CellPoint Crossing_of(CellPoint a, CellPoint outside, Int16 ddx, Int16 ddy) {
    const double x = a.X;
    const double y = a.Y;
    CellPoint crossing{0, 0};
    if (outside.X < 0) crossing = {0, Round_half_even(y - (x / ddx) * ddy)};
    if (outside.X > LastCellUnit)
        crossing = {LastCellUnit, Round_half_even(((LastCellUnit - x) / ddx) * ddy + y)};
    if (outside.Y < 0) crossing = {Round_half_even(x - (y / ddy) * ddx), 0};
    if (outside.Y > LastCellUnit)
        crossing = {Round_half_even(((LastCellUnit - y) / ddy) * ddx + x), LastCellUnit};
    return crossing;
}

}  // namespace

CellPoints::CellPoints(Project& project, const Session& session)
    : project_(project),
      column_(session.CursorCellX - project.BGLOD13tlX),
      row_(session.CursorCellY - project.BGLOD13tlY) {}

bool CellPoints::Point_in_cell(int i) {
    if (i < 1 || i > project_.VTPCount) return false;
    const Int16 dx = project_.VTPPoint(i, 0) - project_.AreaLeftVTP;
    if (Whole_cells(dx) != column_) return false;
    const Int16 dy = project_.VTPPoint(i, 1) - project_.AreaTopVTP;
    if (Whole_cells(dy) != row_) return false;
    project_.PointInCellX = In_cell(dx, column_);
    project_.PointInCellY = In_cell(dy, row_);
    return true;
}

CellPoint CellPoints::Crossing(int i) {
    const Int16 ddx = project_.VTPPoint(i, 0) - project_.VTPPoint(i - 1, 0);
    const Int16 ddy = project_.VTPPoint(i, 1) - project_.VTPPoint(i - 1, 1);
    const bool enters = Point_in_cell(i);
    const CellPoint inside = PointInCell();
    const CellPoint a = enters ? inside : CellPoint{inside.X + ddx, inside.Y + ddy};
    const CellPoint outside = enters ? CellPoint{a.X - ddx, a.Y - ddy} : a;
    return Crossing_of(a, outside, ddx, ddy);
}

}  // namespace tidemark
