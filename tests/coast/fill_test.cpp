// Badly drawn coasts are mended and filled both ways: every cell is built, and all of it fits.
#include "coast/fill.h"

#include "coast/cell_mask.h"
#include "coast/check.h"
#include "coast/coast_survey.h"
#include "coast/mend.h"
#include "fakes/random_coast.h"
#include "fakes/rules_test.h"
#include "model/records.h"

namespace tidemark {

static std::string Errors_of(const Project& project) {
    std::string lines;
    for (const Finding& finding : Check_coast(project))
        if (finding.IsError) lines += Finding_line(finding) + "\n";
    return lines;
}

// Leaves the project with one polygon: a piece of the first cell that a coastline crosses and that
// `filled` does not have yet. False when there is none.
static bool Begin_polygon(Project& project, const std::map<LOD13Cell, CellMask>& filled) {
    project.LWMCount = 0;
    const CoastSurvey survey(project);
    for (const SurveyedCell& cell : survey.Cells()) {
        if (cell.Crossings.empty() || filled.contains(cell.Cell)) continue;
        Store_polygon(project, 1, cell.Cell.Column, cell.Cell.Row, {WaterPolygon, 0},
                      cell.Candidates.front());
        return true;
    }
    return false;
}

// Two columns of cells at a time, as all polygons may be more than a project holds.
static void Expect_no_errors(Project& project, const std::vector<PlannedPolygon>& polygons) {
    for (int column = 0; column < LastLOD13; ++column) {
        project.LWMCount = 0;
        for (const auto& [cell, kind, outline] : polygons)
            if (cell.Column == column || cell.Column == column + 1)
                Store_polygon(project, project.LWMCount + 1, cell.Column, cell.Row, kind, outline);
        EXPECT_EQ(Errors_of(project), "");
    }
}

static void Expect_filled_both_ways(Project& project) {
    std::map<LOD13Cell, CellMask> filled;
    std::vector<PlannedPolygon> polygons;
    while (Begin_polygon(project, filled)) {
        const PlannedPolygon first{{project.LWMCell(1, 0), project.LWMCell(1, 1)},
                                   {WaterPolygon, 0},
                                   Stored_outline(project, 1)};
        FillPlan plan = Plan_fill(project, 1, {});
        EXPECT_EQ(plan.Refusal, "");
        EXPECT_EQ(plan.Passed, 1);
        for (const FillStop& stop : plan.Stops) ADD_FAILURE() << stop.Why;
        plan.Polygons.push_back(first);
        for (const PlannedPolygon& polygon : plan.Polygons) {
            const CellMask mask(polygon.Vertices);
            EXPECT_EQ(filled[polygon.Cell].Common_area(mask), 0);
            filled[polygon.Cell] |= mask;
            polygons.push_back(polygon);
        }
    }
    for (const auto& [cell, mask] : filled)
        EXPECT_EQ(mask.Area(), MaskSize * MaskSize) << cell.Column << ", " << cell.Row;
    Expect_no_errors(project, polygons);
}

static void Drop_point(Project& project, int point) {
    for (int i = point; i < project.VTPCount; ++i)
        PointTable::Set(project, i, PointTable::Get(project, i + 1));
    PointTable::Set_count(project, project.VTPCount - 1);
    Repair_segments(project);
}

TEST(FillTest, RandomCoastsAreMendedAndFilledBothWays) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        SCOPED_TRACE(seed);
        const auto project = Project_of(RandomCoast(seed).Lines());
        EXPECT_NE(Errors_of(*project), "");
        EXPECT_EQ(Mend_all(*project).Refusal, "");
        EXPECT_EQ(Errors_of(*project), "");
        Expect_filled_both_ways(*project);
    }
}

TEST(FillTest, APolygonOfTheOtherKindIsInTheWay) {
    const auto project = Cell_project("0,110 60,110 255,110");
    EXPECT_TRUE(Begin_polygon(*project, {}));
    Fill(*project, Plan_fill(*project, 1, {}));
    ASSERT_EQ(project->LWMCount, 2);
    project->LWMType(2) = project->LWMType(1);
    const FillPlan plan = Plan_fill(*project, 1, {});
    ASSERT_EQ(plan.Stops.size(), 1U);
    EXPECT_EQ(plan.Stops[0].Why, "polygon 2 is in the way");
}

TEST(FillTest, ThinnedGoldenGateIsMendedAndFilledBothWays) {
    const auto project = std::make_unique<Project>();
    EXPECT_FALSE(Read_project(Source_file("sample/golden-gate.TDM"), *project).Error);
    project->LWMCount = 0;
    Expect_filled_both_ways(*project);
    for (const int every : {3, 2}) {  // of the points between a segment's first and last two
        for (int i = project->VTPCount - 2; i > 2; i -= every)
            if (!project->VTPSegStart(i - 1) && !project->VTPSegStart(i) &&
                !project->VTPSegEnd(i) && !project->VTPSegEnd(i + 1))
                Drop_point(*project, i);
        Mend_all(*project);
        Expect_filled_both_ways(*project);
    }
}

}  // namespace tidemark
