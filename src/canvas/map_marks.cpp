#include "canvas/map_marks.h"

#include "canvas/map_frame.h"
#include "model/cell_frame.h"
#include "model/drawing_modes.h"
#include "model/segments.h"

namespace tidemark {

namespace {

constexpr Colour EdgeInk{96, 96, 96};
constexpr Colour ChosenInk{255, 128, 0};
constexpr Colour WaterTint{0, 96, 255};
constexpr Colour LandTint{0, 200, 0};
constexpr Colour Dark{0, 0, 0};
constexpr Colour Light{255, 255, 255};
constexpr Colour FindingInk{224, 0, 0};

constexpr int EdgeWidth = 1;
constexpr int ChosenWidth = 5;

// The north-west corner of a cell; column or row 32 is the south-east end of the map.
CanvasPoint Corner(const Project& p, Int16 column, Int16 row) {
    return Cell_to_canvas(p, column, row, 0, 0);
}

std::vector<CanvasPoint> Polygon_outline(const Project& p, int polygon) {
    std::vector<CanvasPoint> outline;
    for (int k = 1; k <= p.LWMPointCount(polygon); ++k)
        outline.push_back(LWM_point_to_canvas(p, polygon, k));
    return outline;
}

std::vector<CanvasPoint> Cell_outline(const Project& p, Int16 column, Int16 row) {
    return {Corner(p, column, row), Corner(p, column + 1, row), Corner(p, column + 1, row + 1),
            Corner(p, column, row + 1)};
}

void Add_ring(std::vector<MarkLine>& lines, const std::vector<CanvasPoint>& outline, Colour ink,
              int width) {
    for (std::size_t i = 0; i < outline.size(); ++i)
        lines.push_back({outline[i], outline[(i + 1) % outline.size()], ink, width});
}

void Add_cells(const Project& p, MapMarks& marks) {
    const int left = p.BGLOD13tlX, right = p.BGLOD13brX + 1;
    const int top = p.BGLOD13tlY, bottom = p.BGLOD13brY + 1;
    for (int column = left; column <= right; ++column)
        marks.Lines.push_back(
            {Corner(p, column, top), Corner(p, column, bottom), EdgeInk, EdgeWidth});
    for (int row = top; row <= bottom; ++row)
        marks.Lines.push_back({Corner(p, left, row), Corner(p, right, row), EdgeInk, EdgeWidth});
    constexpr int middle = CellSizeVTP / 2;
    for (int column = left; column < right; ++column)
        marks.Numbers.push_back({true, Cell_to_canvas(p, column, top, middle, middle).X, column});
    for (int row = top; row < bottom; ++row)
        marks.Numbers.push_back({false, Cell_to_canvas(p, left, row, middle, middle).Y, row});
}

void Add_tints(const Project& p, MapMarks& marks) {
    for (int polygon = 1; polygon <= p.LWMCount; ++polygon)
        Do_what_fits([&] {
            marks.Areas.push_back({Polygon_outline(p, polygon),
                                   p.LWMType(polygon) == WaterPolygon ? WaterTint : LandTint});
        });
}

void Add_chosen_segment(const Project& p, int point, MapMarks& marks) {
    const int last = Segment_last(p, point);
    for (int i = Segment_first(p, point); i < last; ++i)
        Do_what_fits([&] {
            marks.Lines.push_back(
                {VTP_point_to_canvas(p, i), VTP_point_to_canvas(p, i + 1), ChosenInk, ChosenWidth});
        });
}

void Add_chosen(const Project& p, const PanelState& panel, MapMarks& marks) {
    const int point = panel.SelectedPoint + 1;
    const int polygon = panel.SelectedPolygon + 1;
    const int cell = panel.SelectedCell + 1;
    if (point >= 1 && point <= p.VTPCount) Add_chosen_segment(p, point, marks);
    Do_what_fits([&] {
        if (polygon >= 1 && polygon <= p.LWMCount)
            Add_ring(marks.Lines, Polygon_outline(p, polygon), ChosenInk, ChosenWidth);
    });
    Do_what_fits([&] {
        if (cell >= 1 && cell <= p.KillCount)
            Add_ring(marks.Lines, Cell_outline(p, p.KillCell(cell, 0), p.KillCell(cell, 1)),
                     ChosenInk, ChosenWidth);
    });
}

struct FrameInk {
    Colour Ink;
    int Width;
};

// Around a cell of the map. In two colours, one on both sides of the other, it shows on any
// picture.
std::vector<MarkLine> Cell_frame(const Project& p, Int16 column, Int16 row, FrameInk outer,
                                 FrameInk inner) {
    std::vector<MarkLine> frame;
    const bool is_on_map = column >= p.BGLOD13tlX && column <= p.BGLOD13brX &&
                           row >= p.BGLOD13tlY && row <= p.BGLOD13brY;
    if (!is_on_map || !Has_scale(p)) return frame;
    Do_what_fits([&] {
        for (const auto& [ink, width] : {outer, inner})
            Add_ring(frame, Cell_outline(p, column, row), ink, width);
    });
    return frame;
}

}  // namespace

MapMarks Marks_of(const Project& project, const Session& session, const MarkKinds& kinds) {
    MapMarks marks;
    if (!Has_scale(project)) return marks;
    if (kinds.Tint) Add_tints(project, marks);
    if (kinds.Cells) Do_what_fits([&] { Add_cells(project, marks); });
    if (kinds.Chosen) Add_chosen(project, session.Panel, marks);
    return marks;
}

std::vector<MarkLine> Pointer_frame(const Project& p, const Session& session) {
    return Cell_frame(p, session.CursorCellX, session.CursorCellY, {Dark, 3}, {Light, 1});
}

std::vector<MarkLine> Finding_frame(const Project& p, Int16 column, Int16 row) {
    return Cell_frame(p, column, row, {Light, 7}, {FindingInk, 3});
}

}  // namespace tidemark
