// The cross that the keys move over the map: where it starts and where it goes.
//
// Its place is a canvas pixel with its fraction, as the mouse would report it.
#pragma once

#include <optional>

#include "canvas/map_scale.h"
#include "model/project.h"

namespace tidemark {

// The map as it is shown. Sizes are pixels; `Ratio` is the screen's own pixels to one of them.
struct ShownMap {
    MapScale Scale;
    ViewSize Image, Viewport;
    double Ratio;
};

enum class CrossStep { Pixel, Unit, Cell };  // of the screen itself, VTP unit, LOD13 cell

struct CrossMove {
    int Across, Down;  // one of them -1 or 1, the other 0
    CrossStep Step;
};

// The selected point (a list position) when it can be seen, or the middle of what is seen of the
// map.
CanvasPoint Start_of_cross(const Project& project, int selected, const ShownMap& map);

// One step further. A step of a pixel comes to a whole pixel of the screen, where a mouse can be,
// and ends at the map's border. A step of a unit or a cell leads to the middle of a unit, the one
// of a cell to the same position inside the next cell; one that would leave the map, or is asked
// for on a map without scale, leads nowhere.
CanvasPoint Moved_cross(CanvasPoint from, CrossMove move, const Project& project,
                        const ShownMap& map);

// The place at which the cursor is at a position in VTP units; none beside the map.
std::optional<CanvasPoint> Cross_at(const Project& project, Int16 x, Int16 y, ViewSize image);

// The nearest place on a map of this size.
CanvasPoint Kept_on_map(CanvasPoint place, const ShownMap& map);

}  // namespace tidemark
