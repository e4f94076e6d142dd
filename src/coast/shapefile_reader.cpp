#include "coast/shapefile_reader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "coast/coordinate_system.h"
#include "coast/shapefile_bytes.h"

namespace tidemark {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t HeaderSize = 100;
constexpr std::uint64_t RecordHeaderSize = 8;
constexpr std::uint64_t BoundsEnd = RecordHeaderSize + 36;  // type and bounds of a line or polygon
constexpr std::uint64_t LongestProjection = 65536;
constexpr int RecordsBetweenReports = 64;

struct CloseShapefile {
    void operator()(SHPInfo* handle) const { SHPClose(handle); }
};
using Shapefile = std::unique_ptr<SHPInfo, CloseShapefile>;

struct DestroyShape {
    void operator()(SHPObject* shape) const { SHPDestroyObject(shape); }
};
using Shape = std::unique_ptr<SHPObject, DestroyShape>;

std::uint32_t Big_endian(const char* bytes) {
    std::uint32_t value = 0;
    for (int at = 0; at < 4; ++at) value = value << 8 | static_cast<unsigned char>(bytes[at]);
    return value;
}

template <class Number>
Number Little_endian(const char* bytes) {
    Number value = 0;
    for (std::size_t at = sizeof value; at > 0; --at)
        value = static_cast<Number>(value << 8 | static_cast<unsigned char>(bytes[at - 1]));
    return value;
}

double Little_endian_double(const char* bytes) {
    return std::bit_cast<double>(Little_endian<std::uint64_t>(bytes));
}

std::string Name_of(const fs::path& path) {
    const std::u8string name = path.filename().u8string();
    return {name.begin(), name.end()};
}

// Refuses a file whose header claims more bytes than there are; shapelib would make room for them.
void Check_header(const fs::path& path) {
    ShapefileBytes file(path);
    if (!file.Is_open()) throw CoastRefusal{"", Name_of(path) + " cannot be opened"};
    std::array<char, HeaderSize> header{};
    constexpr std::uint32_t file_code = 9994;
    if (file.Read(header.data(), HeaderSize) != HeaderSize ||
        Big_endian(header.data()) != file_code)
        throw CoastRefusal{"", Name_of(path) + " is no file of a shapefile"};
    const std::uint64_t claimed = std::uint64_t{Big_endian(header.data() + 24)} * 2;
    if (claimed < HeaderSize || claimed > file.Size())
        throw CoastRefusal{"", Name_of(path) + " has " + std::to_string(file.Size()) +
                                   " bytes, but its header says " + std::to_string(claimed)};
}

// Refuses coordinates that are no degrees from Greenwich, as far as the file beside it says so.
void Check_coordinates(const fs::path& path, CoastRuns& runs) {
    const auto file = File_beside(path, ".prj");
    if (!file) return;
    ShapefileBytes bytes(*file);
    std::string text(LongestProjection, ' ');
    text.resize(bytes.Is_open() ? bytes.Read(text.data(), LongestProjection) : 0);
    const CoordinateSystem system = Coordinate_system(text);
    const std::string name = Name_of(*file);
    if (system.IsProjected)
        throw CoastRefusal{"", "its coordinates are projected: " + system.Projection +
                                   (system.Projection.empty() ? "" : " ") + "in " + name +
                                   "; only longitude and latitude in degrees can be read"};
    if (!system.PrimeMeridian.empty())
        throw CoastRefusal{"", "its longitudes count from " + system.PrimeMeridian + " in " + name +
                                   "; only those from Greenwich can be read"};
    if (!system.OtherDatum.empty())
        runs.Remark("the datum " + system.OtherDatum + " in " + name +
                    " is taken for WGS 84; positions may be off by some 100 m");
}

bool Is_line(int type) {
    return type == SHPT_ARC || type == SHPT_ARCZ || type == SHPT_ARCM;
}

bool Is_polygon(int type) {
    return type == SHPT_POLYGON || type == SHPT_POLYGONZ || type == SHPT_POLYGONM;
}

class ShapefileReader {
  public:
    ShapefileReader(SHPInfo& file, CoastRuns& runs) : file_(file), runs_(runs) {}

    void Read_record(int record) {
        record_ = record;
        const auto bounds = Bounds();
        if (!bounds) return;
        if (runs_.May_touch(*bounds))
            Add(*Read_shape());
        else
            runs_.Pass_over();
    }

