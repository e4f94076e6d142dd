// Random editing of the VTP points beside the same operations on plain points, and the list lines.
#include "vtp_edit/vtp_points.h"

#include "fakes/rules_test.h"
#include "vtp_edit/vtp_list.h"

namespace tidemark {

struct PlainPoint {
    int X, Y, Mode, Width;
    bool Starts;  // a segment
};

// The points in a list that grows and shrinks by itself.
struct PlainModel : std::vector<PlainPoint> {
    // The points of the segment in which a place lies.
    std::span<PlainPoint> Segment_at(int place) {
        auto first = begin() + place;
        while (!first->Starts) --first;
        return {first, std::find_if(first + 1, end(), [](auto& point) { return point.Starts; })};
    }

    Project Made() const {
        Project project;
        for (const auto& [x, y, mode, width, starts] : *this) {
            const int i = ++project.VTPCount;
            project.VTPPoint(i, 0) = x;
            project.VTPPoint(i, 1) = y;
            project.VTPMode(i) = mode;
            project.VTPWidth(i) = width;
            project.VTPSegStart(i) = starts;
            project.VTPSegEnd(i) = i == std::ssize(*this) || at(static_cast<std::size_t>(i)).Starts;
        }
        return project;
    }
};

TEST(VTPPointsTest, RandomEditingMakesTheSameProjectAsOnPlainPoints) {
    RandomNumbers random(1);
    Project project;
    Session session;
    PlainModel model;
    RecordingMessages messages;
    for (int step = 0; step < 9000 && !HasFailure(); ++step) {
        SCOPED_TRACE(step);
        const int count = project.VTPCount, selected = random.Number(-1, count - 1);
        const int action = selected < 0 ? 0 : random.Number(0, count > 200 ? 9 : 7);
        const int width = random.Number(0, 300), slot = selected + 1;
        if (action < 4) {
            const bool starts = random.One_in(4), at_end = slot == 0 || slot == count || starts;
            session.CursorVTPX = random.Number(4080, 12271);
            session.CursorVTPY = random.Number(4080, 12271);
            session.DrawMode = random.Number(0, 7);
            const int place = at_end ? count : selected;
            session.Panel.SelectedPoint = selected;
            session.Panel.NewSegment = starts;
            EXPECT_TRUE(Add_VTP_Point(project, session, width, messages));
            EXPECT_TRUE(session.Panel.SelectedPoint == place && !session.Panel.NewSegment);
            model.insert(model.begin() + place,
                         {session.CursorVTPX, session.CursorVTPY, session.DrawMode, width, starts});
        } else if (action == 4) {
            Change_segment_width(project, slot, width);
            model.Segment_at(selected).front().Width = width;
        } else if (action == 5) {
            Reverse_segment(project, slot);
            const std::span<PlainPoint> segment = model.Segment_at(selected);
            const std::vector<PlainPoint> before(segment.rbegin(), segment.rend());
            for (std::size_t i = 0; i < before.size(); ++i)
                std::tie(segment[i].X, segment[i].Y) = std::tie(before[i].X, before[i].Y);
        } else {
            Delete_VTP_Point(project, slot);
            const bool started = model.at(static_cast<std::size_t>(selected)).Starts;
            const auto next = model.erase(model.begin() + selected);
            if (next != model.end()) next->Starts |= started;
        }
        if (!model.empty()) model.front().Starts = true;
        Repair_segments(project);
        EXPECT_EQ(project, model.Made());
    }
}

TEST(VTPPointsTest, LinesShowSegmentsAndTheCodeOfAModeWithoutAName) {
    Project project;
    Add_segment(project, 1, 80, {{5000, 6000}, {5010, -5}, {5020, 6010}});
    Add_segment(project, 8, 120, {{5100, 6100}});
    EXPECT_EQ(VTP_list_lines(project), (Texts{"[ 5000, 6000 Coast (waves)", "  5010, -5",
                                              "  5020, 6010 ] W=80", "[ 5100, 6100 8 ] W=120"}));
}

TEST(VTPPointsTest, AFullProjectRefusesThePoint) {
    Project project = Largest_project();
    Session session;
    session.Panel = {.NewSegment = false, .SelectedPoint = 3};
    RecordingMessages messages;
    EXPECT_FALSE(Add_VTP_Point(project, session, 80, messages));
    EXPECT_EQ(project, Largest_project());
    EXPECT_EQ(messages.Said(), "The point has not been added: a project holds at most 999 points.");
}

TEST(VTPPointsTest, AWidthIsRoundedAndRefusedOutside0To300) {
    Expect_cases("vtp_edit/data/widths.txt", [](const Given& given) {
        RecordingMessages messages;
        const auto [text, width] = Take_width(given[0], messages);
        return (width ? Int_text(*width) : "") + messages.Said() + ", " + text;
    });
}

}  // namespace tidemark
