// Random editing of the VTP points beside the same operations on plain points, and the list lines.
#include "vtp_edit/vtp_points.h"

#include <algorithm>
#include <span>

#include "fakes/cases.h"
#include "fakes/random_numbers.h"
#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "model/segments.h"
#include "model/text_forms.h"
#include "vtp_edit/vtp_list.h"

namespace tidemark {
namespace {

// Points that know their segment by its number, which cannot have a flag wrong.
struct PlainPoint {
    int Segment, X, Y, Mode, Width;
};

class PlainModel {
  public:
    void Add(PlainPoint point, int selected, bool new_segment) {
        const int count = static_cast<int>(points_.size());
        const bool append = selected < 0 || selected == count - 1 || new_segment;
        const auto place = points_.begin() + (append ? count : selected);
        const bool starts = new_segment || place == points_.begin();
        point.Segment = starts ? ++last_segment_ : std::prev(place)->Segment;
        points_.insert(place, point);
    }

    void Delete(int position) { points_.erase(points_.begin() + position); }
    void Change_width(int position, int width) { Segment_of(position).front().Width = width; }

    void Reverse(int position) {
        const auto segment = Segment_of(position);
        for (std::size_t i = 0, j = segment.size() - 1; i < j; ++i, --j) {
            std::swap(segment[i].X, segment[j].X);
            std::swap(segment[i].Y, segment[j].Y);
        }
    }

    Project Made() const {
        Project project;
        int segment = 0;
        for (const PlainPoint& point : points_) {
            const int i = ++project.VTPCount;
            project.VTPPoint(i, 0) = point.X;
            project.VTPPoint(i, 1) = point.Y;
            project.VTPMode(i) = point.Mode;
            project.VTPWidth(i) = point.Width;
            project.VTPSegStart(i) = std::exchange(segment, point.Segment) != point.Segment;
        }
        Repair_segments(project);
        return project;
    }

  private:
    std::span<PlainPoint> Segment_of(int position) {
        const int segment = points_[static_cast<std::size_t>(position)].Segment;
        const auto is_other = [=](const PlainPoint& point) { return point.Segment != segment; };
        const auto first = std::ranges::find(points_, segment, &PlainPoint::Segment);
        return {first, std::find_if(first, points_.end(), is_other)};
    }

    std::vector<PlainPoint> points_;
    int last_segment_ = 0;
};

TEST(VTPPointsTest, RandomEditingMakesTheSameProjectAsOnPlainPoints) {
    RandomNumbers random(1);
    Project project;
    PlainModel model;
    RecordingMessages messages;
    for (int step = 0; step < 9000 && !HasFailure(); ++step) {
        SCOPED_TRACE(step);
        const int selected = random.Number(-1, project.VTPCount - 1);
        const int action = random.Number(0, project.VTPCount > 200 ? 9 : 7);  // few points remain
        const int width = random.Number(0, 300);
        project.DataChanged = false;
        if (selected < 0 || action < 4) {
            const PlainPoint point{0, random.Number(4080, 12271), random.Number(4080, 12271),
                                   random.Number(0, 7), width};
            const bool new_segment = random.One_in(4);
            project.CursorVTPX = point.X;
            project.CursorVTPY = point.Y;
            project.DrawMode = point.Mode;
            const auto place = Add_VTP_Point(project, {selected, new_segment, width}, messages);
            EXPECT_EQ(project.VTPPoint(place.value() + 1, 0), point.X);
            model.Add(point, selected, new_segment);
        } else if (action == 4) {
            Change_segment_width(project, selected + 1, width);
            model.Change_width(selected, width);
        } else if (action == 5) {
            Reverse_segment(project, selected + 1);
            model.Reverse(selected);
        } else {
            Delete_VTP_Point(project, selected + 1);
            model.Delete(selected);
        }
        EXPECT_EQ(project.DataChanged, selected >= 0 && action == 5);
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
    RecordingMessages messages;
    EXPECT_EQ(Add_VTP_Point(project, {3, false, 80}, messages), std::nullopt);
    EXPECT_EQ(project, Largest_project());
    EXPECT_EQ(messages.Said(), "The point has not been added: a project holds at most 999 points.");
}

TEST(VTPPointsTest, AWidthIsRoundedAndRefusedOutside0To300) {
    Expect_cases("vtp_edit/data/widths.txt", [](const Given& given) {
        RecordingMessages messages;
        std::string text = given[0];
        const auto width = Take_width(text, messages);
        return (width ? Int_text(*width) : "") + messages.Said() + ", " + text;
    });
}

}  // namespace
}  // namespace tidemark
