// Random editing of the VTP points beside the same operations on plain points, and the list lines.
#include "vtp_edit/vtp_points.h"

#include <algorithm>
#include <memory>
#include <random>

#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "model/segments.h"
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
    void Change_width(int position, int width) { Segment_of(position).first->Width = width; }

    void Reverse(int position) {
        auto [first, end] = Segment_of(position);
        for (; first < end && first < --end; ++first) {
            std::swap(first->X, end->X);
            std::swap(first->Y, end->Y);
        }
    }

    void Write_to(Project& project) const {
        int segment = 0;
        project.VTPCount = 0;
        for (const PlainPoint& point : points_) {
            const int i = ++project.VTPCount;
            project.VTPPoint(i, 0) = point.X;
            project.VTPPoint(i, 1) = point.Y;
            project.VTPMode(i) = point.Mode;
            project.VTPWidth(i) = point.Width;
            project.VTPSegStart(i) = point.Segment != segment;
            project.VTPSegEnd(i) =
                &point == &points_.back() || (&point)[1].Segment != point.Segment;
            segment = point.Segment;
        }
    }

  private:
    using Iterator = std::vector<PlainPoint>::iterator;

    std::pair<Iterator, Iterator> Segment_of(int position) {
        const int segment = points_[static_cast<std::size_t>(position)].Segment;
        const auto is_in = [=](const PlainPoint& point) { return point.Segment == segment; };
        const auto first = std::find_if(points_.begin(), points_.end(), is_in);
        return {first, std::find_if_not(first, points_.end(), is_in)};
    }

    std::vector<PlainPoint> points_;
    int last_segment_ = 0;
};

class RandomEditing {
  public:
    explicit RandomEditing(unsigned seed) : random_(seed) {}

    void Step() {
        const int selected = Number(-1, project_->VTPCount - 1);
        const int deletions = project_->VTPCount > 200 ? 5 : 2;  // holds at a few hundred points
        const int action = Number(0, 5 + deletions);
        const int width = Number(0, 300);
        project_->DataChanged = false;
        if (selected < 0 || action < 4) {
            Add(selected, width);
        } else if (action == 4) {
            Change_segment_width(*project_, selected + 1, width);
            model_.Change_width(selected, width);
        } else if (action == 5) {
            Reverse_segment(*project_, selected + 1);
            model_.Reverse(selected);
        } else {
            Delete_VTP_Point(*project_, selected + 1);
            model_.Delete(selected);
        }
        EXPECT_EQ(project_->DataChanged, selected >= 0 && action == 5);
        Repair_segments(*project_);
        *expected_ = *project_;
        model_.Write_to(*expected_);
        EXPECT_EQ(*project_, *expected_);
    }

  private:
    int Number(int lowest, int highest) {
        return std::uniform_int_distribution(lowest, highest)(random_);
    }

    void Add(int selected, int width) {
        const PlainPoint point{0, Number(4080, 12271), Number(4080, 12271), Number(0, 7), width};
        const bool new_segment = Number(0, 3) == 0;
        project_->CursorVTPX = point.X;
        project_->CursorVTPY = point.Y;
        project_->DrawMode = point.Mode;
        const auto place = Add_VTP_Point(*project_, {selected, new_segment, width}, messages_);
        ASSERT_TRUE(place.has_value());
        EXPECT_EQ(project_->VTPPoint(*place + 1, 0), point.X);
        model_.Add(point, selected, new_segment);
    }

    std::mt19937 random_;
    std::unique_ptr<Project> project_ = std::make_unique<Project>();
    std::unique_ptr<Project> expected_ = std::make_unique<Project>();
    PlainModel model_;
    RecordingMessages messages_;
};

TEST(VTPPointsTest, RandomEditingMakesTheSameProjectAsOnPlainPoints) {
    for (const unsigned seed : {1U, 2U, 3U}) {
        RandomEditing editing(seed);
        for (int step = 0; step < 3000 && !testing::Test::HasFailure(); ++step) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << step);
            editing.Step();
        }
    }
}

TEST(VTPPointsTest, LinesShowSegmentsAndTheCodeOfAModeWithoutAName) {
    Project project;
    Add_segment(project, 1, 80, {{5000, 6000}, {5010, -5}, {5020, 6010}});
    Add_segment(project, 8, 120, {{5100, 6100}});
    EXPECT_EQ(VTP_list_lines(project),
              (std::vector<std::string>{"[ 5000, 6000 Coast (waves)", "  5010, -5",
                                        "  5020, 6010 ] W=80", "[ 5100, 6100 8 ] W=120"}));
}

TEST(VTPPointsTest, AFullProjectRefusesThePoint) {
    Project project = Largest_project();
    RecordingMessages messages;
    EXPECT_EQ(Add_VTP_Point(project, {3, false, 80}, messages), std::nullopt);
    EXPECT_EQ(project, Largest_project());
    EXPECT_NE(messages.Shown.at(0).Text.find("999"), std::string::npos);
}

TEST(VTPPointsTest, AWidthIsRoundedAndRefusedOutside0To300) {
    for (const auto& [typed, left, width] :
         std::vector<std::tuple<const char*, const char*, std::optional<int>>>{
             {"80.5", "80", 80},
             {"81.5", "82", 82},
             {"wide", "0", 0},
             {"300.5", "300", 300},
             {"300.6", "80", {}},
             {"-0.6", "80", {}},
             {"40000", "80", {}},
             {"-1e999", "80", {}}}) {
        RecordingMessages messages;
        std::string text = typed;
        EXPECT_EQ(Take_width(text, messages), width) << typed;
        EXPECT_EQ(text, left) << typed;
        EXPECT_EQ(messages.Shown.empty() ? "" : messages.Shown[0].Text,
                  width ? "" : "Coast width must be in the range 0-300");
    }
}

}  // namespace
}  // namespace tidemark
