#include <algorithm>
#include <array>
#include <cstdint>

#include "coast/kml_gpx_reader.h"
#include "coast/xml_reader.h"

namespace tidemark {

namespace {

constexpr std::size_t LongestPosition = 200;  // bytes of its text
constexpr std::size_t MostNumbers = 3;        // longitude, latitude, height

bool Is_blank(char letter) {
    return letter == ' ' || letter == '\n' || letter == '\r' || letter == '\t';
}

class KmlReader : public XmlReader {
  public:
    explicit KmlReader(CoastRuns& runs) : XmlReader("kml"), runs_(runs) {}

  private:
    enum class Shape : std::uint8_t { None, Line, Ring };

    void Begin(std::string_view name) override {
        if (name == "Polygon") in_polygon_ = true;
        if (name == "outerBoundaryIs") in_hole_ = false;
        if (name == "innerBoundaryIs") in_hole_ = true;
        if (name == "LineString") shape_ = Shape::Line;
        if (name == "LinearRing") shape_ = Shape::Ring;
        if (name == "coordinates" && shape_ != Shape::None) Begin_coordinates();
        if (name == "Track") Pass_over_track();
    }

    void End(std::string_view name) override {
        if (name == "Polygon") in_polygon_ = in_hole_ = false;
        if (name == "LineString" || name == "LinearRing") shape_ = Shape::None;
        if (name == "coordinates" && in_coordinates_) End_coordinates();
    }

    void Take_text(std::string_view text) override {
        if (!in_coordinates_) return;
        for (const char letter : text) {
            if (Is_blank(letter)) {
                End_position();
            } else {
                if (position_.size() == LongestPosition) Refuse("a position is too long");
                position_ += letter;
            }
        }
    }

    // Tracks come with a time for each position; one remark is for all of them.
    void Pass_over_track() {
        if (!passes_tracks_over_)
            runs_.Remark("its gx:Track in " + Here().Text() +
                         " is passed over; save tracks as GPX to have them read");
        passes_tracks_over_ = true;
    }

    void Begin_coordinates() {
        if (in_coordinates_) Refuse("coordinates stand within coordinates");
        in_coordinates_ = true;
        runs_.Begin_line(!in_polygon_ ? CoastRole::Line
                         : in_hole_   ? CoastRole::Hole
                                      : CoastRole::OuterRing,
                         Here());
    }

    void End_coordinates() {
        End_position();
        in_coordinates_ = false;
        if (shape_ == Shape::Ring) runs_.Close();
        runs_.End_line();
        runs_.Keep(in_polygon_ ? CoastSides::ByRole : CoastSides::None);
    }

    void End_position() {
        if (position_.empty()) return;
        std::array<double, MostNumbers> numbers{};
        std::size_t count = 0, start = 0;
        while (start <= position_.size()) {
            const std::size_t comma = std::min(position_.find(',', start), position_.size());
            const auto number =
                Degrees_in(std::string_view(position_).substr(start, comma - start));
            if (!number || count == MostNumbers) Refuse_position();
            numbers[count++] = *number;
            start = comma + 1;
        }
        if (count < 2) Refuse_position();
        if (!runs_.Add(numbers[0], numbers[1])) Refuse(Beyond_degrees_text(numbers[0], numbers[1]));
        position_.clear();
    }

    [[noreturn]] void Refuse_position() const {
        Refuse("\"" + position_ + "\" is no longitude, latitude and height with commas between");
    }

    CoastRuns& runs_;
    bool in_polygon_ = false, in_hole_ = false, in_coordinates_ = false;
    bool passes_tracks_over_ = false;
    Shape shape_ = Shape::None;
    std::string position_;  // as much of it as was read
};

}  // namespace

void Read_kml(CoastInput& input, CoastRuns& runs) {
    KmlReader(runs).Read(input);
}

}  // namespace tidemark