  private:
    CoastPlace Here() const { return {"record", static_cast<std::size_t>(record_) + 1}; }
    [[noreturn]] void Refuse(const std::string& what) const {
        throw CoastRefusal{Here().Text(), what};
    }

    // Those at the record's start; nothing of one without a shape.
    std::optional<GeoBox> Bounds() const {
        const std::uint64_t start = file_.panRecOffset[record_];
        const std::uint64_t size = file_.panRecSize[record_] + RecordHeaderSize;
        ShapefileBytes& bytes = *reinterpret_cast<ShapefileBytes*>(file_.fpSHP);
        if (start < HeaderSize || start + size > bytes.Size())
            Refuse("the index says that it ends at byte " + std::to_string(start + size) +
                   " of a file of " + std::to_string(bytes.Size()));
        std::array<char, BoundsEnd> head{};
        bytes.Go_to(start);
        const std::uint64_t read = bytes.Read(head.data(), std::min(size, BoundsEnd));
        if (read < RecordHeaderSize + 4) Refuse("it has no type");
        if (std::uint64_t{Big_endian(head.data() + 4)} * 2 + RecordHeaderSize != size)
            Refuse("its length and that in the index differ");
        const int type = Little_endian<std::int32_t>(head.data() + RecordHeaderSize);
        if (type == SHPT_NULL) return std::nullopt;
        if (!Is_line(type) && !Is_polygon(type)) Refuse("it is neither a line nor a polygon");
        if (read < BoundsEnd) Refuse("it is too short for a line");
        return Checked_bounds(head.data() + RecordHeaderSize + 4);
    }

    // A file that is not in degrees is refused even when none of its records is looked into.
    GeoBox Checked_bounds(const char* bytes) const {
        const GeoBox bounds{Little_endian_double(bytes), Little_endian_double(bytes + 8),
                            Little_endian_double(bytes + 16), Little_endian_double(bytes + 24)};
        if (!Is_in_degrees(bounds.West, bounds.South))
            Refuse(Beyond_degrees_text(bounds.West, bounds.South));
        if (!Is_in_degrees(bounds.East, bounds.North))
            Refuse(Beyond_degrees_text(bounds.East, bounds.North));
        return bounds;
    }

    Shape Read_shape() {
        Shape shape(SHPReadObject(&file_, record_));
        if (!shape) Refuse("its numbers of parts and points contradict its length");
        return shape;
    }

    void Add(const SHPObject& shape) {
        const bool is_polygon = Is_polygon(shape.nSHPType);
        for (int part = 0; part < shape.nParts; ++part) {
            const int start = shape.panPartStart[part];
            const int end =
                part + 1 < shape.nParts ? shape.panPartStart[part + 1] : shape.nVertices;
            if (start < 0 || end < start || end > shape.nVertices)
                Refuse("its part " + std::to_string(part + 1) + " begins after its end");
            runs_.Begin_line(is_polygon ? CoastRole::OuterRing : CoastRole::Line, Here());
            for (int at = start; at < end; ++at)
                if (!runs_.Add(shape.padfX[at], shape.padfY[at]))
                    Refuse(Beyond_degrees_text(shape.padfX[at], shape.padfY[at]));
            if (is_polygon) runs_.Close();
            runs_.End_line();
        }
        runs_.Keep(is_polygon ? CoastSides::ByLargest : CoastSides::None);
    }

    SHPInfo& file_;
    CoastRuns& runs_;
    int record_ = 0;
};

}  // namespace

void Read_shapefile(const fs::path& path, CoastRuns& runs, const CoastProgress& progress) {
    const auto index = File_beside(path, ".shx");
    if (!index)
        throw CoastRefusal{"", "its index " + Name_of(fs::path(path).replace_extension(".shx")) +
                                   " is not beside it"};
    Check_header(path);
    Check_header(*index);
    Check_coordinates(path, runs);
    SAHooks hooks = Shapefile_hooks();
    const std::u8string name = path.u8string();
    const Shapefile file(SHPOpenLL(std::string(name.begin(), name.end()).c_str(), "rb", &hooks));
    if (!file) throw CoastRefusal{"", "it cannot be read as a shapefile"};
    SHPSetFastModeReadObject(file.get(), 1);
    ShapefileReader reader(*file, runs);
    for (int record = 0; record < file->nRecords; ++record) {
        if (progress && record % RecordsBetweenReports == 0 &&
            !progress(static_cast<double>(record) / file->nRecords))
            throw CoastCancelled();
        reader.Read_record(record);
    }
}

}  // namespace tidemark
