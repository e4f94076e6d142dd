// What the coast check finds in small projects, and what mending leaves of it.
#include "coast/check.h"

#include "coast/clear_along.h"
#include "coast/finding_choice.h"
#include "coast/mend.h"
#include "fakes/rules_test.h"
#include "lwm/polygon_builder.h"
#include "model/cell_frame.h"
#include "model/records.h"
#include "vtp_edit/vtp_points.h"

namespace tidemark {

// In the units of the cell of the pictures.
static int Point_at(const Project& p, CellPoint place) {
    const int x = Cell_edge_VTP(PictureColumn) + place.X, y = Cell_edge_VTP(PictureRow) + place.Y;
    int i = 1;
    while (i <= p.VTPCount && (p.VTPPoint(i, 0) != x || p.VTPPoint(i, 1) != y)) ++i;
    return i;
}

static void Click(Project& p, int type, CellPoint place) {
    Session session = Cell_session({place.X & 255, place.Y & 255});
    session.CursorCellX = PictureColumn + (place.X >> 8);
    session.CursorCellY = PictureRow + (place.Y >> 8);
    session.DrawMode = type;
    RecordingMessages messages;
    Add_LWM_Poly(p, session, messages, HeightChoice::Explicit, "0");
}

static void Do(Project& p, const std::string& step) {
    const std::string word = step.substr(0, step.find(' '));
    const std::vector<CellPoint> places = Points_from(step.substr(word.size()));
    const auto [x, y] = places.at(0);
    std::vector<CellPoint> line;
    if (word == "water") Click(p, WaterPolygon, places[0]);
    if (word == "land") Click(p, LandPolygon, places[0]);
    if (word == "drop") Delete_VTP_Point(p, Point_at(p, places[0]));
    if (word == "clear") Add_cleared_cell(p, x, y, ClearRivers);
    if (word == "move") {
        const int i = Point_at(p, places[0]);
        p.VTPPoint(i, 0) = Cell_edge_VTP(PictureColumn) + places[1].X;
        p.VTPPoint(i, 1) = Cell_edge_VTP(PictureRow) + places[1].Y;
    }
    if (word == "vertices") p.LWMPointCount(x) = y;
    for (int i = 1; word == "crossings" && i <= x / 2; ++i)
        Add_line(p, 0, std::array<CellPoint, 3>{{{0, y * i}, {128, y * i}, {255, y * i}}});
    if (word == "zigzag") {
        line.push_back({0, 90});
        for (int i = 0; i < x; ++i) line.push_back({20 + i, 90 + i % 2});
        line.push_back({255, 90});
        Add_line(p, 0, line);
    }
    if (word == "river") {
        for (int i = 0; i < x; ++i) line.push_back({i, 90});
        Add_line(p, Stream, line);
    }
    Repair_segments(p);
}

static std::string Lines(const Findings& findings) {
    std::string lines;
    for (const Finding& finding : findings) lines += "\n" + Finding_line(finding);
    return lines.substr(lines.empty() ? 0 : 1);
}

// The places of all points, or of those only that no finding is to mend.
static std::vector<Position> Places(const Project& p, const Findings& but = {}) {
    std::vector<Position> places;
    for (int i = 1; i <= p.VTPCount; ++i)
        if (std::none_of(but.begin(), but.end(), [&](const Finding& finding) {
                return finding.Mending != Remedy::None &&
                       (finding.Point == i || finding.Other == i);
            }))
            places.push_back({p.VTPPoint(i, 0), p.VTPPoint(i, 1)});
    return places;
}

// Mends, and expects that of the points only those go elsewhere that a finding names.
static void Mend_once(Project& p) {
    const Findings findings = Check_coast(p);
    const std::vector<Position> others = Places(p, findings);
    Mend(p, findings);
    auto next = others.begin();
    for (const Position place : Places(p))
        if (next != others.end() && place == *next) ++next;
    EXPECT_EQ(next, others.end());
}

TEST(CoastCheckTest, WhatIsFoundAndWhatMendingLeaves) {
    Expect_cases("coast/data/findings.txt", [](const Given& given) {
        const auto project = Cell_project(given[0]);
        for (std::size_t i = 1; i < given.size(); ++i) Do(*project, given[i]);
        const Findings found = Check_coast(*project);
        if (!Has_remedy(found)) return Lines(found);
        Mend_once(*project);
        Mend_all(*project);
        const std::string left = Lines(Check_coast(*project));
        return Lines(found) + "\nMended: " + (left.empty() ? "nothing is left" : left);
    });
}

TEST(CoastCheckTest, AStepFromAPointThatMovesInsideIsCutWithIt) {
    const auto project = Cell_project("-256,110 -200,110 255,100 257,200 511,200");
    Findings moved = Check_coast(*project);
    std::erase_if(moved, [](const Finding& f) { return f.Mending != Remedy::MoveInside; });
    Mend(*project, moved);
    EXPECT_EQ(Lines(Check_coast(*project)), "");
}

TEST(CoastCheckTest, AProjectIsNearItsLimitFromNineTenthsOn) {
    Project project;
    for (const int count : {899, 900}) {
        project.KillCount = count;
        EXPECT_EQ(
            Lines(Check_coast(project)).find("holds 900 of at most 1000") != std::string::npos,
            count == 900);
    }
}

TEST(ClearAlongTest, EveryCellThatTheSegmentRunsThroughIsClearedOnce) {
    // A step skips [ 12, 7 ]; [ 11, 7 ] is cleared of coastlines already, [ 13, 7 ] of something
    // else.
    const auto project = Cell_project("-200,110 300,110 300,300");
    Add_cleared_cell(*project, 11, 7, ClearCoastlines);
    Add_cleared_cell(*project, 13, 7, ClearRivers);
    const auto cells = Cells_to_clear(*project, 2);
    EXPECT_EQ(cells, (std::vector<LOD13Cell>{{12, 7}, {13, 7}, {13, 8}}));
    Clear_cells(*project, 2, cells);
    EXPECT_THAT(Cells_to_clear(*project, 1), testing::IsEmpty());
}

TEST(CoastCheckTest, ARefusedClickIsExplainedByTheFirstErrorOfItsCellOrTheNearestAround) {
    // Errors in the cells [ 12, 7 ] and [ 14, 7 ]; the two ends between them are joined.
    const auto project = Cell_project("100,9 100,0 | 300,9 300,0 | 400,9 400,0 | 600,9 600,0");
    Add_polygon(*project, 12, 7, WaterPolygon, 0, 4);
    const Findings findings = Check_coast(*project);
    const auto point = [&](int x, int y) {
        const Finding* const found = Explaining_finding(
            findings, {Cell_edge_VTP(PictureColumn) + x, Cell_edge_VTP(PictureRow) + y});
        return found ? found->Point : 0;
    };
    EXPECT_EQ(point(100, 100), 1);
    EXPECT_EQ(point(260, 100), 1) << "the western neighbour is nearer";
    EXPECT_EQ(point(500, 100), 7) << "the eastern one";
    EXPECT_EQ(point(260, -9), 1);
    EXPECT_EQ(point(-300, 100), 0) << "two cells away";
}

TEST(CoastCheckTest, WhatIsChosenStaysOrGoesOnToTheNext) {
    const auto finding = [](int row, int point) {
        return Finding{.Cell = LOD13Cell{3, row}, .Point = point};
    };
    const Findings before{finding(5, 1), finding(5, 2), finding(5, 3), finding(6, 4)};
    const auto chosen = [&](int was, const Findings& after) {
        return Chosen_after(before, was, after);
    };
    EXPECT_EQ(chosen(1, before), 1);
    EXPECT_EQ(chosen(3, {finding(5, 1), finding(6, 4)}), 1);
    EXPECT_EQ(chosen(1, {finding(5, 11), finding(5, 13), finding(6, 14)}), 1) << "renumbered";
    EXPECT_EQ(chosen(2, {finding(5, 1), finding(5, 2), finding(6, 4)}), 2) << "the next cell";
    EXPECT_EQ(chosen(3, {finding(5, 1)}), 0) << "the last";
    EXPECT_EQ(chosen(3, {}), -1);
    EXPECT_EQ(chosen(-1, before), -1);
}

}  // namespace tidemark
