// Random editing of the VTP points, beside the same operations on plain lists of points.
#include <memory>
#include <random>

#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "model/segments.h"
#include "vtp_edit/vtp_points.h"

namespace tidemark {
namespace {

// Segments as plain lists of points, which cannot have a flag wrong.
class PlainModel {
  public:
    struct Point {
        int X, Y, Mode, Width;
    };

    int Count() const {
        int count = 0;
        for (const auto& segment : segments_) count += static_cast<int>(segment.size());
        return count;
    }

    void Add(const Point& point, int selected, bool new_segment) {
        const bool insert = selected >= 0 && selected != Count() - 1 && !new_segment;
        if (insert)
            Insert(point, selected);
        else if (new_segment || segments_.empty())
            segments_.push_back({point});
        else
            segments_.back().push_back(point);
    }

    void Delete(int position) {
        const auto [segment, place] = Find(position);
        segments_[segment].erase(segments_[segment].begin() + static_cast<std::ptrdiff_t>(place));
        if (segments_[segment].empty())
            segments_.erase(segments_.begin() + static_cast<std::ptrdiff_t>(segment));
    }

    void Change_width(int position, int width) { Segment_of(position).front().Width = width; }

    void Reverse(int position) {
        auto& segment = Segment_of(position);
        const std::vector<Point> old = segment;
        for (std::size_t i = 0; i < old.size(); ++i) {
            segment[i].X = old[old.size() - 1 - i].X;
            segment[i].Y = old[old.size() - 1 - i].Y;
        }
    }

    void Write_to(Project& project) const {
        project.VTPCount = 0;
        for (const auto& segment : segments_) {
            for (const Point& point : segment) {
                const int i = ++project.VTPCount;
                project.VTPPoint(i, 0) = point.X;
                project.VTPPoint(i, 1) = point.Y;
                project.VTPMode(i) = point.Mode;
                project.VTPWidth(i) = point.Width;
                project.VTPSegStart(i) = &point == &segment.front();
                project.VTPSegEnd(i) = &point == &segment.back();
            }
        }
    }

  private:
    struct Place {
        std::size_t Segment, Point;
    };

    Place Find(int position) const {
        std::size_t segment = 0;
        auto place = static_cast<std::size_t>(position);
        while (place >= segments_[segment].size()) place -= segments_[segment++].size();
        return {segment, place};
    }

    std::vector<Point>& Segment_of(int position) { return segments_[Find(position).Segment]; }

    void Insert(const Point& point, int selected) {
        const auto [segment, place] = Find(selected);
        if (place > 0)
            segments_[segment].insert(
                segments_[segment].begin() + static_cast<std::ptrdiff_t>(place), point);
        else if (segment > 0)
            segments_[segment - 1].push_back(point);
        else
            segments_.insert(segments_.begin(), {point});
    }

    std::vector<std::vector<Point>> segments_;
};

class RandomEditing {
  public:
    explicit RandomEditing(unsigned seed) : random_(seed) {}

    void Step() {
        const int count = project_->VTPCount;
        const int selected = Number(-1, count - 1);
        const int deletions = count > 200 ? 5 : 2;  // grows to a few hundred points, then holds
        const int action = Number(0, 5 + deletions);
        if (selected < 0 || action < 4)
            Add(selected);
        else if (action == 4)
            Change_width(selected);
        else if (action == 5)
            Reverse(selected);
        else
            Delete(selected);
        Repair_segments(*project_);
    }

    void Expect_same() {
        *expected_ = *project_;
        model_.Write_to(*expected_);
        EXPECT_EQ(*project_, *expected_);
    }

  private:
    int Number(int lowest, int highest) {
        return std::uniform_int_distribution(lowest, highest)(random_);
    }

    void Add(int selected) {
        const PlainModel::Point point{Number(4080, 12271), Number(4080, 12271), Number(0, 7),
                                      Number(0, 300)};
        const bool new_segment = Number(0, 3) == 0;
        project_->CursorVTPX = point.X;
        project_->CursorVTPY = point.Y;
        project_->DrawMode = point.Mode;
        ASSERT_TRUE(Add_VTP_Point(*project_, {selected, new_segment, point.Width}, messages_));
        model_.Add(point, selected, new_segment);
    }

    void Change_width(int selected) {
        const int width = Number(0, 300);
        Change_segment_width(*project_, selected + 1, width);
        model_.Change_width(selected, width);
    }

    void Reverse(int selected) {
        Reverse_segment(*project_, selected + 1);
        model_.Reverse(selected);
    }

    void Delete(int selected) {
        Delete_VTP_Point(*project_, selected + 1);
        model_.Delete(selected);
    }

    std::mt19937 random_;
    std::unique_ptr<Project> project_ = std::make_unique<Project>();
    std::unique_ptr<Project> expected_ = std::make_unique<Project>();
    PlainModel model_;
    RecordingMessages messages_;
};

TEST(VTPPointsTest, RandomEditingMakesTheSameProjectAsOnPlainLists) {
    for (const unsigned seed : {1U, 2U, 3U}) {
        RandomEditing editing(seed);
        for (int step = 0; step < 3000 && !testing::Test::HasFailure(); ++step) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << step);
            editing.Step();
            editing.Expect_same();
        }
    }
}

}  // namespace
}  // namespace tidemark
