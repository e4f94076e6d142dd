// The order of the values in a project file, written down once for its reader and its writer.
#pragma once

#include <string>

#include "model/project.h"

namespace tidemark {

// Visits every value of the project in the order of the project file. The visitor is called as
//   visit(name, value)         Int16&, float&, bool& or std::string&
//   visit.Count(name, value, limit)
// A count is visited before the entries that it counts, so a reader can set it on the way.
template <class P, class Visitor>
void Visit_header(P& p, Visitor& visit) {
    visit("AreaLeftVTP", p.AreaLeftVTP);
    visit("AreaTopVTP", p.AreaTopVTP);
    visit("AreaRightVTP", p.AreaRightVTP);
    visit("AreaBottomVTP", p.AreaBottomVTP);
    visit("BGLOD8X", p.BGLOD8X);
    visit("BGLOD8Y", p.BGLOD8Y);
    visit("BGLOD13tlX", p.BGLOD13tlX);
    visit("BGLOD13tlY", p.BGLOD13tlY);
    visit("BGLOD13brX", p.BGLOD13brX);
    visit("BGLOD13brY", p.BGLOD13brY);
    visit("AreaWidth", p.AreaWidth);
    visit("AreaHeight", p.AreaHeight);
    visit("ScaleX", p.ScaleX);
    visit("ScaleY", p.ScaleY);
    visit.Count("VTPCount", p.VTPCount, MaxVTPCount);
    visit.Count("LWMCount", p.LWMCount, MaxLWMCount);
    visit.Count("KillCount", p.KillCount, MaxKillCount);
}

template <class P, class Visitor>
void Visit_VTP_points(P& p, Visitor& visit) {
    for (int i = 1; i <= p.VTPCount; ++i) {
        visit("VTPPoint X", p.VTPPoint(i, 0));
        visit("VTPPoint Y", p.VTPPoint(i, 1));
        visit("VTPSegStart", p.VTPSegStart(i));
        visit("VTPSegEnd", p.VTPSegEnd(i));
        visit("VTPMode", p.VTPMode(i));
        visit("VTPWidth", p.VTPWidth(i));
    }
}

template <class P, class Visitor>
void Visit_cleared_cells(P& p, Visitor& visit) {
    for (int k = 1; k <= p.KillCount; ++k) {
        visit("KillCell column", p.KillCell(k, 0));
        visit("KillCell row", p.KillCell(k, 1));
        visit("KillType", p.KillType(k));
    }
}

template <class P, class Visitor>
void Visit_LWM_polygons(P& p, Visitor& visit) {
    for (int polygon = 1; polygon <= p.LWMCount; ++polygon) {
        visit.Count("LWMPointCount", p.LWMPointCount(polygon), MaxLWMPointCount);
        visit("LWMType", p.LWMType(polygon));
        visit("LWMHeight", p.LWMHeight(polygon));
        visit("LWMCell column", p.LWMCell(polygon, 0));
        visit("LWMCell row", p.LWMCell(polygon, 1));
        for (int point = 1; point <= p.LWMPointCount(polygon); ++point) {
            visit("LWMPoint X", p.LWMPoint(polygon, point, 0));
            visit("LWMPoint Y", p.LWMPoint(polygon, point, 1));
        }
    }
}

template <class P, class Visitor>
void Visit_texts(P& p, Visitor& visit) {
    visit("LWMFileName", p.LWMFileName);
    visit("VTPFileName", p.VTPFileName);
    visit("OutputRoot", p.OutputRoot);
    visit("FSFolder", p.FSFolder);
    visit("ProjectFile", p.ProjectFile);
    visit("BackgroundFile", p.BackgroundFile);
}

template <class P, class Visitor>
void Visit_trailer(P& p, Visitor& visit) {
    visit("CellLatitude", p.CellLatitude);
    visit("CellLongitude", p.CellLongitude);
    Visit_texts(p, visit);
    visit("PointInCellX", p.PointInCellX);
    visit("PointInCellY", p.PointInCellY);
    visit("CopyToFS", p.CopyToFS);
    visit("LWMNotepad", p.LWMNotepad);
    visit("LWMCompile", p.LWMCompile);
    visit("VTPNotepad", p.VTPNotepad);
    visit("VTPCompile", p.VTPCompile);
    visit("PrefsSet", p.PrefsSet);
    visit("BackgroundLoaded", p.BackgroundLoaded);
}

// The whole project between the first and the last line of its file.
template <class P, class Visitor>
void Visit_project(P& p, Visitor& visit) {
    Visit_header(p, visit);
    Visit_VTP_points(p, visit);
    Visit_cleared_cells(p, visit);
    Visit_LWM_polygons(p, visit);
    Visit_trailer(p, visit);
}

}  // namespace tidemark
