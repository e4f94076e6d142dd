// The background's place in the world: the six numbers that the user states, and what follows from
// them.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "model/project.h"
#include "platform/messages.h"

namespace tidemark {

struct GeoreferenceField {
    const char* Name;  // of its text box
    Int16 Project::*Value;
    int Last;  // the value lies in 0..Last
};

// In the order in which they are filled, normalised and read.
inline constexpr std::array<GeoreferenceField, 6> GeoreferenceFields{{
    {"LOD8X", &Project::BGLOD8X, LastLOD8Column},
    {"LOD8Y", &Project::BGLOD8Y, LastLOD8Row},
    {"LOD13tlX", &Project::BGLOD13tlX, LastLOD13},
    {"LOD13tlY", &Project::BGLOD13tlY, LastLOD13},
    {"LOD13brX", &Project::BGLOD13brX, LastLOD13},
    {"LOD13brY", &Project::BGLOD13brY, LastLOD13},
}};

// What stands in the six text boxes.
using GeoreferenceTexts = std::array<std::string, GeoreferenceFields.size()>;

GeoreferenceTexts Georeference_texts(const Project& project);

// A field as OK leaves it: its number, rounded with halves to the even neighbour, as
// blank-prefixed text. Text without a number gives " 0".
std::string Normalised_field(const std::string& text);

// Where an LOD8 cell lies, in words and as whole degrees: the latitude of its southern edge, the
// longitude of its eastern edge.
struct CellPlace {
    std::string LatLabel, LonLabel;    // "( Appoximate Latitude of this cell is N 89.65 )"
    std::string HiddenLat, HiddenLon;  // whole degrees as blank-prefixed text
};

CellPlace Place_of_cell(std::string_view LOD8X, std::string_view LOD8Y);

// Stores each field whose value lies in its range and warns of the others, and of corners in the
// wrong order among the stored values. True when there was nothing to warn of. A number too large
// for 16 bits is out of range.
bool Take_georeference(Project& project, const GeoreferenceTexts& texts, Messages& messages);

// The area in VTP units and the scale, from the corner cells and the canvas's size in pixels.
void Derive_area(Project& project, int canvas_width, int canvas_height);

// Shows the dialog with these texts and returns the texts it was closed with.
using AskGeoreference = std::function<GeoreferenceTexts(const GeoreferenceTexts&)>;

// Asks until all values are in range and the corners in order, then stores the cell's latitude and
// longitude and derives the area.
void Ask_background_properties(Project& project, const AskGeoreference& ask, int canvas_width,
                               int canvas_height, Messages& messages);

}  // namespace tidemark
