#include "canvas/refresh_graphics.h"

#include <algorithm>
#include <array>

#include "canvas/map_frame.h"
#include "model/cell_frame.h"
#include "model/drawing_modes.h"

namespace tidemark {

namespace {

constexpr Colour Black{0, 0, 0};
constexpr Colour Blue{0, 0, 128};
constexpr Colour DarkYellow{128, 128, 0};
constexpr Colour Gray{128, 128, 128};
constexpr Colour LightBlue{0, 0, 255};
constexpr Colour LightGreen{0, 255, 0};
constexpr Colour LightCyan{0, 255, 255};
constexpr Colour LightRed{255, 0, 0};
constexpr Colour LightMagenta{255, 0, 255};
constexpr Colour LightYellow{255, 255, 0};
constexpr Colour BrightWhite{255, 255, 255};

constexpr int PolygonWidth = 3;
constexpr int ClearedCellWidth = 2;
constexpr int SelectionWidth = 2;
constexpr double SelectionRadius = 5;

struct SegmentPen {
    int Code;  // drawing mode
    int Width;
    Colour Ink;
};

constexpr std::array<SegmentPen, 9> SegmentPens{{
    {PlainSegment, 1, LightMagenta},
    {SandWithWaves, 2, LightYellow},
    {SandNoWaves, 2, LightYellow},
    {IceWithWaves, 2, BrightWhite},
    {RiverCoast, 2, LightYellow},
    {Stream, 2, LightCyan},
    {DirtRoad, 2, DarkYellow},
    {OneLane, 1, Black},
    {TwoLanes, 2, Black},
}};
static_assert(Covers_modes(SegmentPens, Adds::Point), "every drawing mode has a pen");

// A cleared cell shows as a square of side 2 * HalfSize with both diagonals. The sizes differ, so
// the squares of one cell nest.
struct CellMark {
    int Code;  // clear code
    Colour Ink;
    int HalfSize;  // VTP units
};

constexpr std::array<CellMark, 4> CellMarks{{
    {ClearCoastlines, DarkYellow, 120},
    {ClearRivers, Blue, 110},
    {ClearMinorRoads, Gray, 100},
    {ClearMajorRoads, Black, 90},
}};
static_assert(Covers_modes(CellMarks, Adds::ClearedCell), "every clear code has a mark");

// The mark's lines as they are drawn, from corner to corner, in half-sizes from the cell's centre.
struct MarkLine {
    int FromX, FromY, ToX, ToY;
};

constexpr std::array<MarkLine, 6> MarkLines{{
    {-1, -1, +1, -1},
    {+1, -1, -1, +1},
    {-1, +1, -1, -1},
    {-1, -1, +1, +1},
    {+1, +1, +1, -1},
    {-1, +1, +1, +1},
}};

// The entry of a table with this code, or null.
template <class Entries>
constexpr auto Find_code(const Entries& entries, int code) {
    const auto entry = std::ranges::find(entries, code, &Entries::value_type::Code);
    return entry == entries.end() ? nullptr : &*entry;
}

void Draw_polygon(const Project& p, int polygon, DrawingSurface& surface) {
    const int count = p.LWMPointCount(polygon);
    if (count < 1) return;
    surface.Pen_colour(p.LWMType(polygon) == LandPolygon ? LightGreen : LightBlue);
    const CanvasPoint first = LWM_point_to_canvas(p, polygon, 1);
    CanvasPoint last = first;
    for (int point = 2; point <= count; ++point) {
        const CanvasPoint next = LWM_point_to_canvas(p, polygon, point);
        surface.Line(last, next);
        last = next;
    }
    surface.Line(first, last);
}

void Draw_polygons(const Project& p, DrawingSurface& surface) {
    for (int polygon = 1; polygon <= p.LWMCount; ++polygon)
        Do_what_fits([&] { Draw_polygon(p, polygon, surface); });
}

void Draw_segments(const Project& p, DrawingSurface& surface, Messages& messages) {
    bool reported = false;
    for (int i = 1; i <= p.VTPCount; ++i) {
        if (!p.VTPSegStart(i)) {
            if (i >= 2)
                Do_what_fits([&] {
                    surface.Line(VTP_point_to_canvas(p, i - 1), VTP_point_to_canvas(p, i));
                });
            continue;
        }
        if (const SegmentPen* pen = Find_code(SegmentPens, p.VTPMode(i))) {
            surface.Pen_width(pen->Width);
            surface.Pen_colour(pen->Ink);
        } else if (!reported) {
            reported = true;
            Plain_box(messages, "Unknown case encountered.");
        }
    }
}

void Draw_mark(const Project& p, int entry, Int16 half_size, DrawingSurface& surface) {
    const Int16 x = Cell_edge_VTP(p.KillCell(entry, 0)) + CellSizeVTP / 2;
    const Int16 y = Cell_edge_VTP(p.KillCell(entry, 1)) + CellSizeVTP / 2;
    const auto corner = [&](int across, int down) {
        return VTP_to_canvas(p, x + across * half_size, y + down * half_size);
    };
    for (const MarkLine& line : MarkLines)
        surface.Line(corner(line.FromX, line.FromY), corner(line.ToX, line.ToY));
}

void Draw_cleared_cells(const Project& p, DrawingSurface& surface) {
    if (p.KillCount < 1) return;
    surface.Pen_width(ClearedCellWidth);
    Int16 half_size = 0;
    for (int k = 1; k <= p.KillCount; ++k) {
        if (const CellMark* mark = Find_code(CellMarks, p.KillType(k))) {
            surface.Pen_colour(mark->Ink);
            half_size = mark->HalfSize;
        }
        Do_what_fits([&] { Draw_mark(p, k, half_size, surface); });
    }
}

void Mark_selected_point(const Project& p, int selected, DrawingSurface& surface) {
    if (selected < 0 || selected >= p.VTPCount) return;
    surface.Pen_width(SelectionWidth);
    Do_what_fits(
        [&] { surface.Circle(VTP_point_to_canvas(p, selected + 1), SelectionRadius, LightRed); });
}

}  // namespace

void Refresh_Graphics(const Project& project, int selected, DrawingSurface& surface,
                      Messages& messages) {
    surface.Erase();
    surface.Pen_width(PolygonWidth);
    Draw_polygons(project, surface);
    Draw_segments(project, surface, messages);
    Draw_cleared_cells(project, surface);
    Mark_selected_point(project, selected, surface);
}

}  // namespace tidemark
