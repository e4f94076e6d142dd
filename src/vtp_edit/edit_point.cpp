#include "vtp_edit/edit_point.h"

#include <utility>

#include "model/cell_frame.h"
#include "model/rounding.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

// How many cells a VTP coordinate is from the area's west (north) edge; negative outside.
Int16 Cells_from(Int16 area_edge, Int16 coordinate) {
    return Cell_offset(coordinate - area_edge);
}

Int16 In_cell_from(Int16 area_edge, Int16 coordinate) {
    return In_cell(coordinate - area_edge, Cells_from(area_edge, coordinate));
}

// The coordinate that `in_cell` is in the cell of `coordinate`.
Int16 Moved_in_cell(Int16 area_edge, Int16 coordinate, const std::string& in_cell) {
    const Int16 cell_edge = Cells_from(area_edge, coordinate) * CellSizeVTP + area_edge;
    return Round_half_even(cell_edge + Numeric_value(in_cell));
}

bool In_range(std::string_view axis, const std::string& text, Int16 lowest, Int16 highest,
              Messages& messages) {
    const double value = Numeric_value(text);
    if (value >= lowest && value <= highest) return true;
    Warn(messages, std::string(axis) + " value must be in the range " + Int_text(lowest) + "-" +
                       Int_text(highest));
    return false;
}

}  // namespace

EditPointTexts Edit_point_texts(const Project& project, Session& session, int point) {
    const Int16 x = project.VTPPoint(point, 0);
    const Int16 y = project.VTPPoint(point, 1);
    const Int16 in_cell_x = In_cell_from(project.AreaLeftVTP, x);
    const Int16 in_cell_y = In_cell_from(project.AreaTopVTP, y);
    session.CursorInCellX = in_cell_x;
    session.CursorInCellY = in_cell_y;
    return {Int_text(x), Int_text(y), Int_text(in_cell_x), Int_text(in_cell_y)};
}

std::string Edit_point_cell_text(const Project& project, int point) {
    const Int16 column =
        Cells_from(project.AreaLeftVTP, project.VTPPoint(point, 0)) + project.BGLOD13tlX;
    const Int16 row =
        Cells_from(project.AreaTopVTP, project.VTPPoint(point, 1)) + project.BGLOD13tlY;
    return "Current LOD13 cell is [ " + Int_text(column) + ", " + Int_text(row) + " ]";
}

bool Check_edit_point(const Project& project, const EditPointTexts& texts, Messages& messages) {
    if (texts.InCell)
        return In_range("X", texts.LOD13X, 0, LastCellUnit, messages) &&
               In_range("Y", texts.LOD13Y, 0, LastCellUnit, messages);
    return In_range("X", texts.VTPX, project.AreaLeftVTP, project.AreaRightVTP, messages) &&
           In_range("Y", texts.VTPY, project.AreaTopVTP, project.AreaBottomVTP, messages);
}

void Store_edit_point(Project& project, Session& session, int point, const EditPointTexts& texts) {
    Int16& x = project.VTPPoint(point, 0);
    Int16& y = project.VTPPoint(point, 1);
    // Both are worked out before either is stored: one that does not fit leaves the point alone.
    const auto [new_x, new_y] = texts.InCell
                                    ? std::pair(Moved_in_cell(project.AreaLeftVTP, x, texts.LOD13X),
                                                Moved_in_cell(project.AreaTopVTP, y, texts.LOD13Y))
                                    : std::pair(Int_value(texts.VTPX), Int_value(texts.VTPY));
    x = new_x;
    y = new_y;
    session.DataChanged = true;
}

}  // namespace tidemark
