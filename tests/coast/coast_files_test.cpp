// Files of coastlines in all four formats: what is read of them, and why they are refused.
#include <cmath>
#include <cstring>
#include <fstream>
#include <limits>
#include <shapefil.h>

#include "coast/coast_file.h"
#include "fakes/rules_test.h"

namespace tidemark {

namespace {

std::string With_each(const std::string& text, char letter, const std::string& replacement) {
    std::string made;
    for (const char other : text) made += other == letter ? replacement : std::string(1, other);
    return made;
}

// "polygon 0,0 0,1 1,1 / 3,3 4,4 5,3": a record of that type and its parts.
void Write_record(SHPInfo* file, int type, const std::string& text) {
    std::vector<int> starts;
    std::vector<double> x, y;
    std::istringstream parts(With_each(text.substr(text.find(' ')), ',', " "));
    for (std::string part; std::getline(parts, part, '/');) {
        starts.push_back(static_cast<int>(x.size()));
        std::istringstream numbers(part);
        for (double east = 0, north = 0; numbers >> east >> north;) {
            x.push_back(east);
            y.push_back(north);
        }
    }
    SHPObject* const shape =
        SHPCreateObject(type, -1, static_cast<int>(starts.size()), starts.data(), nullptr,
                        static_cast<int>(x.size()), x.data(), y.data(), nullptr, nullptr);
    SHPWriteObject(file, -1, shape);
    SHPDestroyObject(shape);
}

// Records stand between "|" and are all of the first one's type.
void Write_shapefile(const std::string& path, const std::string& text) {
    const int type = text.starts_with("polygon") ? SHPT_POLYGON
                     : text.starts_with("point") ? SHPT_POINT
                                                 : SHPT_ARC;
    SHPInfo* const file = SHPCreate(path.c_str(), type);
    std::istringstream records(text);
    for (std::string record; std::getline(records, record, '|');)
        Write_record(file, type, record.substr(record.find_first_not_of(' ')));
    SHPClose(file);
}

std::string In_utf16(const std::string& text) {
    std::string wide = "\xFF\xFE";
    for (const char letter : text) wide += {letter, '\0'};
    return wide;
}

std::string Repeated(const std::string& text, int times) {
    std::string repeated;
    for (int time = 0; time < times; ++time) repeated += text;
    return repeated;
}

// "~" begins a new line; what stands in "{{...}}" comes 10,000 times.
std::string File_bytes(const std::string& text, const std::string& how) {
    std::string bytes = With_each(text, '~', "\n");
    const auto start = bytes.find("{{"), end = bytes.find("}}");
    if (how == "10000 times")
        bytes.replace(start, end + 2 - start,
                      Repeated(bytes.substr(start + 2, end - start - 2), 10000));
    if (how == "with BOM") return "\xEF\xBB\xBF" + bytes;
    if (how == "in UTF-16") return In_utf16(bytes);
    return bytes;
}

std::string Text_of(const CoastLine& line) {
    std::ostringstream text;
    text << line.Origin << (line.Ring ? " ring" : " open");
    if (line.LandOnLeft) text << (*line.LandOnLeft ? " left" : " right");
    for (const CoastPosition& position : line.Positions)
        text << ' ' << position.Longitude << ',' << position.Latitude;
    return text.str();
}

std::string Text_of_reading(const std::string& path, const std::vector<GeoBox>& boxes) {
    const CoastFileReading reading = Read_coast_file(path, boxes);
    if (reading.Refusal) {
        EXPECT_TRUE(reading.Lines.empty());
        return Refusal_text(path, *reading.Refusal);
    }
    std::string text;
    for (const auto& lines : reading.Lines)
        for (const CoastLine& line : lines) text += (text.empty() ? "" : "; ") + Text_of(line);
    for (const std::string& remark : reading.Remarks) text += "; " + Remark_text(path, remark);
    return text;
}

}  // namespace

TEST(CoastFilesTest, LinesAreReadAlikeFromAllFormatsAndDamageIsRefusedInWords) {
    Expect_cases("coast/data/coast_files.txt", [](const Given& given) {
        const TemporaryFolder folder;
        const std::string path = folder / given[0];
        std::istringstream numbers(given[1]);
        GeoBox box{-10, -10, 10, 10};
        if (!given[1].empty()) numbers >> box.West >> box.South >> box.East >> box.North;
        const std::string how = given.size() > 3 ? given[3] : "";
        if (path.ends_with(".shp"))
            Write_shapefile(path, given[2]);
        else
            std::ofstream(path, std::ios::binary) << File_bytes(given[2], how);
        if (how.starts_with("prj ")) std::ofstream(folder / "a.PRJ") << how.substr(4);
        return Text_of_reading(path, {box});
    });
}

// Writes over bytes of a file that is there, or cuts it off.
static void Damage(const std::string& path, std::size_t at, const std::string& bytes) {
    if (bytes.empty()) return std::filesystem::resize_file(path, at);
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(at));
    file << bytes;
}

