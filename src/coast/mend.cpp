#include "coast/mend.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <string_view>

#include "coast/cell_path.h"
#include "coast/check.h"
#include "coast/check_parts.h"
#include "coast/rebuild.h"
#include "lwm/polygon_builder.h"
#include "model/drawing_modes.h"
#include "model/records.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

// Mending can bring to light what was hidden behind a finding; more often than this it does not.
constexpr int MaxRounds = 8;

// What the findings ask for, by point or polygon.
struct Work {
    std::map<int, int> CutBefore;  // and by how much the crossings go aside
    std::set<int> MoveInside, MoveToEdge, Drop, Rebuild;

    explicit Work(std::span<const Finding> findings) {
        for (const Finding& finding : findings) Add(finding);
    }

  private:
    void Add(const Finding& finding) {
        const int point = finding.Point;
        switch (finding.Mending) {
            case Remedy::None:
                break;
            case Remedy::CutStep:
                CutBefore.emplace(point, 0);
                break;
            case Remedy::Widen:
                CutBefore[point] = -1;
                CutBefore[finding.Other] = 1;
                break;
            case Remedy::MoveInside:
                MoveInside.insert(point);
                CutBefore.insert({{point, 0}, {point + 1, 0}});
                break;
            case Remedy::MoveToEdge:
                MoveToEdge.insert(point);
                break;
            case Remedy::DropPoint:
                Drop.insert(point);
                break;
            case Remedy::Rebuild:
                Rebuild.insert(finding.Polygon);
        }
    }
};

Position Place_of(const VTPRecord& point) {
    return {point.X, point.Y};
}

VTPRecord At_place(VTPRecord point, Position place) {
    point.X = place[0];
    point.Y = place[1];
    return point;
}

// Off the edges of its cell; what lies on the map's own edge stays there if it can.
Position Moved_inside(Position place) {
    const Position placed = Placed(std::vector{place}).front();
    return placed != place ? placed : Off_cell_edges(place);
}

// The points of the project as the work leaves them, and where the followed one is then; one that
// is dropped shares its place with the one before it.
struct MendedPoints {
    std::vector<VTPRecord> Points;
    int Followed;
};

MendedPoints Mended_points(const Project& p, const Work& work, int followed) {
    MendedPoints mended{{}, followed};
    std::vector<VTPRecord>& points = mended.Points;
    for (int i = 1; i <= p.VTPCount; ++i) {
        VTPRecord point = PointTable::Get(p, i);
        if (work.Drop.contains(i)) {
            if (i == followed) mended.Followed = static_cast<int>(points.size());
            continue;
        }
        if (work.MoveInside.contains(i)) point = At_place(point, Moved_inside(Place_of(point)));
        if (work.MoveToEdge.contains(i))
            point = At_place(point, Place_on_edge(p, i).value_or(Place_of(point)));
        const auto cut = work.CutBefore.find(i);
        if (cut != work.CutBefore.end() && !point.SegStart && !points.empty()) {
            VTPRecord between = points.back();
            between.SegStart = false;
            const Position from = Place_of(points.back());
            for (const Position& place : Cut_of_step(from, Place_of(point), cut->second))
                points.push_back(At_place(between, place));
        }
        points.push_back(point);
        if (i == followed) mended.Followed = static_cast<int>(points.size());
    }
    return mended;
}

void Store_points(Project& p, const std::vector<VTPRecord>& points) {
    PointTable::Set_count(p, static_cast<int>(points.size()));
    int i = 0;
    for (const VTPRecord& point : points) PointTable::Set(p, ++i, point);
    Repair_segments(p);
}

void Rebuild_polygons(Project& p, const std::set<int>& wanted) {
    if (wanted.empty()) return;
    const CoastSurvey survey(p);
    for (const auto& [cell, polygons] : Polygons_by_cell(p)) {
        const auto is_wanted = [&](int polygon) { return wanted.contains(polygon); };
        if (std::none_of(polygons.begin(), polygons.end(), is_wanted)) continue;
        std::vector<Outline> outlines;
        for (const int polygon : polygons) outlines.push_back(Stored_outline(p, polygon));
        const auto rebuilt = Rebuilt_together(outlines, survey.Candidates(cell));
        for (std::size_t i = 0; i < polygons.size(); ++i) {
            const int polygon = polygons[i];
            if (!rebuilt[i] || !is_wanted(polygon)) continue;
            Store_polygon(p, polygon, cell.Column, cell.Row,
                          {p.LWMType(polygon), p.LWMHeight(polygon)}, *rebuilt[i]);
        }
    }
}

