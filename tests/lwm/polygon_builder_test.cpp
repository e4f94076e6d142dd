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

constexpr const char* WholeCell = "0,0 255,0 255,255 0,255";

constexpr const char* OneTerminal =
    "1 VTP coastline segment terminates inside this LOD13 cell.\n"
    "Tidemark is unable to resolve this to create LWM polygons in this cell.\n"
    "Please remove this segment, or move the end point to one edge of this cell or an adjacent "
    "one.";
constexpr const char* ThreeTerminals =
    "3 VTP coastline segments terminate inside this LOD13 cell.\n"
    "Tidemark is unable to resolve these to create LWM polygons in this cell.\n"
    "Please remove these segments, or move the end points to one edge of this cell or an adjacent "
    "one.";
constexpr const char* Linked =
    "2 VTP coastline segments terminate inside this LOD13 cell.\n"
    "Tidemark has assumed that these segments link together in order to create the LWM polygon in "
    "this cell.";
constexpr const char* Island =
    "One or more VTP segments which are entirely inside this cell have detected. \n"
    "Tidemark will draw a polygon around the points of the first VTP segment detected.";
constexpr const char* Odd = "Final polygon check failed - odd number of edge points!";
constexpr const char* TooMany =
    "This LOD13 cell contains too many coast segments for Tidemark to handle!";
constexpr const char* NotAtEdge =
    "Fatal error - got to end of a line segment and it's not at an edge!!!";
constexpr const char* Overflowing =
    "Fatal error - polygon overflow\n"
    "Likely cause is a VTP segment without a point in a cell through which it passes";
constexpr const char* Invalid =
    "There is an invalid point in this polygon - it has not been added to the LWM list.\n"
    "This is most likely due to a coast segment passing through an LOD13 cell WITHOUT a point "
    "within that cell.";
constexpr const char* NoneAround =
    "The polygon has not been added: no piece of this LOD13 cell surrounds the place that was "
    "clicked.";
constexpr const char* TooManyPoints =
    "The polygon has not been added: the coastlines may have at most 200 points in one LOD13 cell.";
constexpr const char* ListFull =
    "The polygon has not been added: a project holds at most 200 polygons.";
constexpr const char* BadHeight = "Height value must be in the range 0-10000";

using Texts = std::vector<std::string>;

struct Case {
    const char* What;
    std::string Lines;
    CellPoint Click;
    Texts Messages;
    std::string Outline;  // of the polygon appended; empty: none
};

// What is built from the project as it is, after checking what must never happen.
std::string Built(Project& project, RecordingMessages& messages) {
    const auto before = std::make_unique<Project>(project);
    const LWMPolyResult result = Add_LWM_Poly(project, messages, HeightChoice::Conform, "as typed");
    EXPECT_EQ(result.HeightText, "as typed");
    EXPECT_FALSE(project.DataChanged);
    EXPECT_EQ(project.LWMCount, before->LWMCount + (result.Added ? 1 : 0));
    const std::string outline =
        result.Added ? Points_text(LWM_outline(project, project.LWMCount)) : "";
    // Whatever was appended apart, only these two change.
    before->PointInCellX = project.PointInCellX;
    before->PointInCellY = project.PointInCellY;
    if (result.Added) --project.LWMCount;
    EXPECT_EQ(project, *before);
    return outline;
}

void Expect_built(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.What);
        const auto project = Cell_project(c.Lines, c.Click);
        RecordingMessages messages;
        EXPECT_EQ(Built(*project, messages), c.Outline);
        EXPECT_EQ(messages.Texts(), c.Messages);
        for (const Message& message : messages.Shown) {
            const bool informs = message.Text == Linked || message.Text == Island;
            EXPECT_EQ(message.Title, informs ? "Tidemark - Information" : "Tidemark - Warning");
        }
    }
}

