// Building polygons, cell by cell: lines and a click in, messages and vertices out.
#include "lwm/polygon_builder.h"

#include <gtest/gtest.h>

#include "fakes/cell_picture.h"
#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "lwm/polygon_candidates.h"
#include "model/drawing_modes.h"

namespace tidemark {
namespace {

using Texts = std::vector<std::string>;

// How some messages begin.
const std::string Linked = "2 VTP coastline segments terminate inside this LOD13 cell.";
const std::string Island = "One or more VTP segments which are entirely inside this cell";
const std::string NotAtEdge = "Fatal error - got to end of a line segment and it's not at an edge";
const std::string NoneAround = "The polygon has not been added: no piece of this LOD13 cell";

void Expect_messages(const RecordingMessages& messages, const Texts& begins) {
    ASSERT_EQ(messages.Shown.size(), begins.size()) << testing::PrintToString(messages.Texts());
    for (std::size_t i = 0; i < begins.size(); ++i)
        EXPECT_TRUE(messages.Shown[i].Text.starts_with(begins[i])) << messages.Shown[i].Text;
}

// The polygon built from the project as it is, and whether it is said to lie beside the click;
// empty: none. Nothing else may change.
std::string Built(Project& project, const Texts& begins = {}) {
    const auto before = std::make_unique<Project>(project);
    RecordingMessages messages;
    const LWMPolyResult result = Add_LWM_Poly(project, messages, HeightChoice::Conform, "");
    Expect_messages(messages, begins);
    EXPECT_EQ(project.LWMCount, before->LWMCount + (result.Added ? 1 : 0));
    if (!result.Added) return "";
    const auto outline = Points_text(LWM_outline(project, project.LWMCount));
    --project.LWMCount;
    before->PointInCellX = project.PointInCellX;
    before->PointInCellY = project.PointInCellY;
    EXPECT_TRUE(project == *before && !project.DataChanged);
    return outline + (result.StatusLine.empty() ? "" : " beside");
}

struct Case {
    std::string Lines;
    CellPoint Click;
    std::string Outline;
    Texts Messages = {};
};

void Expect_built(const std::vector<Case>& cases) {
    for (const auto& [lines, click, outline, messages] : cases) {
        SCOPED_TRACE(lines);
        EXPECT_EQ(Built(*Cell_project(lines, click), messages), outline);
    }
}

const std::string WholeCell = "0,0 255,0 255,255 0,255";

TEST(PolygonBuilderTest, CellsAreCutAlongTheirCoastlines) {
    const std::string across = "-20,98 60,110 200,120 300,156";
    const std::string back = "300,156 200,120 60,110 -20,98";
    const std::string south = "0,101 60,110 200,120 255,140 255,255 0,255";
    const std::string north = "255,140 200,120 60,110 0,101 0,0 255,0";
    const std::string strips = "80,-20 80,128 80,300 | 170,-20 170,128 170,300";
    const std::string bay = "100,-20 100,100 150,100 150,-20";
    Expect_built({
        {"", {5, 5}, WholeCell},
        {"5: " + across + "| 9: " + across, {5, 5}, WholeCell},  // no coastlines
        {"4: " + across, {100, 230}, south},
        {across, {100, 230}, south},
        {across, {100, 20}, north},
        {back, {100, 230}, south},
        {back, {100, 20}, north},
        {"-9,9 0,101 60,110 200,120 255,140 400,9", {100, 230}, south},
        {strips, {20, 60}, "80,0 80,128 80,255 0,255 0,0"},
        {strips, {120, 200}, "80,255 80,128 80,0 170,0 170,128 170,255"},  // first of two equal
        {strips, {230, 60}, "170,255 170,128 170,0 255,0 255,255"},
        {"100,-20 100,100 -20,100", {200, 200}, "0,100 100,100 100,0 255,0 255,255 0,255"},
        {bay, {125, 50}, "150,0 150,100 100,100 100,0"},
        {bay, {125, 200}, "100,0 100,100 150,100 150,0 255,0 255,255 0,255 0,0"},
        {"-9,128 60,100 0,0", {200, 200}, "0,124 60,100 0,0 255,0 255,255 0,255"},
        {"-9,128 60,100 0,0", {20, 70}, "0,0 60,100 0,124 0,0"},  // closed twice over
        {"265,128 200,100 255,255", {50, 50}, "255,124 200,100 255,255 0,255 0,0 255,0"},
        {"-20,98 300,156", {5, 5}, WholeCell},  // no trace of a step across
    });
}

TEST(PolygonBuilderTest, CoastlinesThatEndInsideTheCell) {
    const std::string south = "0,102 60,110 150,120 255,127 255,255 0,255";
    const std::string island = "60,60 90,60 90,90 60,90";
    Expect_built({
        {"-20,100 60,110 | 100,-20 100,99 150,-20",
         {200, 200},
         "",
         {"1 VTP coastline segment terminates inside this LOD13"}},
        {"-20,9 60,9 | -20,50 60,50 | 99,-20 99,99",
         {200, 200},
         "",
         {"3 VTP coastline segments terminate inside this"}},
        {island + "| 9,9 20,9 20,20 9,9", {200, 200}, island + " beside", {Island}},
        {"9,9 20,20 |" + island, {15, 15}, "9,9 20,20", {Island}},
        {island, {75, 60}, island, {Island}},
        {island, {75, 59}, island + " beside", {Island}},
        {"9,9 20,20 | 50,50", {5, 5}, WholeCell},  // lines of two points or one
        {"60,20 90,20 90,50 60,20 | -9,100 60,100 300,100",
         {200, 200},
         "0,100 60,100 255,100 255,255 0,255",
         {Linked}},
        {"0,100", {200, 200}, "0,100 0,100 0,0 255,0 255,255 0,255"},
    });
    for (const char* const west : {"-20,100 60,110", "60,110 -20,100"})
        for (const char* const east : {"150,120 300,130", "300,130 150,120"})
            Expect_built({{west + std::string("|") + east, {100, 230}, south, {Linked}},
                          {east + std::string("|") + west, {100, 230}, south, {Linked}}});
}

// A comb of `teeth` coastlines hanging from the top edge, and with that 2 boundary points each.
std::string Comb(int teeth) {
    std::string lines;
    for (int x = 10; x < 10 + 10 * teeth; x += 10) {
        const std::string left = std::to_string(x) + ",";
        const std::string right = std::to_string(x + 5) + ",";
        lines += left + "-20 " + left + "99 " + right + "99 " + right + "-20 | ";
    }
    return lines;
}

// One coastline of `points` points inside the cell.
std::string Zigzag(int points) {
    std::string line = "-100,100 ";
    for (int k = 1; k <= points; ++k) line += std::to_string(k + 20) + (k % 2 ? ",90 " : ",110 ");
    return line + "300,100";
}

TEST(PolygonBuilderTest, CellsThatAreRefused) {
    const std::string touching = "100,-9 100,99 150,0 150,-9 | 150,0 150,99 200,99 200,-9";
    Expect_built({
        {Comb(10), {62, 50}, "65,0 65,99 60,99 60,0"},
        {Comb(11), {62, 50}, "", {"This LOD13 cell contains too many coast"}},
        {"10,100 -90,-20 | 99,300 99,99 10,101",
         {50, 100},
         "",
         {Linked, "There is an invalid point"}},
        {Zigzag(199), {100, 200}, "", {"The polygon has not been added: the coastlines may have"}},
        {Comb(1), {0, 50}, "", {NoneAround}},
        {"-20,98 60,110 300,156", {50, 255}, "", {NoneAround}},
        {touching, {120, 40}, "150,0 100,99 100,0"},  // two ends on one spot
        {touching, {20, 20}, "", {NoneAround}},
    });
    for (const auto& [points, extra] : {std::pair{196, 0U}, {197, 1U}, {198, 2U}}) {
        const auto project = Cell_project(Zigzag(points), {100, 100});
        const auto outline = Built(
            *project, Texts(2 * extra, "Fatal error - polygon overflow"));  // once for every side
        EXPECT_EQ(std::count(outline.begin(), outline.end(), ','), 200);
    }
}

// Both pieces end beyond a corner that no search can find again.
TEST(PolygonBuilderTest, AWalkThatDoesNotComeBackIsDropped) {
    for (const std::string corner : {"255,0", "0,255"}) {
        RecordingMessages messages;
        const auto pieces =
            Candidate_polygons(*Cell_project("-9,128 60,100 " + corner, {60, 200}), messages);
        ASSERT_EQ(pieces.size(), 2U);
        EXPECT_TRUE(pieces[0].empty() != pieces[1].empty()) << corner;
        EXPECT_TRUE(messages.Shown.empty());
    }
}

TEST(PolygonBuilderTest, FlagsThatNoListRefreshHasMadeAgree) {
    const std::string through = " | 70,-9 90,90 70,300";
    const auto odd = Cell_project("-20,98 60,110" + through, {100, 230});
    odd->VTPSegEnd(2) = false;
    EXPECT_EQ(Built(*odd, {"Final polygon check failed - odd number of edge points!"}), "");

    const auto two = Cell_project("-20,98 60,110 | -9,200 9,200" + through, {200, 130});
    two->VTPSegEnd(2) = two->VTPSegEnd(4) = false;
    EXPECT_EQ(Built(*two, Texts(3, NotAtEdge)), "74,255 90,90 72,0 255,0 255,255");

    const auto no_edge = Cell_project("20,20 30,30 | 60,110 -20,100 | -9,200 9,200", {5, 105});
    no_edge->VTPSegEnd(2) = no_edge->VTPSegEnd(6) = false;
    EXPECT_EQ(Built(*no_edge, {Linked, NotAtEdge, NotAtEdge}), "0,102 60,110 20,20 30,30 beside");
}

TEST(PolygonBuilderTest, PointsTooFarAwayForTheArithmeticStopTheBuild) {
    const auto project = Cell_project("50,50 99,99");
    project->VTPPoint(2, 0) = -32768;
    EXPECT_THROW(Built(*project), Overflow);
    EXPECT_EQ(project->LWMCount, 0);
}

TEST(PolygonBuilderTest, TheRecordHoldsCellTypeAndHeight) {
    struct HeightCase {
        std::string Text, TextAfter;
        std::optional<int> Stored;  // none: refused
        HeightChoice Choice = HeightChoice::Explicit;
    };
    for (const auto& [text, after, stored, choice] :
         {HeightCase{"12.5", "12", 12},
          {"13.5", "14", 14},
          {"-3", "-3", {}},
          {"10000.4 m", "10000", 10000},
          {"10000.6", "10001", {}},
          {"deep", "0", 0},
          {"-0.4", "0", 0},
          {"32767.5", "32767.5", {}},
          {"-3", "-3", ConformsHeight, HeightChoice::Conform}}) {
        const auto project = Cell_project("");
        project->DrawMode = LandPolygon;
        RecordingMessages messages;
        const LWMPolyResult result = Add_LWM_Poly(*project, messages, choice, text);
        EXPECT_EQ(result.HeightText, after);
        EXPECT_EQ(result.Added, stored.has_value()) << text;
        Expect_messages(messages,
                        stored ? Texts{} : Texts{"Height value must be in the range 0-10000"});
        EXPECT_EQ(project->LWMHeight(1), stored.value_or(0));
        EXPECT_EQ(project->LWMType(1), stored ? LandPolygon : 0);
        EXPECT_EQ(project->LWMCell(1, 0), stored ? PictureColumn : 0);
        EXPECT_EQ(project->LWMCell(1, 1), stored ? PictureRow : 0);
    }
}

TEST(PolygonBuilderTest, A201stPolygonIsRefused) {
    const auto project = Cell_project("");
    for (int i = 0; i < 199; ++i) Add_polygon(*project, 1, 1, WaterPolygon, 0, 4);
    EXPECT_EQ(Built(*project), WholeCell);
    ++project->LWMCount;
    EXPECT_EQ(Built(*project, {"The polygon has not been added: a project holds at most 200"}), "");
}

}  // namespace
}  // namespace tidemark
