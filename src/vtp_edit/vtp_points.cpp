#include "vtp_edit/vtp_points.h"

#include <algorithm>
#include <utility>

#include "model/rounding.h"
#include "model/segments.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

void Copy_VTP_Point(Project& project, int from, int to) {
    project.VTPPoint(to, 0) = project.VTPPoint(from, 0);
    project.VTPPoint(to, 1) = project.VTPPoint(from, 1);
    project.VTPSegStart(to) = project.VTPSegStart(from);
    project.VTPSegEnd(to) = project.VTPSegEnd(from);
    project.VTPMode(to) = project.VTPMode(from);
    project.VTPWidth(to) = project.VTPWidth(from);
}

void Set_from_cursor(Project& project, int point, bool starts_segment, Int16 width) {
    project.VTPPoint(point, 0) = project.CursorVTPX;
    project.VTPPoint(point, 1) = project.CursorVTPY;
    project.VTPSegStart(point) = starts_segment;
    project.VTPMode(point) = project.DrawMode;
    project.VTPWidth(point) = width;
}

int Append(Project& project, const NextPoint& next) {
    ++project.VTPCount;
    Set_from_cursor(project, project.VTPCount, next.NewSegment, next.Width);
    return project.VTPCount - 1;
}

int Insert(Project& project, const NextPoint& next) {
    const int point = next.Selected + 1;
    for (int i = project.VTPCount; i >= point; --i) Copy_VTP_Point(project, i, i + 1);
    Set_from_cursor(project, point, false, next.Width);
    if (project.VTPSegStart(point + 1)) project.VTPSegEnd(point) = true;
    ++project.VTPCount;
    return next.Selected;
}

}  // namespace

std::optional<Int16> Take_width(std::string& text, Messages& messages) {
    // One unit beyond the range is as wrong as a number that does not fit 16 bits.
    const double limited = std::clamp(Numeric_value(text), -1.0, MaxVTPWidth + 1.0);
    const Int16 width = Round_half_even(limited);
    if (width < 0 || width > MaxVTPWidth) {
        Warn(messages, "Coast width must be in the range 0-300");
        text = DefaultVTPWidthText;
        return std::nullopt;
    }
    text = Int_text(width);
    return width;
}

std::optional<int> Add_VTP_Point(Project& project, const NextPoint& next, Messages& messages) {
    if (project.VTPCount >= MaxVTPCount) {
        Warn(messages, "The point has not been added: a project holds at most " +
                           Int_text(MaxVTPCount) + " points.");
        return std::nullopt;
    }
    const bool at_end = next.Selected < 0 || next.Selected == project.VTPCount - 1;
    return at_end || next.NewSegment ? Append(project, next) : Insert(project, next);
}

void Delete_VTP_Point(Project& project, int point) {
    const bool was_start = project.VTPSegStart(point);
    for (int i = point; i < project.VTPCount; ++i) Copy_VTP_Point(project, i + 1, i);
    if (was_start) project.VTPSegStart(point) = true;
    --project.VTPCount;
}

void Change_segment_width(Project& project, int point, Int16 width) {
    project.VTPWidth(Segment_first(project, point)) = width;
}

void Reverse_segment(Project& project, int point) {
    int first = Segment_first(project, point);
    int last = Segment_last(project, point);
    for (; first < last; ++first, --last)
        for (const int axis : {0, 1})
            std::swap(project.VTPPoint(first, axis), project.VTPPoint(last, axis));
    project.DataChanged = true;
}

}  // namespace tidemark
