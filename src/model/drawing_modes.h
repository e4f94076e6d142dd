// The fifteen drawing modes: what the user reads, what the project stores, what the lists print.
#pragma once

#include <array>
#include <string_view>

namespace tidemark {

// What a left click on the map adds in a drawing mode, and with that the table its code goes to.
enum class Adds { Point, Polygon, ClearedCell };

struct DrawingMode {
    std::string_view Item;  // the line of the drawing-mode list
    int Code;               // stored in VTPMode, LWMType or KillType
    Adds What;
    std::string_view ShortName;  // as the lists of the Status panel print it
};

inline constexpr int WaterPolygon = 10;
inline constexpr int LandPolygon = 11;

inline constexpr int ClearCoastlines = 8;  // a clear code, not a road: the 2-lane road is 9
inline constexpr int ClearRivers = 16;
inline constexpr int ClearMinorRoads = 31;
inline constexpr int ClearMajorRoads = 32;

inline constexpr std::array<DrawingMode, 15> DrawingModes{{
    {"Plain segment (LWM edge only)", 0, Adds::Point, "Plain"},
    {"Coastline (sand) with waves", 1, Adds::Point, "Coast (waves)"},
    {"Coastline (sand), no waves", 2, Adds::Point, "Coast (sand)"},
    {"Coastline (ice) with waves", 3, Adds::Point, "Coast (ice)"},
    {"Coastline (river)", 4, Adds::Point, "Coast (river)"},
    {"River/stream", 5, Adds::Point, "River"},
    {"Road (dirt)", 6, Adds::Point, "Road (dirt)"},
    {"Road (1 lane concrete)", 7, Adds::Point, "Road (1 lane)"},
    {"Road (2 lane concrete)", 9, Adds::Point, "Road (2 lane)"},
    {"Water polygon", WaterPolygon, Adds::Polygon, " Water"},
    {"Land polygon", LandPolygon, Adds::Polygon, " Land"},
    {"Clear existing coastlines in LOD13 cell", ClearCoastlines, Adds::ClearedCell, " Coast"},
    {"Clear existing rivers/streams in LOD13 cell", ClearRivers, Adds::ClearedCell,
     " Rivers/Streams"},
    {"Clear existing minor roads in LOD13 cell", ClearMinorRoads, Adds::ClearedCell,
     " Minor Roads"},
    {"Clear existing major roads in LOD13 cell", ClearMajorRoads, Adds::ClearedCell,
     " Major Roads"},
}};

// Segments of these modes bound the land and water polygons: the plain edge, the three kinds of
// sea coastline and the river coastline.
constexpr bool Is_coastline(int mode) {
    return mode < 5;
}

// The mode whose item text is exactly `item`, or null.
constexpr const DrawingMode* Find_mode(std::string_view item) {
    for (const DrawingMode& mode : DrawingModes)
        if (mode.Item == item) return &mode;
    return nullptr;
}

// The mode that stores `code` in the table that `what` goes to, or null.
constexpr const DrawingMode* Find_mode(int code, Adds what) {
    for (const DrawingMode& mode : DrawingModes)
        if (mode.Code == code && mode.What == what) return &mode;
    return nullptr;
}

}  // namespace tidemark
