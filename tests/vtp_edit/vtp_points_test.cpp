// Editing the VTP points: the list lines tell what became of points and segments.
#include "vtp_edit/vtp_points.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "model/segments.h"
#include "model/text_forms.h"
#include "vtp_edit/vtp_list.h"

namespace tidemark {
namespace {

using Lines = std::vector<std::string>;

Lines Refreshed_lines(Project& project) {
    Repair_segments(project);
    return VTP_list_lines(project);
}

// Three points of coast, one of plain edge and two of road; each point has a mode and width of its
// own besides.
Project Three_segments() {
    Project project;
    Add_segment(project, 1, 80, {{5000, 6000}, {5010, 6005}, {5020, 6010}});
    Add_segment(project, 0, 120, {{5100, 6100}});
    Add_segment(project, 9, 20, {{5200, 6200}, {5210, 6205}});
    project.VTPMode(2) = 4;
    project.VTPWidth(2) = 42;
    return project;
}

const Lines ThreeSegments{"[ 5000, 6000 Coast (waves)", "  5010, 6005",
                          "  5020, 6010 ] W=80",        "[ 5100, 6100 Plain ] W=120",
                          "[ 5200, 6200 Road (2 lane)", "  5210, 6205 ] W=20"};

Lines Changed(Lines lines, int position, const std::string& line) {
    lines[static_cast<std::size_t>(position)] = line;
    return lines;
}

Lines With(Lines lines, int position, const std::string& line) {
    lines.insert(lines.begin() + position, line);
    return lines;
}

Lines Without(Lines lines, int position) {
    lines.erase(lines.begin() + position);
    return lines;
}

TEST(VTPListTest, LinesShowSegmentsAndTheCodeOfAModeWithoutAName) {
    Project project = Three_segments();
    project.VTPSegStart(1) = false;
    project.VTPSegEnd(2) = true;
    EXPECT_EQ(Refreshed_lines(project), ThreeSegments);
    project.VTPMode(4) = 8;
    EXPECT_EQ(Refreshed_lines(project)[3], "[ 5100, 6100 8 ] W=120");
    Project empty;
    EXPECT_EQ(Refreshed_lines(empty), Lines{});
}

TEST(AddVTPPointTest, AppendsOrTakesThePlaceOfTheSelectedPoint) {
    struct Case {
        const char* What;
        int Selected;
        bool NewSegment;
        int Position;
        Lines Expected;
    };
    const Lines extended =
        With(Changed(ThreeSegments, 5, "  5210, 6205"), 6, "  7000, 8000 ] W=20");
    const Lines started = With(ThreeSegments, 6, "[ 7000, 8000 River ] W=55");
    for (const Case& c : {
             Case{"nothing selected", -1, false, 6, extended},
             Case{"last selected", 5, false, 6, extended},
             Case{"new segment", -1, true, 6, started},
             Case{"new segment with a point selected", 1, true, 6, started},
             Case{"inside a segment", 1, false, 1, With(ThreeSegments, 1, "  7000, 8000")},
             Case{"before a segment's first point", 3, false, 3,
                  With(Changed(ThreeSegments, 2, "  5020, 6010"), 3, "  7000, 8000 ] W=80")},
             Case{"before point 1", 0, false, 0,
                  With(ThreeSegments, 0, "[ 7000, 8000 River ] W=55")},
         }) {
        SCOPED_TRACE(c.What);
        Project project = Three_segments();
        project.CursorVTPX = 7000;
        project.CursorVTPY = 8000;
        project.DrawMode = 5;
        RecordingMessages messages;
        EXPECT_EQ(Add_VTP_Point(project, {c.Selected, c.NewSegment, 55}, messages), c.Position);
        EXPECT_EQ(Refreshed_lines(project), c.Expected);
        EXPECT_EQ(project.VTPMode(c.Position + 1), 5);
        EXPECT_EQ(project.VTPWidth(c.Position + 1), 55);
    }
}

TEST(AddVTPPointTest, AFullProjectRefusesThePoint) {
    Project project = Largest_project();
    const Project before = project;
    RecordingMessages messages;
    EXPECT_EQ(Add_VTP_Point(project, {3, false, 80}, messages), std::nullopt);
    EXPECT_EQ(project, before);
    EXPECT_THAT(messages.Texts(), testing::ElementsAre(testing::HasSubstr("999")));
}

TEST(DeleteVTPPointTest, TheNextPointTakesTheStartWithItsOwnModeAndWidth) {
    struct Case {
        int Point;
        Lines Expected;
    };
    const Lines own_mode{"[ 5010, 6005 Coast (river)", "  5020, 6010 ] W=42"};
    for (const auto& [point, expected] : {
             Case{1, With(With(Without(Without(Without(ThreeSegments, 0), 0), 0), 0, own_mode[1]),
                          0, own_mode[0])},
             Case{3, Without(Changed(ThreeSegments, 1, "  5010, 6005 ] W=80"), 2)},
             Case{4, Without(ThreeSegments, 3)},
             Case{6, Without(Changed(ThreeSegments, 4, "[ 5200, 6200 Road (2 lane) ] W=20"), 5)},
         }) {
        Project project = Three_segments();
        Delete_VTP_Point(project, point);
        EXPECT_EQ(Refreshed_lines(project), expected) << point;
        EXPECT_FALSE(project.DataChanged);
    }
    Project project;
    Add_segment(project, 0, 80, {{5000, 5000}});
    Delete_VTP_Point(project, 1);
    EXPECT_EQ(project.VTPCount, 0);
}

TEST(SegmentEditingTest, WidthAndReversalKeepToTheSegment) {
    Project project = Three_segments();
    Change_segment_width(project, 3, 200);
    Reverse_segment(project, 2);
    EXPECT_EQ(
        Refreshed_lines(project),
        (Lines{"[ 5020, 6010 Coast (waves)", "  5010, 6005", "  5000, 6000 ] W=200",
               "[ 5100, 6100 Plain ] W=120", "[ 5200, 6200 Road (2 lane)", "  5210, 6205 ] W=20"}));
    EXPECT_EQ(project.VTPWidth(2), 42);
    EXPECT_EQ(project.VTPWidth(3), 80);
    EXPECT_TRUE(project.DataChanged);

    Project single = Three_segments();
    Reverse_segment(single, 4);
    EXPECT_EQ(single, Three_segments());
    EXPECT_TRUE(single.DataChanged);
}

TEST(TakeWidthTest, RoundsAndRefusesWhatIsNotIn0To300) {
    struct Case {
        const char* Typed;
        const char* Left;
        std::optional<int> Width;
    };
    for (const auto& [typed, left, width] : {Case{"80.5", "80", 80},
                                             {"81.5", "82", 82},
                                             {"wide", "0", 0},
                                             {"-0.4", "0", 0},
                                             {"300.5", "300", 300},
                                             {"300.6", "80", {}},
                                             {"-1", "80", {}},
                                             {"-0.6", "80", {}},
                                             {"40000", "80", {}},
                                             {"-1e999", "80", {}}}) {
        RecordingMessages messages;
        std::string text = typed;
        EXPECT_EQ(Take_width(text, messages), width) << typed;
        EXPECT_EQ(text, left) << typed;
        if (width)
            EXPECT_TRUE(messages.Shown.empty()) << typed;
        else
            EXPECT_THAT(messages.Texts(),
                        testing::ElementsAre("Coast width must be in the range 0-300"));
    }
}

}  // namespace
}  // namespace tidemark