TEST(CoastFilesTest, DamagedShapefilesAreRefusedInWords) {
    using namespace std::string_literals;
    struct Case {
        const char* File;
        std::size_t At;
        std::string Bytes;
        const char* Says;
    };
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    std::string not_a_number(8, '\0');
    std::memcpy(not_a_number.data(), &nan, 8);
    const std::vector<Case> cases{
        {"a.shp", 180, "", "a.shp: a.shp has 180 bytes, but its header says 220"},
        {"a.shp", 3, "\1"s, "a.shp: a.shp is no file of a shapefile"},
        {"a.shp", 24, "\x7F\xFF\xFF\xFF"s,
         "a.shp: a.shp has 220 bytes, but its header says 4294967294"},
        {"a.shx", 24, "\x7F\xFF\xFF\xFF"s,
         "a.shp: a.shx has 108 bytes, but its header says 4294967294"},
        {"a.shx", 100, "\x40\0\0\0"s,
         "a.shp, record 1: the index says that it ends at byte 2147483768 of a file of 220"},
        {"a.shx", 104, "\0\0\0\x10"s, "a.shp, record 1: its length and that in the index differ"},
        {"a.shp", 108, "\x1F\0\0\0"s, "a.shp, record 1: it is neither a line nor a polygon"},
        {"a.shp", 112, not_a_number,
         "a.shp, record 1: nan, 0 is no longitude and latitude in degrees; "
         "projected coordinates cannot be read"},
        {"a.shp", 144, "\xFF\xFF\xFF\x7F"s,
         "a.shp, record 1: its numbers of parts and points contradict its length"},
        {"a.shp", 148, "\xFF\xFF\xFF\x02"s,
         "a.shp, record 1: its numbers of parts and points contradict its length"},
        {"a.shp", 164, not_a_number,
         "a.shp, record 1: 0, nan is no longitude and latitude in degrees; "
         "projected coordinates cannot be read"},
        {"a.shx", 0, "", "a.shp: a.shx is no file of a shapefile"},
    };
    for (const Case& one : cases) {
        const TemporaryFolder folder;
        Write_shapefile(folder / "a.shp", "line 0,0 1,0 1,1 0,1");
        Damage(folder / one.File, one.At, one.Bytes);
        EXPECT_EQ(Text_of_reading(folder / "a.shp", {{-10, -10, 10, 10}}), one.Says);
    }
}

TEST(CoastFilesTest, AShapefileIsFoundInAnyCaseAndNeedsItsIndex) {
    const TemporaryFolder folder;
    Write_shapefile(folder / "a.shp", "line 0,0 1,0");
    std::filesystem::rename(folder / "a.shp", folder / "a.Shp");
    std::filesystem::rename(folder / "a.shx", folder / "a.sHX");
    EXPECT_EQ(Text_of_reading(folder / "a.Shp", {{-10, -10, 10, 10}}), "record 1 open 0,0 1,0");
    std::filesystem::remove(folder / "a.sHX");
    EXPECT_EQ(Text_of_reading(folder / "a.Shp", {}), "a.Shp: its index a.shx is not beside it");
}

TEST(CoastFilesTest, EachBoxHasItsOwnLinesAndReadingCanBeCancelled) {
    const TemporaryFolder folder;
    const std::string path = folder / "two boxes.GeoJSON";
    std::ofstream(path) << R"({"type":"LineString","coordinates":[[0,0],[1,0],[2,0],[3,0]]})";
    const std::vector<GeoBox> boxes{{2.5, -1, 9, 1}, {20, 20, 21, 21}, {0.2, -1, 0.5, 1}};
    const CoastFileReading reading = Read_coast_file(path, boxes);
    ASSERT_EQ(reading.Lines.size(), 3U);
    EXPECT_EQ(Text_of(reading.Lines[0].at(0)), "line 1 open 2,0 3,0");
    EXPECT_TRUE(reading.Lines[1].empty());
    EXPECT_EQ(Text_of(reading.Lines[2].at(0)), "line 1 open 0,0 1,0");

    const CoastFileReading cancelled = Read_coast_file(path, boxes, [](double) { return false; });
    EXPECT_TRUE(cancelled.Cancelled && cancelled.Lines.empty() && !cancelled.Refusal);
}

}  // namespace tidemark
