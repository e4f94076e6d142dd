// Builds the LWM polygon of one cell around a click.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lwm/cell_edges.h"
#include "model/project.h"
#include "model/session.h"
#include "platform/messages.h"

namespace tidemark {

enum class HeightChoice { Explicit, Conform };

struct LWMPolyResult {
    bool Added = false;
    std::string StatusLine;         // a quiet remark on the polygon that was added; empty: none
    bool IsRefusedByCoast = false;  // the coastlines of the cell stood in the way
};

// Cuts the cursor's cell along its coastlines and appends the piece around the click as a polygon
// of type DrawMode. It reads the project's VTP points, and the cell and click of the session's
// cursor and its DrawMode. Everything that stands in the way is said in a message, and then nothing
// is appended.
//
// An explicit height is rounded to whole metres (halves to the even neighbour, 0 without a leading
// number) and refused outside 0..10000.
//
// Throws Overflow, before anything is appended, for points too far away for 16-bit arithmetic.
LWMPolyResult Add_LWM_Poly(Project& project, const Session& session, Messages& messages,
                           HeightChoice choice, std::string_view height_text);

// The candidate that surrounds the click best, numbered from 1: the only one, or of those whose
// bounding box has the click strictly inside it the one whose vertices are nearest on average, and
// the first of equals. Nothing when no box has the click inside.
std::optional<int> Best_candidate(const std::vector<Outline>& candidates, CellPoint click);

// Every vertex is in the cell: a polygon with another one is refused.
bool Is_in_cell(const Outline& outline);

// What a polygon is besides its outline.
struct PolygonKind {
    Int16 Type;    // WaterPolygon or LandPolygon
    Int16 Height;  // metres 0..10000, or ConformsHeight
    bool operator==(const PolygonKind&) const = default;
};

// Makes the outline polygon number `polygon` of the project, which may be the one after its last.
void Store_polygon(Project& project, int polygon, Int16 column, Int16 row, PolygonKind kind,
                   const Outline& outline);

// The vertices of a polygon of the project.
Outline Stored_outline(const Project& project, int polygon);

// Inside the outline, or on it.
bool Surrounds(const Outline& outline, CellPoint place);

}  // namespace tidemark
