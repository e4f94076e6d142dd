// Keeps of the lines of a file what touches the wanted boxes, while they are read.
//
// Of each line, the runs of consecutive segments that touch a box are kept; the rest is forgotten,
// so memory grows with what is kept only. A step of more than 180 degrees of longitude crosses the
// date line. Steps along the date line and along a pole are where data closes its polygons, never
// coast.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "coast/coast_line.h"
#include "coast/coast_place.h"

namespace tidemark {

// What a line is in its file. A polygon's ring says by that, and by the direction that it runs in,
// on which side its land is.
enum class CoastRole : std::uint8_t { Line, OuterRing, Hole };

// How the land side of lines is known: not at all; of each ring by its role and direction; or of
// the rings of one polygon whose roles are unknown. The largest of them is an outer ring then, and
// those that run the other way are holes.
enum class CoastSides : std::uint8_t { None, ByRole, ByLargest };

// Receives each segment of coast, among them those of lines that are dropped in the end. The
// longitudes are at most a turn beyond +/-180.
using SegmentWatch = std::function<void(const CoastPosition& from, const CoastPosition& to)>;

class CoastRuns {
  public:
    explicit CoastRuns(std::span<const GeoBox> wanted);

    // Keeps nothing, but has all segments of the world watched.
    explicit CoastRuns(SegmentWatch watch) : CoastRuns(std::span<const GeoBox>()) {
        watch_ = std::move(watch);
    }

    // Whether anything within these bounds may touch a box.
    bool May_touch(const GeoBox& bounds) const;

    void Begin_line(CoastRole role, const CoastPlace& origin);

    // False when the position is not in degrees.
    bool Add(double longitude, double latitude) {
        if (!(std::fabs(longitude) <= 180 && std::fabs(latitude) <= 90)) {
            if (!Is_in_degrees(longitude, latitude)) return false;
            longitude = std::clamp(longitude, -180.0, 180.0);
            latitude = std::clamp(latitude, -90.0, 90.0);
        }
        const double step = longitude - last_.Longitude;
        if (std::fabs(step) > 180) Step_over_date_line(step > 0 ? -1 : 1);
        const CoastPosition position{longitude, latitude};
        if (position == last_) return true;
        if (count_ == ChunkSize) Flush();
        if (added_++ == 0) first_ = position;
        last_ = chunk_[count_++] = position;
        return true;
    }

    // Goes back to where the line began, if it is not there.
    void Close();

    // Ends the line; what was kept of it waits for Keep or Drop. Whether it ended where it began.
    // A line that has one position only is none.
    bool End_line();

    // What becomes of the lines ended since the last Keep or Drop.
    void Keep(CoastSides sides);
    void Drop();

    // Counts a line that is known to touch no box.
    void Pass_over() { ++kept_lines_; }

    // Lines ended since the last Keep or Drop, and lines kept, whether they touched a box or not.
    std::size_t Waiting() const { return waiting_lines_; }
    std::size_t Kept() const { return kept_lines_; }

    // One list for each box, in the order of the boxes.
    std::vector<std::vector<CoastLine>> Take();

    // What the user is to know of the file although it can be read.
    void Remark(std::string what) { remarks_.push_back(std::move(what)); }
    const std::vector<std::string>& Remarks() const { return remarks_; }

  private:
    static constexpr std::size_t ChunkSize = 128;

    // Consecutive segments of the line that touch a box which was moved east by whole turns.
    struct Run {
        int Turn;
        std::size_t FirstSegment, EndSegment;
        std::vector<CoastPosition> Positions;
    };
    struct WaitingLine {
        std::size_t Box;
        CoastLine Line;
    };

    void Step_over_date_line(int turns);
    void Flush();
    void Show_segments() const;
    void Keep_segments(std::size_t box, int turns, const GeoBox& moved);
    void Keep_segment(std::size_t box, int turn, std::size_t at);
    CoastPosition Chunk_position(std::size_t at, int turn) const;
    bool Is_at_first() const;
    double From_first(double longitude) const;
    int Turns_round_world() const;
    double Twice_ring_area() const;
    std::optional<bool> Has_land_on_left(double twice_area) const;
    void Add_area(const CoastPosition& from, const CoastPosition& to);
    void Join_over_start(std::vector<Run>& runs) const;
    void End_runs(std::size_t box, bool closes, std::optional<bool> land_on_left);

    SegmentWatch watch_;
    std::vector<GeoBox> wanted_;
    GeoBox around_wanted_;

    // The line at hand. Its positions come in chunks; the first of each repeats the last one of the
    // chunk before. All but that one lie in the same turn: x = longitude + 360 * turn.
    CoastRole role_ = CoastRole::Line;
    CoastPlace origin_{"", 0};
    CoastPosition first_, last_;
    std::size_t added_ = 0;
    std::array<CoastPosition, ChunkSize> chunk_;
    std::size_t count_ = 0;
    int turn_ = 0;
    CoastPosition lead_;
    int lead_turn_ = 0;
    std::size_t segments_ = 0;  // before the chunk
    double twice_area_ = 0;  // around the first position, of the chunks before; left turns positive
    double sum_of_latitudes_ = 0;
    std::vector<std::vector<Run>> runs_;  // of each box

    std::vector<WaitingLine> waiting_;
    double largest_area_ = 0;  // twice, of the rings that wait
    std::size_t waiting_lines_ = 0, kept_lines_ = 0;
    std::vector<std::vector<CoastLine>> kept_;
    std::vector<std::string> remarks_;
};

}  // namespace tidemark
