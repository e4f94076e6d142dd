#include "model/project.h"

#include <tuple>

namespace tidemark {

namespace {

auto Scalars(const Project& p) {
    return std::tie(p.BGLOD8X, p.BGLOD8Y, p.BGLOD13tlX, p.BGLOD13tlY, p.BGLOD13brX, p.BGLOD13brY,
                    p.AreaLeftVTP, p.AreaTopVTP, p.AreaRightVTP, p.AreaBottomVTP, p.AreaWidth,
                    p.AreaHeight, p.ScaleX, p.ScaleY, p.CellLatitude, p.CellLongitude,
                    p.BackgroundLoaded, p.BackgroundFile, p.VTPCount, p.KillCount, p.LWMCount,
                    p.PointInCellX, p.PointInCellY, p.OutputRoot, p.LWMFileName, p.VTPFileName,
                    p.FSFolder, p.CopyToFS, p.LWMNotepad, p.LWMCompile, p.VTPNotepad, p.VTPCompile,
                    p.PrefsSet, p.ProjectFile);
}

auto VTP_record(const Project& p, int i) {
    return std::tie(p.VTPPoint(i, 0), p.VTPPoint(i, 1), p.VTPSegStart(i), p.VTPSegEnd(i),
                    p.VTPMode(i), p.VTPWidth(i));
}

auto Kill_record(const Project& p, int k) {
    return std::tie(p.KillCell(k, 0), p.KillCell(k, 1), p.KillType(k));
}

auto LWM_record(const Project& p, int polygon) {
    return std::tie(p.LWMPointCount(polygon), p.LWMType(polygon), p.LWMHeight(polygon),
                    p.LWMCell(polygon, 0), p.LWMCell(polygon, 1));
}

auto LWM_vertex(const Project& p, int polygon, int point) {
    return std::tie(p.LWMPoint(polygon, point, 0), p.LWMPoint(polygon, point, 1));
}

}  // namespace

bool operator==(const Project& a, const Project& b) {
    if (Scalars(a) != Scalars(b)) return false;
    for (int i = 1; i <= a.VTPCount; ++i)
        if (VTP_record(a, i) != VTP_record(b, i)) return false;
    for (int k = 1; k <= a.KillCount; ++k)
        if (Kill_record(a, k) != Kill_record(b, k)) return false;
    for (int polygon = 1; polygon <= a.LWMCount; ++polygon) {
        if (LWM_record(a, polygon) != LWM_record(b, polygon)) return false;
        for (int point = 1; point <= a.LWMPointCount(polygon); ++point)
            if (LWM_vertex(a, polygon, point) != LWM_vertex(b, polygon, point)) return false;
    }
    return true;
}

}  // namespace tidemark