// Why there is no room for so many points; empty: there is.
std::string No_room_for(int points, const Project& p) {
    if (points <= MaxVTPCount) return "";
    const int needed = points - p.VTPCount, free = MaxVTPCount - p.VTPCount;
    return "Nothing was mended: " +
           Counted(needed, "more point is needed, and", "more points are needed, and") + " " +
           Counted(free, "is free.", "are free.");
}

// An end of a coastline on the other side of the edge that this one is to meet: at most
// MaxEndFromEdge along the edge from it.
std::optional<int> Meeting_place(const Project& p, Position place, std::size_t axis, int far_unit) {
    for (int i = 1; i <= p.VTPCount; ++i) {
        if (!p.VTPSegStart(i) && !p.VTPSegEnd(i)) continue;
        if (!Is_coastline(p.VTPMode(Segment_first(p, i)))) continue;
        const Position other = VTP_position(p, i);
        const int apart = std::abs(other[1 - axis] - place[1 - axis]);
        if (other[axis] == far_unit && apart <= MaxEndFromEdge) return other[1 - axis];
    }
    return std::nullopt;
}

}  // namespace

std::optional<Position> Place_on_edge(const Project& p, int end) {
    const Position place = VTP_position(p, end);
    std::optional<Position> nearest;
    int least = MaxEndFromEdge + 1;
    for (const std::size_t axis : {0U, 1U})
        for (const bool ahead : {false, true}) {
            const int first = First_unit(Cell_index(place[axis]));
            const int near_unit = ahead ? first + LastCellUnit : first;
            const int far_unit = ahead ? near_unit + 1 : near_unit - 1;
            const int distance = std::abs(near_unit - place[axis]);
            if (distance == 0 || distance >= least) continue;
            least = distance;
            nearest = place;
            // Where the coastline leaves the cell right here, its end goes over the edge with it.
            const int next = p.VTPSegStart(end) ? end + 1 : end - 1;
            const bool leaves =
                next >= 1 && next <= p.VTPCount &&
                Cell_index(p.VTPPoint(next, static_cast<int>(axis))) == Cell_index(far_unit);
            (*nearest)[axis] = leaves ? far_unit : near_unit;
            if (leaves) continue;
            if (const auto along = Meeting_place(p, place, axis, far_unit))
                (*nearest)[1 - axis] = *along;
        }
    return nearest;
}

MendResult Mend(Project& project, std::span<const Finding> findings, int followed) {
    const Work work(findings);
    const MendedPoints mended = Mended_points(project, work, followed);
    if (std::string refusal = No_room_for(static_cast<int>(mended.Points.size()), project);
        !refusal.empty())
        return {0, std::move(refusal), followed};
    Store_points(project, mended.Points);
    Rebuild_polygons(project, work.Rebuild);
    const auto has_remedy = [](const Finding& f) { return f.Mending != Remedy::None; };
    return {static_cast<int>(std::count_if(findings.begin(), findings.end(), has_remedy)), "",
            mended.Followed};
}

MendResult Mend_all(Project& project, int followed) {
    MendResult all{0, "", followed};
    Findings findings = Check_coast(project);
    for (int round = 0; round < MaxRounds && Has_remedy(findings); ++round) {
        const MendResult result = Mend(project, findings, all.Followed);
        if (!result.Refusal.empty()) {
            constexpr std::string_view nothing = "Nothing";
            all.Refusal = result.Refusal;
            if (all.Mended > 0) all.Refusal.replace(0, nothing.size(), "Not everything");
            break;
        }
        all.Mended += result.Mended;
        all.Followed = result.Followed;
        findings = Check_coast(project);
    }
    return all;
}

}  // namespace tidemark
