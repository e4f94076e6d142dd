#include "lwm/polygon_builder.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "lwm/polygon_candidates.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

// Nothing when the text's number does not fit 16 bits.
std::optional<Int16> Whole_metres(std::string_view text) {
    try {
        return Int_value(text);
    } catch (const Overflow&) {
        return std::nullopt;
    }
}

// Nothing when it was refused.
std::optional<Int16> Take_height(HeightChoice choice, std::string_view text, Messages& messages) {
    if (choice == HeightChoice::Conform) return ConformsHeight;
    const std::optional<Int16> height = Whole_metres(text);
    if (height && *height >= 0 && *height <= MaxLWMHeight) return height;
    Warn(messages, "Height value must be in the range 0-10000");
    return std::nullopt;
}

// The click is strictly inside the bounding box.
bool Is_eligible(const Outline& outline, CellPoint click) {
    CellPoint PolyMin{300, 300};
    CellPoint PolyMax{-1, -1};
    for (const CellPoint& vertex : outline) {
        PolyMin = {Min_int(PolyMin.X, vertex.X), Min_int(PolyMin.Y, vertex.Y)};
        PolyMax = {Max_int(PolyMax.X, vertex.X), Max_int(PolyMax.Y, vertex.Y)};
    }
    return PolyMin.X < click.X && click.X < PolyMax.X && PolyMin.Y < click.Y && click.Y < PolyMax.Y;
}

// Mean distance of the vertices from the click, added up in their order: candidates of one piece
// differ in the last bit otherwise.
double Score(const Outline& outline, CellPoint click) {
    double sum = 0;
    for (const CellPoint& vertex : outline) {
        const double dx = int{vertex.X} - int{click.X};
        const double dy = int{vertex.Y} - int{click.Y};
        sum += std::sqrt(dx * dx + dy * dy);
    }
    return sum / static_cast<double>(outline.size());
}

// False after a warning.
bool Check_outline(const Outline& outline, const Project& project, Messages& messages) {
    if (!Is_in_cell(outline)) {
        Warn(messages,
             "There is an invalid point in this polygon - it has not been added to the LWM list.\n"
             "This is most likely due to a coast segment passing through an LOD13 cell WITHOUT a "
             "point within that cell.");
        return false;
    }
    if (project.LWMCount >= MaxLWMCount) {
        Warn(messages, "The polygon has not been added: a project holds at most " +
                           Int_text(MaxLWMCount) + " polygons.");
        return false;
    }
    return true;
}

// Twice the area of the triangle, positive when it is walked clockwise on the map; 0 when the place
// is on the line through a and b.
int Turn(CellPoint a, CellPoint b, CellPoint place) {
    return (int{b.X} - int{a.X}) * (int{place.Y} - int{a.Y}) -
           (int{b.Y} - int{a.Y}) * (int{place.X} - int{a.X});
}

bool Is_in_box(CellPoint a, CellPoint b, CellPoint place) {
    return Min_int(a.X, b.X) <= place.X && place.X <= Max_int(a.X, b.X) &&
           Min_int(a.Y, b.Y) <= place.Y && place.Y <= Max_int(a.Y, b.Y);
}

}  // namespace

std::optional<int> Best_candidate(const std::vector<Outline>& candidates, CellPoint click) {
    if (candidates.size() == 1) return 1;
    std::optional<int> best;
    double best_score = 100000.0;
    int p = 0;
    for (const Outline& outline : candidates) {
        ++p;
        if (!Is_eligible(outline, click)) continue;
        const double score = Score(outline, click);
        if (score >= best_score) continue;
        best = p;
        best_score = score;
    }
    return best;
}

bool Is_in_cell(const Outline& outline) {
    return std::all_of(outline.begin(), outline.end(), [](CellPoint p) {
        return p.X >= 0 && p.X <= LastCellUnit && p.Y >= 0 && p.Y <= LastCellUnit;
    });
}

void Store_polygon(Project& project, int polygon, Int16 column, Int16 row, PolygonKind kind,
                   const Outline& outline) {
    int k = 0;
    for (const CellPoint& vertex : outline) {
        ++k;
        project.LWMPoint(polygon, k, 0) = vertex.X;
        project.LWMPoint(polygon, k, 1) = vertex.Y;
    }
    project.LWMPointCount(polygon) = k;
    project.LWMType(polygon) = kind.Type;
    project.LWMCell(polygon, 0) = column;
    project.LWMCell(polygon, 1) = row;
    project.LWMHeight(polygon) = kind.Height;
    project.LWMCount = Max_int(project.LWMCount, polygon);
}

Outline Stored_outline(const Project& project, int polygon) {
    Outline outline;
    for (int k = 1; k <= project.LWMPointCount(polygon); ++k)
        outline.push_back({project.LWMPoint(polygon, k, 0), project.LWMPoint(polygon, k, 1)});
    return outline;
}

bool Surrounds(const Outline& outline, CellPoint place) {
    bool inside = false;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const CellPoint a = outline[i];
        const CellPoint b = outline[(i + 1) % outline.size()];
        const int turn = Turn(a, b, place);
        if (turn == 0 && Is_in_box(a, b, place)) return true;
        const bool passes_line = (a.Y > place.Y) != (b.Y > place.Y);
        if (passes_line && (turn > 0) == (b.Y > a.Y)) inside = !inside;
    }
    return inside;
}

LWMPolyResult Add_LWM_Poly(Project& project, const Session& session, Messages& messages,
                           HeightChoice choice, std::string_view height_text) {
    const std::optional<Int16> height = Take_height(choice, height_text, messages);
    LWMPolyResult result;
    if (!height) return result;
    result.IsRefusedByCoast = true;  // until a piece of the cell is found
    const std::vector<Outline> candidates = Candidate_polygons(project, session, messages);
    if (candidates.empty()) return result;

    const CellPoint click{session.CursorInCellX, session.CursorInCellY};
    const std::optional<int> best = Best_candidate(candidates, click);
    if (!best) {
        Warn(messages,
             "The polygon has not been added: no piece of this LOD13 cell surrounds the "
             "place that was clicked.");
        return result;
    }
    const Outline& outline = candidates[static_cast<std::size_t>(*best - 1)];
    result.IsRefusedByCoast = !Is_in_cell(outline);
    if (!Check_outline(outline, project, messages)) return result;
    Store_polygon(project, project.LWMCount + 1, session.CursorCellX, session.CursorCellY,
                  {session.DrawMode, *height}, outline);
    result.Added = true;
    if (!Surrounds(outline, click))
        result.StatusLine = "The polygon that was added does not surround the place clicked.";
    return result;
}

}  // namespace tidemark
