#include "coast/geojson_handler.h"

#include <algorithm>
#include <cctype>

#include "model/text_forms.h"

namespace tidemark {

namespace {

// The types of geometry, with how deep lists stand around the numbers of their positions.
struct GeometryType {
    std::string_view Name;
    int Level;
    bool IsLine, IsPolygon;
};
constexpr std::array GeometryTypes{
    GeometryType{"Point", 1, false, false},          GeometryType{"MultiPoint", 2, false, false},
    GeometryType{"LineString", 2, true, false},      GeometryType{"Polygon", 3, true, true},
    GeometryType{"MultiLineString", 3, true, false}, GeometryType{"MultiPolygon", 4, true, true},
};

const GeometryType* Geometry_named(std::string_view name) {
    const auto* const found =
        std::find_if(GeometryTypes.begin(), GeometryTypes.end(),
                     [&](const GeometryType& type) { return type.Name == name; });
    return found == GeometryTypes.end() ? nullptr : found;
}

// As much of a text of the file as a message may show.
std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char letter : text.substr(0, 60))
        quoted += static_cast<unsigned char>(letter) < ' ' ? '?' : letter;
    return quoted + (text.size() > 60 ? "...\"" : "\"");
}

bool Is_longitude_and_latitude(std::string_view crs) {
    if (crs.find("CRS84") != crs.npos) return true;
    return crs == "4326" || crs.ends_with(":4326") || crs.ends_with("/4326");
}

}  // namespace

CoastPlace GeojsonHandler::Here() const {
    return {"line", stream_.Line(), in_feature_ ? feature_ : 0};
}

void GeojsonHandler::Refuse(const std::string& what) const {
    throw CoastRefusal{Here().Text(), what};
}

void GeojsonHandler::Enter() {
    if (++depth_ > DeepestNesting)
        Refuse("it is nested more than " + std::to_string(DeepestNesting) + " deep");
}

bool GeojsonHandler::Null() {
    const bool may_be =
        levels_ == 0 && !objects_.empty() && !objects_.back().InList &&
        (objects_.back().At == Member::Geometry || objects_.back().At == Member::Crs);
    return may_be || Take_other("null");
}

// A value that is no list and no object, where GeoJSON may have none.
bool GeojsonHandler::Take_other(const char* what) {
    if (levels_ > 0) Refuse(std::string(what) + " stands among the coordinates");
    if (objects_.empty()) Refuse("it is no GeoJSON: it begins with " + std::string(what));
    if (passed_over_ == 0 && objects_.back().At != Member::Other)
        Refuse(std::string(what) + " stands where GeoJSON has none");
    return true;
}

bool GeojsonHandler::String(const char* text, unsigned length, bool) {
    const std::string_view value(text, length);
    if (in_crs_ && is_crs_name_) Check_crs(value);
    if (levels_ > 0 || passed_over_ > 0 || objects_.empty()) return Take_other("a text");
    Object& object = objects_.back();
    if (object.At == Member::Crs) {
        Check_crs(value);
        return true;
    }
    if (object.At != Member::Type) return Take_other("a text");
    if (!Geometry_named(value) && value != "GeometryCollection" && value != "Feature" &&
        value != "FeatureCollection")
        Refuse("the type " + Quoted(value) + " is none of GeoJSON");
    object.Type = value;
    return true;
}

void GeojsonHandler::Check_crs(std::string_view name) {
    has_crs_name_ = true;
    if (!Is_longitude_and_latitude(name))
        Refuse("its \"crs\" is " + Quoted(name) +
               "; only longitude and latitude in degrees (WGS 84) can be read");
}

bool GeojsonHandler::StartObject() {
    Enter();
    if (levels_ > 0) Refuse("an object stands among the coordinates");
    if (passed_over_ > 0) {
        ++passed_over_;
        return true;
    }
    if (objects_.empty()) {
        objects_.push_back({Role::Root, {}, {}, {}, {}, {}, {}, {}, {}});
        return true;
    }
    const Object& parent = objects_.back();
    const bool is_list = parent.At == Member::Features || parent.At == Member::Geometries;
    if (parent.At == Member::Other || parent.At == Member::Crs) {
        passed_over_ = 1;
        in_crs_ = parent.At == Member::Crs;
        is_crs_name_ = has_crs_name_ = false;
    } else if ((parent.At == Member::Geometry) || (is_list && parent.InList)) {
        Begin_object(parent.At == Member::Features ? Role::Feature : Role::Geometry);
    } else {
        Refuse("an object stands where GeoJSON has none");
    }
    return true;
}

void GeojsonHandler::Begin_object(Role role) {
    if (runs_.Waiting() > 0) Refuse("an object has both coordinates and further geometries");
    if (role == Role::Feature) {
        ++feature_;
        in_feature_ = true;
    }
    objects_.push_back({role, {}, {}, {}, {}, {}, {}, {}, {}});
}

// The members that matter in an object of this role.
GeojsonHandler::Member GeojsonHandler::Member_named(std::string_view name) const {
    const Role role = objects_.back().Is;
    if (name == "type") return Member::Type;
    if (name == "crs" && role == Role::Root) return Member::Crs;
    if (name == "features" && role == Role::Root) return Member::Features;
    if (name == "geometry" && role != Role::Geometry) return Member::Geometry;
    if (name == "geometries" && role != Role::Feature) return Member::Geometries;
    if (name == "coordinates" && role != Role::Feature) return Member::Coordinates;
    return Member::Other;
}

