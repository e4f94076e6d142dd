// Building polygons, cell by cell: lines and a click in, messages and vertices out.
#include "lwm/polygon_builder.h"

#include "fakes/cases.h"
#include "fakes/cell_picture.h"
#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "model/drawing_modes.h"
#include "model/text_forms.h"

namespace tidemark {
namespace {

// "comb 3": as many bays at the top edge, and with that 2 boundary points each. "zigzag 5": one
// coastline with as many points inside the cell. Any other text is lines itself.
std::string Lines_of(const std::string& text) {
    std::istringstream words(text);
    std::string word, lines;
    int count = 0;
    words >> word >> count;
    if (word == "zigzag") {
        lines = "-100,100 ";
        for (int x = 21; x <= count + 20; ++x)
            lines += std::to_string(x) + (x % 2 ? ",90 " : ",110 ");
        return lines + "300,100";
    }
    if (word != "comb") return text;
    for (int x = 10; x < 10 + 10 * count; x += 10) {
        const std::string left = std::to_string(x) + ",", right = std::to_string(x + 5) + ",";
        lines += left + "-20 " + left + "99 " + right + "99 " + right + "-20 | ";
    }
    return lines;
}

// How the messages begin, and the polygon that is built. Nothing else may change.
std::string Built(Project& project) {
    Project before = project;
    RecordingMessages messages;
    const LWMPolyResult result = Add_LWM_Poly(project, messages, HeightChoice::Conform, "");
    std::string built;
    const auto add = [&](const std::string& text) { built += (built.empty() ? "" : "\n") + text; };
    for (const Message& message : messages.Shown) add(message.Text.substr(0, 52) + "...");
    EXPECT_EQ(project.LWMCount, before.LWMCount + (result.Added ? 1 : 0));
    if (!result.Added) return built;
    const Outline outline = LWM_outline(project, project.LWMCount);
    --project.LWMCount;
    before.PointInCellX = project.PointInCellX;
    before.PointInCellY = project.PointInCellY;
    EXPECT_TRUE(project == before && !project.DataChanged);
    add(outline.size() < 50 ? Points_text(outline) : std::to_string(outline.size()) + " points");
    return built + (result.StatusLine.empty() ? "" : " beside");
}

TEST(PolygonBuilderTest, CellsAreCutAlongTheirCoastlines) {
    Expect_cases("lwm/data/cells.txt", [](const Given& given) {
        const auto project = Cell_project(Lines_of(given.at(1)), Points_from(given[0])[0]);
        std::istringstream points(given.size() > 2 ? given[2] : "");
        for (int point = 0; points >> point;) project->VTPSegEnd(point) = false;
        return Built(*project);
    });
}

TEST(PolygonBuilderTest, TheRecordHoldsCellTypeAndHeight) {
    const auto add = [](HeightChoice choice, const std::string& typed) {
        const auto project = Cell_project("");
        project->DrawMode = LandPolygon;
        RecordingMessages messages;
        const auto [text, is_added, remark] = Add_LWM_Poly(*project, messages, choice, typed);
        if (!is_added) return text + " " + messages.Said();
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
    EXPECT_EQ(Built(*project), "The polygon has not been added: a project holds at m...");
}

}  // namespace
}  // namespace tidemark
