// The one open project: every value and table of it by its own name. The project file keeps all of
// it; what is only known while it is edited is in Session.
//
// Records are numbered from 1; slot 0 of a table is never used, and slots beyond a count hold
// whatever was there before and are never read.
//
// Units: VTP units (256 to an LOD13 cell side, X east, Y south, the LOD8 cell's north-west corner
// at 4080, 4080); cell units (0..255 inside one LOD13 cell); LOD13 columns and rows (0..31 inside
// the LOD8 cell); canvas pixels appear in the two scales only.
#pragma once

#include <string>

#include "model/int16.h"
#include "model/limits.h"
#include "model/table.h"

namespace tidemark {

struct Project {
    // Background georeference.
    Int16 BGLOD8X, BGLOD8Y;             // LOD8 column 0..767 and row 0..511
    Int16 BGLOD13tlX, BGLOD13tlY;       // LOD13 cell of the image's top-left corner, 0..31
    Int16 BGLOD13brX, BGLOD13brY;       // and of its bottom-right corner, not less than the other
    Int16 AreaLeftVTP, AreaTopVTP;      // VTP units: the image's west and north edge
    Int16 AreaRightVTP, AreaBottomVTP;  // just beyond its east and south edge, 12272 at most
    Int16 AreaWidth, AreaHeight;        // VTP units
    float ScaleX = 0, ScaleY = 0;       // canvas pixels to one VTP unit
    Int16 CellLatitude, CellLongitude;  // of the LOD8 cell, whole degrees, north and east positive
    bool BackgroundLoaded = false;      // an image is loaded and shown
    std::string BackgroundFile;         // full path of the image

    // VTP points. A segment runs from a point whose start flag is set to the point before the next
    // start; its mode and width are those stored on its first point.
    Int16 VTPCount;
    Table<Int16, LastVTPSlot, 1> VTPPoint;  // VTP units; (i, 0) is X, (i, 1) is Y
    Table<bool, LastVTPSlot> VTPSegStart;
    Table<bool, LastVTPSlot> VTPSegEnd;  // follows from the start flags at every list refresh
    Table<Int16, LastVTPSlot> VTPMode;   // drawing-mode code 0..7 or 9
    Table<Int16, LastVTPSlot> VTPWidth;  // 0..300

    // Cleared cells: one kind of existing scenery to be removed from one LOD13 cell.
    Int16 KillCount;
    Table<Int16, MaxKillCount, 1> KillCell;  // LOD13 column (i, 0) and row (i, 1)
    Table<Int16, MaxKillCount> KillType;     // clear code 8, 16, 31 or 32

    // LWM polygons, each inside one LOD13 cell. The first vertex is not repeated at the end.
    Int16 LWMCount;
    Table<Int16, MaxLWMCount> LWMPointCount;
    Table<Int16, MaxLWMCount, MaxLWMPointCount, 1> LWMPoint;  // cell units; (polygon, point, axis)
    Table<Int16, MaxLWMCount, 1> LWMCell;                     // LOD13 column and row
    Table<Int16, MaxLWMCount> LWMType;                        // 10 water, 11 land
    Table<Int16, MaxLWMCount> LWMHeight;                      // metres 0..10000, or ConformsHeight

    // Position, in cell units, of the last VTP point that the polygon builder found in its cell.
    Int16 PointInCellX, PointInCellY;

    // Output preferences.
    std::string OutputRoot;   // filename root chosen by the user
    std::string LWMFileName;  // full paths of the two assembler files
    std::string VTPFileName;
    std::string FSFolder;  // where compiled files are copied to
    bool CopyToFS = false;
    bool LWMNotepad = false, LWMCompile = false;  // after saving: show the file, compile it
    bool VTPNotepad = false, VTPCompile = false;
    bool PrefsSet = false;  // the preferences have been confirmed once

    std::string ProjectFile;  // full path; empty until a project is saved or opened

    // Equal in every value, fractions to the bit, and in the entries up to each count. Unused slots
    // do not count.
    friend bool operator==(const Project& a, const Project& b);
};

}  // namespace tidemark