bool GeojsonHandler::Key(const char* text, unsigned length, bool) {
    const std::string_view name(text, length);
    if (passed_over_ == 0) objects_.back().At = Member_named(name);
    is_crs_name_ = in_crs_ && name == "name";
    return true;
}

bool GeojsonHandler::EndObject(unsigned) {
    --depth_;
    if (passed_over_ == 0) {
        Settle(objects_.back());
        if (objects_.back().Is == Role::Feature) in_feature_ = false;
        objects_.pop_back();
    } else if (--passed_over_ == 0 && in_crs_) {
        if (!has_crs_name_) Refuse("its \"crs\" has no name that could be understood");
        in_crs_ = false;
    }
    return true;
}

// Every list but those within coordinates that may be there.
bool GeojsonHandler::Start_list() {
    Enter();
    if (levels_ > 0) Refuse("a list stands among the numbers of a position");
    if (passed_over_ > 0) {
        ++passed_over_;
        return true;
    }
    if (objects_.empty()) Refuse("it is no GeoJSON: it begins with a list");
    Object& object = objects_.back();
    const bool is_list = object.At == Member::Features || object.At == Member::Geometries;
    if (object.At == Member::Other) {
        passed_over_ = 1;
    } else if (object.At == Member::Coordinates) {
        Begin_coordinates(object);
    } else if (is_list && !object.InList) {
        object.InList = true;
        (object.At == Member::Features ? object.HasFeatures : object.HasGeometries) = true;
    } else {
        Refuse("a list stands where GeoJSON has none");
    }
    return true;
}

void GeojsonHandler::Begin_coordinates(Object& object) {
    if (object.HasCoordinates) Refuse("an object has its coordinates twice");
    object.HasCoordinates = true;
    levels_ = 1;
    ring_ = 0;
}

bool GeojsonHandler::EndArray(unsigned) {
    --depth_;
    if (levels_ > 0) {
        if (numbers_ > 0)
            End_position();
        else
            End_level();
        --levels_;
    } else if (passed_over_ > 0) {
        --passed_over_;
    } else {
        objects_.back().InList = false;
    }
    return true;
}

void GeojsonHandler::End_position() {
    Object& object = objects_.back();
    if (object.PositionLevel == 0) object.PositionLevel = levels_;
    if (object.PositionLevel != levels_) Refuse("its coordinates are nested unevenly");
    if (numbers_ < 2 || numbers_ > MostNumbers)
        Refuse("a position has " + Counted(numbers_, "number") + "; it takes 2 to 4");
    numbers_ = 0;
    if (levels_ == 1) return;  // a point
    if (!in_line_) {
        const bool may_be_ring = levels_ > 2;
        runs_.Begin_line(!may_be_ring ? CoastRole::Line
                         : ring_ == 0 ? CoastRole::OuterRing
                                      : CoastRole::Hole,
                         Here());
        in_line_ = true;
    }
    if (!runs_.Add(position_[0], position_[1]))
        Refuse(Beyond_degrees_text(position_[0], position_[1]));
}

void GeojsonHandler::End_level() {
    Object& object = objects_.back();
    if (object.PositionLevel == 0) return;
    if (levels_ == object.PositionLevel) Refuse("a position has no numbers");
    if (levels_ > object.PositionLevel) Refuse("its coordinates are nested unevenly");
    if (levels_ == object.PositionLevel - 1 && in_line_) End_line(object);
    if (levels_ == object.PositionLevel - 2) ring_ = 0;
}

void GeojsonHandler::End_line(Object& object) {
    if (!runs_.End_line() && !object.OpenRing) object.OpenRing = Here();
    in_line_ = false;
    ++ring_;
}

void GeojsonHandler::Settle(const Object& object) {
    if (object.Type.empty()) Refuse("an object has no type, so it is no GeoJSON");
    const GeometryType* const geometry = Geometry_named(object.Type);
    const bool is_collection = object.Type == "GeometryCollection";
    if ((object.Is == Role::Feature && object.Type != "Feature") ||
        (object.Is == Role::Geometry && !geometry && !is_collection))
        Refuse("a " + object.Type + " stands where a " +
               (object.Is == Role::Feature ? "Feature" : "geometry") + " belongs");
    if (object.Type == "FeatureCollection" && !object.HasFeatures)
        Refuse("a FeatureCollection has no list of features");
    if (is_collection && !object.HasGeometries)
        Refuse("a GeometryCollection has no list of geometries");
    if (geometry && !object.HasCoordinates) Refuse("a " + object.Type + " has no coordinates");
    if (!geometry || !geometry->IsLine)
        runs_.Drop();
    else
        Settle_geometry(object, geometry->Level, geometry->IsPolygon);
}

void GeojsonHandler::Settle_geometry(const Object& object, int level, bool are_polygons) {
    if (object.PositionLevel != 0 && object.PositionLevel != level)
        Refuse("the positions of a " + object.Type + " are nested " +
               std::to_string(object.PositionLevel) + " deep instead of " + std::to_string(level));
    if (are_polygons && object.OpenRing)
        throw CoastRefusal{object.OpenRing->Text(),
                           "a polygon's ring does not end where it begins"};
    runs_.Keep(are_polygons ? CoastSides::ByRole : CoastSides::None);
}

}  // namespace tidemark