TEST(PolygonBuilderTest, CellsAreCutAlongTheirCoastlines) {
    const std::string across = "-20,98 60,110 200,120 300,156";
    const std::string back = "300,156 200,120 60,110 -20,98";
    const std::string south = "0,101 60,110 200,120 255,140 255,255 0,255";
    const std::string north = "255,140 200,120 60,110 0,101 0,0 255,0";
    const std::string strips = "80,-20 80,128 80,300 | 170,-20 170,128 170,300";
    Expect_built({
        {"no points at all", "", {5, 5}, {}, WholeCell},
        {"roads and rivers do not cut", "5: " + across + "| 9: " + across, {5, 5}, {}, WholeCell},
        {"a river coastline does", "4: " + across, {100, 230}, {}, south},
        {"the southern piece", across, {100, 230}, {}, south},
        {"the northern piece", across, {100, 20}, {}, north},
        {"drawn the other way, south", back, {100, 230}, {}, south},
        {"drawn the other way, north", back, {100, 20}, {}, north},
        {"beginning and ending on the boundary",
         "0,101 60,110 200,120 255,140",
         {100, 230},
         {},
         south},
        {"points on the boundary on the way",
         "-9,9 0,101 60,110 200,120 255,140 400,9",
         {100, 230},
         {},
         south},
        {"western strip", strips, {20, 60}, {}, "80,0 80,128 80,255 0,255 0,0"},
        {"middle strip, the first of two equal candidates",
         strips,
         {120, 200},
         {},
         "80,255 80,128 80,0 170,0 170,128 170,255"},
        {"eastern strip", strips, {230, 60}, {}, "170,255 170,128 170,0 255,0 255,255"},
        {"round a corner",
         "100,-20 100,100 -20,100",
         {200, 200},
         {},
         "0,100 100,100 100,0 255,0 255,255 0,255"},
        {"in and out of one edge",
         "100,-20 100,100 150,100 150,-20",
         {125, 50},
         {},
         "150,0 150,100 100,100 100,0"},
        {"round the whole cell",
         "100,-20 100,100 150,100 150,-20",
         {125, 200},
         {},
         "100,0 100,100 150,100 150,0 255,0 255,255 0,255 0,0"},
        {"to the north-west corner, which is the top edge's",
         "-9,128 60,100 0,0",
         {200, 200},
         {},
         "0,124 60,100 0,0 255,0 255,255 0,255"},
        {"and its corner piece, closed twice over",
         "-9,128 60,100 0,0",
         {20, 70},
         {},
         "0,0 60,100 0,124 0,0"},
        {"to the south-east corner, which is the bottom edge's",
         "265,128 200,100 255,255",
         {50, 50},
         {},
         "255,124 200,100 255,255 0,255 0,0 255,0"},
        {"no trace of a step across", "-20,98 300,156", {5, 5}, {}, WholeCell},
    });
}

TEST(PolygonBuilderTest, CoastlinesThatEndInsideTheCell) {
    const std::string south = "0,102 60,110 150,120 255,127 255,255 0,255";
    const std::string north = "255,127 150,120 60,110 0,102 0,0 255,0";
    const std::string west[] = {"-20,100 60,110", "60,110 -20,100"};
    const std::string east[] = {"150,120 300,130", "300,130 150,120"};
    std::vector<Case> cases{
        {"one", "-20,100 60,110 | 100,-20 100,99 150,-20", {200, 200}, {OneTerminal}, ""},
        {"three", "-20,9 60,9 | -20,50 60,50 | 99,-20 99,99", {200, 200}, {ThreeTerminals}, ""},
        {"an island, the first of two",
         "60,60 90,60 90,90 60,90 | 9,9 20,9 20,20 9,9",
         {200, 200},
         {Island},
         "60,60 90,60 90,90 60,90"},
        {"an island after a line of two points",
         "9,9 20,20 | 60,60 90,60 90,90",
         {200, 200},
         {Island},
         "9,9 20,20"},
        {"only lines of two points or one", "9,9 20,20 | 50,50", {5, 5}, {}, WholeCell},
        {"an island beside a coast is taken for two ends",
         "60,20 90,20 90,50 60,20 | -9,100 60,100 300,100",
         {200, 200},
         {Linked},
         "0,100 60,100 255,100 255,255 0,255"},
        {"a single point on the boundary",
         "0,100",
         {200, 200},
         {},
         "0,100 0,100 0,0 255,0 255,255 0,255"},
    };
    for (const int first : {0, 1})
        for (const int second : {0, 1})
            for (const bool east_first : {false, true}) {
                const std::string w = west[first];
                const std::string e = east[second];
                const std::string lines = east_first ? e + "|" + w : w + "|" + e;
                cases.push_back({lines.c_str(), lines, {100, 230}, {Linked}, south});
                cases.push_back({lines.c_str(), lines, {100, 20}, {Linked}, north});
                cases[cases.size() - 1].What = cases[cases.size() - 2].What = "two, joined";
            }
    Expect_built(cases);
}

