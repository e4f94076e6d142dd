#include "canvas/map_frame.h"

#include <cstdint>
#include <limits>

#include "model/cell_frame.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

double Pixels(Int16 distance, float scale) {
    return static_cast<float>(distance) * scale;
}

// The cursor along one axis.
struct AxisCursor {
    Int16 Offset, VTP, Cell, InCell;
};

AxisCursor Cursor_on_axis(float pixel, float scale, Int16 area_edge, Int16 first_cell) {
    const Int16 offset = Round_half_even(double{pixel} / double{scale} + 0.5);
    const Int16 cells = Cell_offset(offset);
    return {offset, area_edge + offset, first_cell + cells, In_cell(offset, cells)};
}

std::int64_t Square(Int16 value) {
    return std::int64_t{int{value}} * int{value};
}

}  // namespace

CanvasPoint VTP_to_canvas(const Project& project, Int16 x, Int16 y) {
    return {Pixels(x - project.AreaLeftVTP, project.ScaleX),
            Pixels(y - project.AreaTopVTP, project.ScaleY)};
}

CanvasPoint Cell_to_canvas(const Project& project, Int16 column, Int16 row, Int16 x, Int16 y) {
    return {Pixels((column - project.BGLOD13tlX) * CellSizeVTP + x, project.ScaleX),
            Pixels((row - project.BGLOD13tlY) * CellSizeVTP + y, project.ScaleY)};
}

CanvasPoint VTP_point_to_canvas(const Project& project, int point) {
    return VTP_to_canvas(project, project.VTPPoint(point, 0), project.VTPPoint(point, 1));
}

CanvasPoint LWM_point_to_canvas(const Project& p, int polygon, int point) {
    return Cell_to_canvas(p, p.LWMCell(polygon, 0), p.LWMCell(polygon, 1),
                          p.LWMPoint(polygon, point, 0), p.LWMPoint(polygon, point, 1));
}

CursorTexts Cursor_texts(const Session& session) {
    return {Blank_text(session.CursorVTPX) + "," + Blank_text(session.CursorVTPY),
            "[ " + Int_text(session.CursorCellX) + ", " + Int_text(session.CursorCellY) + " ] " +
                Blank_text(session.CursorInCellX) + "," + Blank_text(session.CursorInCellY)};
}

std::optional<CursorTexts> Move_cursor(const Project& p, Session& session, float x, float y) {
    if (!Has_scale(p)) return std::nullopt;
    AxisCursor across, down;
    try {
        across = Cursor_on_axis(x, p.ScaleX, p.AreaLeftVTP, p.BGLOD13tlX);
        down = Cursor_on_axis(y, p.ScaleY, p.AreaTopVTP, p.BGLOD13tlY);
    } catch (const Overflow&) {
        return std::nullopt;  // a box for every pixel that the mouse travels would help nobody
    }
    session.CursorOffsetX = across.Offset;
    session.CursorOffsetY = down.Offset;
    session.CursorVTPX = across.VTP;
    session.CursorVTPY = down.VTP;
    session.CursorInCellX = across.InCell;
    session.CursorInCellY = down.InCell;
    session.CursorCellX = across.Cell;
    session.CursorCellY = down.Cell;
    return Cursor_texts(session);
}

std::optional<int> Nearest_point(const Project& project, const Session& session) {
    std::optional<int> nearest;
    std::int64_t least = std::numeric_limits<std::int64_t>::max();
    for (int i = 1; i <= project.VTPCount; ++i) {
        // Whole squares order the points exactly as their roots would.
        const std::int64_t distance = Square(session.CursorVTPX - project.VTPPoint(i, 0)) +
                                      Square(session.CursorVTPY - project.VTPPoint(i, 1));
        if (distance >= least) continue;
        least = distance;
        nearest = i;
    }
    return nearest;
}

}  // namespace tidemark
