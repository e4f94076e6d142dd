// The tutorial's own numbers: a reader who clicks them gets what it promises.
#include <regex>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/environment.h"
#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "lwm/polygon_builder.h"
#include "model/drawing_modes.h"
#include "output/lwm_text.h"
#include "output/vtp_text.h"
#include "standin/assembler_check.h"

namespace tidemark {
namespace {

// The rows of its table of points, in VTP units.
std::vector<std::pair<int, int>> Points_of_the_table() {
    const std::string text = File_content(TIDEMARK_SOURCE_DIR "/Documentation/Tutorial.html");
    const std::regex row(R"(<code>\[ (\d+), (\d+) \]</code></td><td>(\d+), (\d+)</td>)");
    std::vector<std::pair<int, int>> points;
    for (std::sregex_iterator match(text.begin(), text.end(), row), end; match != end; ++match) {
        const auto number = [&](std::size_t i) { return std::stoi((*match)[i]); };
        points.emplace_back(FirstVTP + CellSizeVTP * number(1) + number(3),
                            FirstVTP + CellSizeVTP * number(2) + number(4));
    }
    return points;
}

void Click(Project& project, int column, int x, int y, int mode, Messages& messages) {
    project.CursorCellX = column;
    project.CursorCellY = 14;
    project.CursorInCellX = x;
    project.CursorInCellY = y;
    project.DrawMode = mode;
    const auto choice = mode == WaterPolygon ? HeightChoice::Explicit : HeightChoice::Conform;
    EXPECT_EQ(Add_LWM_Poly(project, messages, choice, "0").StatusLine, "");
}

TEST(TutorialTest, ItsCoastlineGivesWaterAndLandInAllFiveCells) {
    Project project;
    project.AreaLeftVTP = project.AreaTopVTP = FirstVTP;
    const auto points = Points_of_the_table();
    ASSERT_EQ(points.size(), 9U);
    Add_segment(project, 2, 40, points);

    RecordingMessages messages;
    for (int column = 23; column <= 27; ++column)
        Click(project, column, 180, 40, WaterPolygon, messages);
    for (int column = 23; column <= 27; ++column)
        Click(project, column, 60, 240, LandPolygon, messages);
    EXPECT_EQ(messages.Texts(), std::vector<std::string>());
    EXPECT_EQ(project.LWMCount, 10);
    EXPECT_FALSE(Check_assembler(VTP_file_bytes(project)));
    EXPECT_FALSE(Check_assembler(LWM_file_bytes(project)));
}

}  // namespace
}  // namespace tidemark
