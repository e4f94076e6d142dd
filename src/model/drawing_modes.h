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

// The codes of segments (VTPMode). The first five are coastlines.
inline constexpr int PlainSegment = 0;
inline constexpr int SandWithWaves = 1;
inline constexpr int SandNoWaves = 2;
inline constexpr int IceWithWaves = 3;
inline constexpr int RiverCoast = 4;
inline constexpr int Stream = 5;
inline constexpr int DirtRoad = 6;
inline constexpr int OneLane = 7;
inline constexpr int TwoLanes = 9;

// Of polygons (LWMType).
inline constexpr int WaterPolygon = 10;
inline constexpr int LandPolygon = 11;

// Clear codes (KillType). The first lies among the roads and is none.
inline constexpr int ClearCoastlines = 8;
inline constexpr int ClearRivers = 16;
inline constexpr int ClearMinorRoads = 31;
inline constexpr int ClearMajorRoads = 32;

inline constexpr std::array<DrawingMode, 15> DrawingModes{{
    {"Plain segment (LWM edge only)", PlainSegment, Adds::Point, "Plain"},
    {"Coastline (sand) with waves", SandWithWaves, Adds::Point, "Coast (waves)"},
    {"Coastline (sand), no waves", SandNoWaves, Adds::Point, "Coast (sand)"},
    {"Coastline (ice) with waves", IceWithWaves, Adds::Point, "Coast (ice)"},
    {"Coastline (river)", RiverCoast, Adds::Point, "Coast (river)"},
    {"River/stream", Stream, Adds::Point, "River"},
    {"Road (dirt)", DirtRoad, Adds::Point, "Road (dirt)"},
    {"Road (1 lane concrete)", OneLane, Adds::Point, "Road (1 lane)"},
    {"Road (2 lane concrete)", TwoLanes, Adds::Point, "Road (2 lane)"},
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
    return mode <= RiverCoast;
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

// Whether a table of entries with a Code each has just one for every mode that adds `what`, but for
// the mode `without`: what each room knows of a mode is checked against the modes there are.
template <class Entries>
constexpr bool Covers_modes(const Entries& entries, Adds what, int without = -1) {
    int wanted = 0;
    for (const DrawingMode& mode : DrawingModes) {
        if (mode.What != what || mode.Code == without) continue;
        ++wanted;
        int found = 0;
        for (const auto& entry : entries) found += entry.Code == mode.Code ? 1 : 0;
        if (found != 1) return false;
    }
    return wanted == static_cast<int>(entries.size());
}

}  // namespace tidemark
