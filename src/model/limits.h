// How much a project can hold, and the fixed sizes of the simulator's world grid.
#pragma once

namespace tidemark {

// The list refresh writes the slot after the last point, so the last of the 1000 slots stays free.
inline constexpr int MaxVTPCount = 999;
inline constexpr int MaxKillCount = 1000;
inline constexpr int MaxLWMCount = 200;
inline constexpr int MaxLWMPointCount = 200;

inline constexpr int LastVTPSlot = MaxVTPCount + 1;

// World grid: LOD8 cells in 768 columns (eastward from 180 W) and 512 rows (southward from 90 N);
// each holds 32 x 32 LOD13 cells.
inline constexpr int LastLOD8Column = 767;
inline constexpr int LastLOD8Row = 511;
inline constexpr int LastLOD13 = 31;
inline constexpr double LOD8DegreesEast = 360.0 / 768;   // 0.46875
inline constexpr double LOD8DegreesSouth = 180.0 / 512;  // 0.3515625

// VTP units: an LOD13 cell is 256 of them wide and high, and the LOD8 cell's north-west corner is
// at (4080, 4080). Cell units run from 0 to 255 inside one LOD13 cell.
inline constexpr int CellSizeVTP = 256;
inline constexpr int FirstVTP = 4080;
inline constexpr int LastCellUnit = CellSizeVTP - 1;

inline constexpr int MaxVTPWidth = 300;
inline constexpr int MaxLWMHeight = 10000;
inline constexpr int ConformsHeight = -9999;  // a polygon that conforms to the existing terrain

}  // namespace tidemark