// A comb of `teeth` coastlines hanging from the top edge, and with that 2 boundary points each.
std::string Comb(int teeth) {
    std::string lines;
    for (int tooth = 0; tooth < teeth; ++tooth) {
        const std::string x = std::to_string(10 + 20 * tooth);
        const std::string right = std::to_string(15 + 20 * tooth);
        lines += x + ",-9 " + x + ",99 " + right + ",99 " + right + ",-9 | ";
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
    const auto overflows = [](std::size_t count) { return Texts(count, Overflowing); };
    Expect_built({
        {"20 boundary points", Comb(10), {112, 50}, {}, "115,0 115,99 110,99 110,0"},
        {"22 boundary points", Comb(11), {112, 50}, {TooMany}, ""},
        {"a step past a corner",
         "10,100 -90,-20 | 99,300 99,99 10,101",
         {50, 100},
         {Linked, Invalid},
         ""},
        {"201 points in the cell", Zigzag(199), {100, 200}, {TooManyPoints}, ""},
        {"click on the western edge", Comb(1), {0, 50}, {NoneAround}, ""},
        {"click on the southern edge", "-20,98 60,110 300,156", {50, 255}, {NoneAround}, ""},
    });
    for (const auto& [points, extra] : {std::pair{196, 0U}, {197, 1U}, {198, 2U}}) {
        const auto project = Cell_project(Zigzag(points), {100, 100});
        RecordingMessages messages;
        const std::string outline = Built(*project, messages);
        EXPECT_EQ(messages.Texts(), overflows(2 * extra));  // once for every side
        EXPECT_EQ(std::count(outline.begin(), outline.end(), ','), 200);
    }
}

// Walks that miss their start: both pieces end beyond a corner that no search can find again.
TEST(PolygonBuilderTest, WalksThatDoNotComeBackAreDropped) {
    for (const char* const corner : {"255,0", "0,255"}) {
        const auto project = Cell_project(std::string("-9,128 60,100 ") + corner, {60, 200});
        RecordingMessages messages;
        const std::vector<Outline> candidates = Candidate_polygons(*project, messages);
        ASSERT_EQ(candidates.size(), 2U);
        EXPECT_TRUE(candidates[0].empty() != candidates[1].empty()) << corner;
        EXPECT_TRUE(messages.Shown.empty());
    }
    const std::string touching = "100,-9 100,99 150,0 150,-9 | 150,0 150,99 200,99 200,-9";
    const std::string west = "-9,50 100,50 150,0 |";
    const std::string east = "150,0 200,50 300,50 |";
    const std::string corner = "-9,20 30,20 50,-9";
    Expect_built({
        {"two ends on one spot, a piece", touching, {120, 40}, {}, "150,0 100,99 100,0"},
        {"two ends on one spot, around them", touching, {20, 20}, {NoneAround}, ""},
        {"from the later of two ends on one spot the walk goes on",
         east + west + corner,
         {60, 20},
         {},
         "0,20 30,20 44,0 150,0 100,50 0,50"},
        {"the earlier of them as the start",
         west + east + corner,
         {60, 20},
         {},
         "150,0 100,50 0,50 0,20 30,20 44,0"},
        {"both ends past a corner", "350,-20 250,5 5,250 -100,290", {50, 50}, {NoneAround}, ""},
    });
}

// Flags that no list refresh has made agree.
TEST(PolygonBuilderTest, TablesThatWereNotRepaired) {
    RecordingMessages messages;
    const auto cut_off = Cell_project("-20,98 60,110 200,120 300,156", {100, 230});
    cut_off->VTPSegEnd(2) = true;  // two coastlines in one: 60,110 is an end and goes on
    EXPECT_EQ(Built(*cut_off, messages), "");
    EXPECT_EQ(messages.Texts(), (Texts{OneTerminal}));

    messages.Shown.clear();
    const auto unended = Cell_project("-20,98 60,110 | 70,-9 90,90 70,300", {100, 230});
    unended->VTPSegEnd(2) = false;  // the chain ends at a middle point
    EXPECT_EQ(Built(*unended, messages), "");
    EXPECT_EQ(messages.Texts(), (Texts{Odd}));

    messages.Shown.clear();
    const auto both = Cell_project("-20,98 60,110 | -9,200 9,200 | 70,-9 90,90 70,300", {200, 130});
    both->VTPSegEnd(2) = both->VTPSegEnd(4) = false;
    EXPECT_EQ(Built(*both, messages), "74,255 90,90 72,0 255,0 255,255");
    EXPECT_EQ(messages.Texts(), Texts(3, NotAtEdge));

    messages.Shown.clear();
    const auto no_edge = Cell_project("20,20 30,30 | 60,110 -20,100 | -9,200 9,200", {5, 105});
    no_edge->VTPSegEnd(2) = no_edge->VTPSegEnd(6) = false;  // to be turned round, but to no edge
    EXPECT_EQ(Built(*no_edge, messages), "0,102 60,110 20,20 30,30");  // as far as it came
    EXPECT_EQ(messages.Texts(), (Texts{Linked, NotAtEdge, NotAtEdge}));

    messages.Shown.clear();
    const auto unstarted = Cell_project("-20,98 60,110 300,156", {100, 230});
    unstarted->VTPSegStart(1) = false;
    EXPECT_EQ(Built(*unstarted, messages), WholeCell);
}

TEST(PolygonBuilderTest, PointsTooFarAwayForTheArithmeticStopTheBuild) {
    const auto project = Cell_project("50,50 99,99");
    project->VTPPoint(2, 0) = -32768;
    const auto before = std::make_unique<Project>(*project);
    RecordingMessages messages;
    EXPECT_THROW(Add_LWM_Poly(*project, messages, HeightChoice::Conform, ""), Overflow);
    EXPECT_EQ(project->LWMCount, 0);
    EXPECT_TRUE(messages.Shown.empty());
}

TEST(PolygonBuilderTest, TheRecordHoldsCellTypeAndHeight) {
    const std::string big = "32767.5";
    struct HeightCase {
        HeightChoice Choice;
        std::string Text, TextAfter;
        std::optional<int> Stored;  // none: refused
    };
    const auto set = HeightChoice::Explicit;
    for (const auto& [choice, text, after, stored] :
         {HeightCase{set, "12.5", "12", 12},
          {set, "13.5", "14", 14},
          {set, "-3", "-3", {}},
          {set, "10000", "10000", 10000},
          {set, "10000.4 m", "10000", 10000},
          {set, "10000.6", "10001", {}},
          {set, "deep", "0", 0},
          {set, "-0.4", "0", 0},
          {set, big, big, {}},
          {set, "1e99", "1e99", {}},
          {HeightChoice::Conform, "-3", "-3", ConformsHeight}}) {
        const auto project = Cell_project("");
        project->DrawMode = LandPolygon;
        RecordingMessages messages;
        const LWMPolyResult result = Add_LWM_Poly(*project, messages, choice, text);
        EXPECT_EQ(result.HeightText, after);
        EXPECT_EQ(result.Added, stored.has_value()) << text;
        EXPECT_EQ(messages.Texts(), stored ? Texts{} : Texts{BadHeight});
        EXPECT_EQ(project->LWMHeight(1), stored.value_or(0));
        EXPECT_EQ(project->LWMType(1), stored ? LandPolygon : 0);
        EXPECT_EQ(project->LWMCell(1, 0), stored ? PictureColumn : 0);
        EXPECT_EQ(project->LWMCell(1, 1), stored ? PictureRow : 0);
    }
}

TEST(PolygonBuilderTest, A201stPolygonIsRefused) {
    const auto project = Cell_project("");
    for (int i = 0; i < 199; ++i) Add_polygon(*project, 1, 1, WaterPolygon, 0, 4);
    RecordingMessages messages;
    EXPECT_EQ(Built(*project, messages), WholeCell);
    ++project->LWMCount;
    EXPECT_EQ(Built(*project, messages), "");
    EXPECT_EQ(messages.Texts(), (Texts{ListFull}));
}

TEST(PolygonBuilderTest, APolygonBesideTheClickIsRemarkedOn) {
    struct RemarkCase {
        const char* Lines;
        CellPoint Click;
        bool Remark;
    };
    for (const auto& [lines, click, remark] : {RemarkCase{"", {0, 0}, false},
                                               {"-20,98 60,110 300,156", {100, 230}, false},
                                               {"60,60 90,60 90,90 60,90", {75, 60}, false},
                                               {"60,60 90,60 90,90 60,90", {75, 59}, true},
                                               {"100,-20 100,100 -20,100", {99, 99}, false},
                                               {"100,-20 60,60 -20,100", {80, 80}, true}}) {
        const auto project = Cell_project(lines, click);
        RecordingMessages messages;
        const LWMPolyResult result = Add_LWM_Poly(*project, messages, HeightChoice::Conform, "");
        EXPECT_TRUE(result.Added);
        EXPECT_EQ(!result.StatusLine.empty(), remark) << lines << " " << Points_text({{click}});
    }
}

}  // namespace
}  // namespace tidemark
