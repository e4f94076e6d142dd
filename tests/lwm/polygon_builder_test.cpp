// Building polygons, cell by cell: lines and a click in, messages and vertices out.
#include "lwm/polygon_builder.h"

#include "fakes/rules_test.h"
#include "lwm/cell_points.h"
#include "model/text_forms.h"

namespace tidemark {

// What is said, and the polygon that is built. Nothing else may change.
static std::string Built(Project& project, CellPoint click = {128, 128}) {
    Project before = project;
    RecordingMessages messages;
    const LWMPolyResult result =
        Add_LWM_Poly(project, Cell_session(click), messages, HeightChoice::Conform, "");
    std::string built;
    const auto add = [&](const std::string& text) { built += (built.empty() ? "" : "\n") + text; };
    for (const Message& message : messages.Shown) add(message.Text);
    EXPECT_EQ(project.LWMCount, before.LWMCount + (result.Added ? 1 : 0));
    if (!result.Added) return built;
    const Outline outline = Stored_outline(project, project.LWMCount);
    --project.LWMCount;
    before.PointInCellX = project.PointInCellX;
    before.PointInCellY = project.PointInCellY;
    EXPECT_TRUE(project == before);
    add(outline.size() < 50 ? Points_text(outline) : std::to_string(outline.size()) + " points");
    return built + (result.StatusLine.empty() ? "" : " beside");
}

TEST(PolygonBuilderTest, AStepCrossesTheBoundaryWhereItsLineDoes) {
    Expect_cases("lwm/data/crossings.txt", [](const Given& given) {
        const auto project = Cell_project(given[0]);
        CellPoints points(*project, Cell_session());
        points.Point_in_cell(1);
        return Points_text({{points.Crossing(2)}});
    });
}

TEST(PolygonBuilderTest, CellsAreCutAlongTheirCoastlines) {
    Expect_cases("lwm/data/cells.txt", [](const Given& given) {
        const auto project = Cell_project(given.at(1));
        std::istringstream points(given.size() > 2 ? given[2] : "");
        for (int point = 0; points >> point;) project->VTPSegEnd(point) = false;
        return Built(*project, Points_from(given[0])[0]);
    });
}

TEST(PolygonBuilderTest, ACoastlineOfMorePointsThanAPolygonHoldsIsToldOnceForEverySide) {
    const std::string overflow =
        "Fatal error - polygon overflow\nLikely cause is a VTP segment without a point in a cell "
        "through which it passes\n";
    for (const auto& [points, y, built] :
         {std::tuple{196, 100, std::string("200 points")},
          {197, 100, overflow + overflow + "200 points"},
          {198, 100, overflow + overflow + overflow + overflow + "200 points"},
          {199, 200,
           "The polygon has not been added: the coastlines may "
           "have at most 200 points in one LOD13 cell."}}) {
        std::string line = "-100,100";
        for (int x = 21; x <= points + 20; ++x)
            line += " " + std::to_string(x) + (x % 2 ? ",90" : ",110");
        EXPECT_EQ(Built(*Cell_project(line + " 300,100"), {100, y}), built);
    }
}

TEST(PolygonBuilderTest, TheRecordHoldsCellTypeAndHeight) {
    const auto add = [](HeightChoice choice, const std::string& typed) {
        const auto project = Cell_project("");
        Session session = Cell_session();
        session.DrawMode = LandPolygon;
        RecordingMessages messages;
        const std::string text = Whole_number_text(typed);  // as the height box shows it
        const LWMPolyResult result = Add_LWM_Poly(*project, session, messages, choice, typed);
        EXPECT_FALSE(result.IsRefusedByCoast);
        if (!result.Added) return text + " " + messages.Said();
        EXPECT_EQ(project->LWMType(1), LandPolygon);
        EXPECT_EQ(project->LWMCell(1, 0), PictureColumn);
        EXPECT_EQ(project->LWMCell(1, 1), PictureRow);
        return text + " stored " + Int_text(project->LWMHeight(1));
    };
    Expect_cases("lwm/data/heights.txt",
                 [&](const Given& given) { return add(HeightChoice::Explicit, given[0]); });
    EXPECT_EQ(add(HeightChoice::Conform, "-3"), "-3 stored -9999");
}

TEST(PolygonBuilderTest, A201stPolygonIsRefused) {
    const auto project = Cell_project("");
    for (int i = 0; i < 199; ++i) Add_polygon(*project, 1, 1, WaterPolygon, 0, 4);
    EXPECT_EQ(Built(*project), "0,0 255,0 255,255 0,255");
    ++project->LWMCount;
    EXPECT_EQ(Built(*project),
              "The polygon has not been added: a project holds at most 200 polygons.");
}

}  // namespace tidemark
