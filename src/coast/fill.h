// Filling along the coast: from one polygon on, the polygons of all the cells that its coastline
// crosses.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "coast/position.h"
#include "lwm/polygon_builder.h"
#include "model/project.h"

namespace tidemark {

struct CellRange {
    LOD13Cell First, Last;  // both included

    bool Contains(LOD13Cell cell) const {
        return cell.Column >= First.Column && cell.Column <= Last.Column && cell.Row >= First.Row &&
               cell.Row <= Last.Row;
    }
};

struct FillOptions {
    bool Water = true, Land = true;        // which polygons are wanted; one of them at least
    bool Inside = false;                   // the cells too that no coastline crosses
    std::optional<CellRange> Within = {};  // nothing: the whole map
};

struct PlannedPolygon {
    LOD13Cell Cell;
    PolygonKind Kind;
    Outline Vertices;
};

// Where filling does not go on.
struct FillStop {
    LOD13Cell Cell;
    std::string Why;  // "polygon 7 is in the way"
};

struct FillPlan {
    std::string Refusal;  // why there is nothing to plan; empty: there is
    int Cells = 0;        // that are reached
    int Passed = 0;       // polygons that are there already
    std::vector<PlannedPolygon> Polygons;
    std::vector<FillStop> Stops;  // by cell
    int Free = 0;                 // polygons that the project still has room for

    bool Fits() const { return static_cast<int>(Polygons.size()) <= Free; }
};

// Goes from the polygon (numbered from 1) on to the pieces of the neighbouring cells that have a
// stretch of the common edge with it, and so on; through pieces of the wanted kinds only, and from
// a cell to all its wanted pieces when both kinds are. Polygons of the first one's kind have its
// height; others are water at 0 metres and land that conforms. It stops at the edge of the map and
// at cells in which the coast check has found an error.
FillPlan Plan_fill(const Project& project, int polygon, const FillOptions& options);

// Points First..Last of a coastline of which the land side is known.
struct KnownShore {
    int First, Last;
    bool LandOnLeft;
};

// The same from every cell that one of these coastlines runs through: all its pieces of the wanted
// kinds. Water lies at 0 metres, land conforms.
FillPlan Plan_fill(const Project& project, std::span<const KnownShore> shores,
                   const FillOptions& options);

// "148 cells; 148 polygons needed, 177 free".
std::string Fill_count_text(const FillPlan& plan);

// What would fit when the plan with these options does not: "These would fit: water only (95
// polygons), the cells in view (30)". Narrower choices than the options, with the cells in view
// where they are known; empty when none fits.
std::string Fill_advice(const Project& project, int polygon, const FillOptions& options,
                        const std::optional<CellRange>& view);

// Appends the planned polygons; the plan has to fit.
void Fill(Project& project, const FillPlan& plan);

}  // namespace tidemark
