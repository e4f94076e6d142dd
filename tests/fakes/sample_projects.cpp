#include "fakes/sample_projects.h"

#include "georef/background_properties.h"
#include "model/drawing_modes.h"
#include "model/segments.h"

namespace tidemark {

void Place_area(Project& p, int left, int top, int right, int bottom) {
    p.BGLOD13tlX = left;
    p.BGLOD13tlY = top;
    p.BGLOD13brX = right;
    p.BGLOD13brY = bottom;
    Derive_area(p, CellSizeVTP * (right + 1 - left), CellSizeVTP * (bottom + 1 - top));
}

void Add_segment(Project& p, int mode, int width, const std::vector<std::pair<int, int>>& points) {
    bool starts = true;
    for (const auto& [x, y] : points) {
        const int i = ++p.VTPCount;
        p.VTPPoint(i, 0) = x;
        p.VTPPoint(i, 1) = y;
        p.VTPSegStart(i) = std::exchange(starts, false);
        p.VTPMode(i) = mode;
        p.VTPWidth(i) = width;
    }
    Repair_segments(p);
}

void Add_cleared_cell(Project& p, int column, int row, int code) {
    const int k = ++p.KillCount;
    p.KillCell(k, 0) = column;
    p.KillCell(k, 1) = row;
    p.KillType(k) = code;
}

void Add_polygon(Project& p, int column, int row, int type, int height, int points) {
    constexpr std::pair<int, int> corners[] = {{0, 0}, {255, 0}, {255, 255}, {0, 255}};
    const int polygon = ++p.LWMCount;
    p.LWMCell(polygon, 0) = column;
    p.LWMCell(polygon, 1) = row;
    p.LWMType(polygon) = type;
    p.LWMHeight(polygon) = height;
    p.LWMPointCount(polygon) = points;
    for (int k = 1; k <= points; ++k) {
        const auto [x, y] = k <= 4 ? corners[k - 1] : std::pair{0, 254 - k};
        p.LWMPoint(polygon, k, 0) = x;
        p.LWMPoint(polygon, k, 1) = y;
    }
}

Project Project_of_all_values() {
    Project p;
    Int16 next = 101;
    for (Int16* value :
         {&p.AreaLeftVTP, &p.AreaTopVTP, &p.AreaRightVTP, &p.AreaBottomVTP, &p.BGLOD8X, &p.BGLOD8Y,
          &p.BGLOD13tlX, &p.BGLOD13tlY, &p.BGLOD13brX, &p.BGLOD13brY, &p.AreaWidth, &p.AreaHeight,
          &p.CellLatitude, &p.CellLongitude, &p.PointInCellX, &p.PointInCellY})
        *value = next = -1 * next - (next < 0 ? -1 : 1);  // 101 -> -102 -> 103 ...
    p.ScaleX = 0.8333333F;
    p.ScaleY = -12345.67F;
    p.LWMFileName = "C:\\Scenery\\K\xC3\xBCste-LWM.asm";
    p.VTPFileName = " leading and trailing blanks ";
    p.OutputRoot = "C:\\Scenery\\K\xC3\xBCste.asm";
    p.FSFolder = " True";
    p.ProjectFile = "/home/me/coast 1.tdm";
    p.BackgroundFile = "";
    p.CopyToFS = p.LWMCompile = p.VTPCompile = p.PrefsSet = true;
    Add_segment(p, 1, 80, {{5000, 6000}, {-5000, -6000}, {4080, 12272}});
    Add_segment(p, 9, 300, {{-32768, 32767}});
    p.VTPMode(2) = 32;
    Add_cleared_cell(p, 32, -1, 16);
    Add_cleared_cell(p, 0, 31, 8);
    Add_polygon(p, 31, 0, LandPolygon, ConformsHeight, 4);
    Add_polygon(p, 2, 3, WaterPolygon, 10000, 0);
    Add_polygon(p, 4, 5, WaterPolygon, 12, 7);
    return p;
}

Project Largest_project() {
    Project p = Project_of_all_values();
    p.VTPCount = p.KillCount = p.LWMCount = 0;
    Place_area(p, 0, 0, LastLOD13, LastLOD13);
    p.ScaleX = p.ScaleY = 0.125F;
    constexpr int modes[] = {1, 2, 3, 4, 5, 6, 7, 9, 0};
    for (int s = 0; p.VTPCount < MaxVTPCount; ++s) {  // 27 segments of 37 points
        std::vector<std::pair<int, int>> points;
        for (int i = 0; i < 37; ++i) points.emplace_back(4100 + 220 * i, 4200 + 290 * s + i % 7);
        Add_segment(p, modes[s % 9], 10 + s, points);
    }
    for (int k = 0; k < MaxKillCount; ++k) Add_cleared_cell(p, k % 32, k / 32, ClearRivers);
    for (int i = 0; i < MaxLWMCount; ++i)
        Add_polygon(p, i % 32, i / 32, i % 2 ? LandPolygon : WaterPolygon, 100, MaxLWMPointCount);
    return p;
}

}  // namespace tidemark
