// What the JSON parser finds, understood as GeoJSON.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "coast/coast_runs.h"
#include "coast/geojson_stream.h"

namespace tidemark {

// Its public functions are those that the parser calls; they throw CoastRefusal. The members of an
// object may come in any order, so what its "coordinates" mean is settled when the object ends.
class GeojsonHandler {
  public:
    GeojsonHandler(GeojsonStream& stream, CoastRuns& runs) : stream_(stream), runs_(runs) {}

    bool Null();
    bool Bool(bool) { return Take_other("true or false"); }
    bool Int(int value) { return Take_number(value); }
    bool Uint(unsigned value) { return Take_number(value); }
    bool Int64(std::int64_t value) { return Take_number(static_cast<double>(value)); }
    bool Uint64(std::uint64_t value) { return Take_number(static_cast<double>(value)); }
    bool Double(double value) { return Take_number(value); }
    bool RawNumber(const char*, unsigned, bool) { return false; }  // not in this way of parsing
    bool String(const char* text, unsigned length, bool);
    bool StartObject();
    bool Key(const char* text, unsigned length, bool);
    bool EndObject(unsigned);
    bool StartArray() {
        if (levels_ == 0 || numbers_ > 0 || depth_ == DeepestNesting) return Start_list();
        ++depth_;
        ++levels_;
        return true;
    }
    bool EndArray(unsigned);

    // "line 12, feature 3" at the stream's place.
    [[noreturn]] void Refuse(const std::string& what) const;

  private:
    static constexpr int DeepestNesting = 64;
    static constexpr std::size_t MostNumbers = 4;  // longitude, latitude, height, measure

    enum class Role : std::uint8_t { Root, Feature, Geometry };
    enum class Member : std::uint8_t {
        Other,
        Type,
        Coordinates,
        Features,
        Geometry,
        Geometries,
        Crs
    };

    // An object of GeoJSON that is open. Everything else that is nested is passed over.
    struct Object {
        Role Is;
        std::string Type;
        Member At = Member::Other;
        bool InList = false;  // of features or geometries
        bool HasCoordinates = false, HasFeatures = false, HasGeometries = false;
        int PositionLevel = 0;  // the lists around a position's numbers; 0: none seen yet
        std::optional<CoastPlace> OpenRing;
    };

    CoastPlace Here() const;
    void Enter();
    bool Take_number(double value) {
        if (levels_ == 0) return Take_other("a number");
        if (numbers_ < MostNumbers) position_[numbers_] = value;
        ++numbers_;
        return true;
    }
    bool Take_other(const char* what);
    bool Start_list();
    void Begin_object(Role role);
    void Begin_coordinates(Object& object);
    void End_position();
    void End_level();
    void End_line(Object& object);
    void Settle(const Object& object);
    void Settle_geometry(const Object& object, int level, bool are_polygons);
    void Check_crs(std::string_view name);
    Member Member_named(std::string_view name) const;

    GeojsonStream& stream_;
    CoastRuns& runs_;
    std::vector<Object> objects_;
    int depth_ = 0;
    int passed_over_ = 0;  // levels of nesting of a value that does not matter
    bool in_crs_ = false, is_crs_name_ = false, has_crs_name_ = false;
    std::size_t feature_ = 0;
    bool in_feature_ = false;

    // Inside "coordinates".
    int levels_ = 0;
    std::array<double, MostNumbers> position_{};
    std::size_t numbers_ = 0;
    bool in_line_ = false;
    int ring_ = 0;
};

}  // namespace tidemark
