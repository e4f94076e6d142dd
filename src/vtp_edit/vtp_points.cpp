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

// Makes room at `point`; the points from there on move up by one.
void Insert(Project& project, int point) {
    for (int i = project.VTPCount; i >= point; --i) Copy_VTP_Point(project, i, i + 1);
    if (project.VTPSegStart(point + 1)) project.VTPSegEnd(point) = true;
    ++project.VTPCount;
}

}  // namespace

WidthResult Take_width(std::string_view text, Messages& messages) {
    // One unit beyond the range is as wrong as a number that does not fit 16 bits.
    const double limited = std::clamp(Numeric_value(text), -1.0, MaxVTPWidth + 1.0);
    const Int16 width = Round_half_even(limited);
    if (width < 0 || width > MaxVTPWidth) {
        Warn(messages, "Coast width must be in the range 0-300");
        return {std::string(DefaultVTPWidthText), std::nullopt};
    }
    return {Int_text(width), width};
}

int Next_point(const Project& project, const PanelState& panel) {
    const int end = project.VTPCount;
    const bool at_end = panel.SelectedPoint < 0 || panel.SelectedPoint == end - 1;
    return at_end || panel.NewSegment ? end + 1 : panel.SelectedPoint + 1;
}

bool Add_VTP_Point(Project& project, Session& session, Int16 width, Messages& messages) {
    if (project.VTPCount >= MaxVTPCount) {
        Warn(messages, "The point has not been added: a project holds at most " +
                           Int_text(MaxVTPCount) + " points.");
        return false;
    }
    PanelState& panel = session.Panel;
    const int point = Next_point(project, panel);
    const bool is_last = point > project.VTPCount;
    if (is_last)
        ++project.VTPCount;
    else
        Insert(project, point);
    project.VTPPoint(point, 0) = session.CursorVTPX;
    project.VTPPoint(point, 1) = session.CursorVTPY;
    project.VTPSegStart(point) = is_last && panel.NewSegment;
    project.VTPMode(point) = session.DrawMode;
    project.VTPWidth(point) = width;
    panel.NewSegment = false;
    panel.SelectedPoint = point - 1;
    return true;
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
}

}  // namespace tidemark
