// The two assembler files: their text line by line, and the refusals.
#include "output/assembler_files.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "fakes/memory_files.h"
#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "model/segments.h"
#include "output/lwm_text.h"
#include "output/vtp_text.h"

namespace tidemark {
namespace {

using Lines = std::vector<std::string>;

// The lines of a file, each checked to end with CR LF.
Lines Split(const std::string& bytes) {
    Lines lines;
    std::istringstream stream(bytes);
    for (std::string line; std::getline(stream, line);) {
        EXPECT_TRUE(line.ends_with('\r')) << line;
        EXPECT_FALSE(line == "\r") << "no line is empty";
        if (!line.empty()) line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

// The lines from the first one equal to `first` on, `count` of them.
Lines From(const Lines& lines, const std::string& first, std::size_t count) {
    const auto start = std::find(lines.begin(), lines.end(), first);
    if (start == lines.end()) return {"no line: " + first};
    const auto left = static_cast<std::size_t>(lines.end() - start);
    return {start, start + static_cast<std::ptrdiff_t>(std::min(count, left))};
}

std::ptrdiff_t Count(const Lines& lines, const std::string& line) {
    return std::count(lines.begin(), lines.end(), line);
}

Project Project_at_cell_3_5() {
    Project p;
    p.BGLOD8X = 400;
    p.BGLOD8Y = 100;
    p.BGLOD13tlX = 3;
    p.BGLOD13tlY = 5;
    p.AreaLeftVTP = 4848;
    p.AreaTopVTP = 5360;
    p.CellLatitude = 55;
    p.CellLongitude = 8;
    return p;
}

// A file that was checked line by line against the compiler's macros.
std::string Expected_file(const char* name) {
    std::ostringstream content;
    content << std::ifstream(std::string(TIDEMARK_SOURCE_DIR "/tests/output/data/") + name,
                             std::ios::binary)
                   .rdbuf();
    return content.str();
}

TEST(VTPTextTest, TheWholeFileOfOneSegmentAndOneClearedCell) {
    Project p = Project_at_cell_3_5();
    Add_segment(p, 1, 80, {{5460, 6000}, {5500, 6100}, {5600, 6150}});
    Add_cleared_cell(p, 5, 17, 31);
    EXPECT_EQ(VTP_file_bytes(p), Expected_file("one-segment-VTP.asm"));
}

TEST(VTPTextTest, SegmentsAreGroupedByLayerThenTextureThenPoint) {
    Project p = Project_at_cell_3_5();
    for (const int mode : {9, 2, 7, 0, 1, 6, 5, 4, 3, 1})
        Add_segment(p, mode, 10 * mode + p.VTPCount, {{5000, 6000}, {5010, 6000}});
    const Lines lines = Split(VTP_file_bytes(p));
    Lines order;
    for (const std::string& line : lines) {
        const std::string text = line.substr(std::min(line.find_first_not_of(' '), line.size()));
        const bool is_width = text.starts_with("VTPWidePointWidth") && text.size() > 19;
        if (text.starts_with("VTPLayer") || text.starts_with("VTPTextureId") ||
            text.starts_with("VTPNumTextures") || text.starts_with("VTPPolyCount") || is_width)
            order.push_back(text);
    }
    EXPECT_EQ(order, Lines({"VTPLayer 8, 1",
                            "VTPNumTexturesInLayer 4, 0",
                            "VTPTextureId 0, 0",
                            "VTPPolyCount 2, 0",
                            "VTPWidePointWidth 18",
                            "VTPWidePointWidth 28",
                            "VTPTextureId 1, 0",
                            "VTPPolyCount 1, 0",
                            "VTPWidePointWidth 22",
                            "VTPTextureId 2, 0",
                            "VTPPolyCount 1, 0",
                            "VTPWidePointWidth 46",
                            "VTPTextureId 3, 0",
                            "VTPPolyCount 1, 0",
                            "VTPWidePointWidth 54",
                            "VTPLayer 16, 1",
                            "VTPNumTexturesInLayer 1, 0",
                            "VTPTextureId 4, 0",
                            "VTPPolyCount 1, 0",
                            "VTPWidePointWidth 62",
                            "VTPLayer 31, 1",
                            "VTPNumTexturesInLayer 1, 0",
                            "VTPTextureId 5, 0",
                            "VTPPolyCount 1, 0",
                            "VTPWidePointWidth 70",
                            "VTPLayer 32, 1",
                            "VTPNumTexturesInLayer 2, 0",
                            "VTPTextureId 6, 0",
                            "VTPPolyCount 1, 0",
                            "VTPWidePointWidth 74",
                            "VTPTextureId 7, 0",
                            "VTPPolyCount 1, 0",
                            "VTPWidePointWidth 90"}));
}

TEST(VTPTextTest, LongSegmentsAnnounceTheirPointsInTwoLines) {
    struct Case {
        int Points;
        Lines Method;
    };
    for (const auto& [points, method] :
         {Case{2, {"      VTPPolyMethod2 6, 1, 0"}},
          {27, {"      VTPPolyMethod2 31, 1, 0"}},
          {28, {"      VTPPolyMethod2 31, 1, 0", "      VTPPolyMethod2Ex 1"}},
          {200, {"      VTPPolyMethod2 31, 1, 0", "      VTPPolyMethod2Ex 173"}}}) {
        Project p = Project_at_cell_3_5();
        std::vector<std::pair<int, int>> line;
        for (int i = 0; i < points; ++i) line.emplace_back(5000 + 10 * i, 6000);
        Add_segment(p, 5, 80, line);
        const Lines lines = Split(VTP_file_bytes(p));
        EXPECT_EQ(From(lines, method[0], method.size()), method);
        const auto points_written = std::count_if(lines.begin(), lines.end(), [](const auto& l) {
            return l.starts_with("        VTPWidePoint ");
        });
        EXPECT_EQ(points_written, points + 4);
    }
}

TEST(VTPTextTest, TheLastUnitOfACellAndTheFirstOfTheNextAreWrittenAlike) {
    Project p = Project_at_cell_3_5();
    const int west_edge = 4080 + 256 * 7;
    Add_segment(p, 1, 80, {{west_edge - 1, 5360}, {west_edge, 5360}});
    const Lines lines = Split(VTP_file_bytes(p));
    EXPECT_EQ(Count(lines, "        VTPWidePoint 5865, 1, 5355, 0"), 3);
}

TEST(AssemblerTextTest, TheLimitsStayWithinPolesAndDateLine) {
    struct Case {
        int Latitude, Longitude;
        const char* Limits;
    };
    for (const auto& [latitude, longitude, limits] : {Case{55, 8, "57, 53, 10, 6"},
                                                      {89, 179, "90, 87, 180, 177"},
                                                      {-89, -180, "-87, -90, -178, -180"},
                                                      {32767, -32768, "90, 32765, -32766, -180"}}) {
        Project p;
        p.CellLatitude = latitude;
        p.CellLongitude = longitude;
        EXPECT_EQ(Split(VTP_file_bytes(p))[9],
                  std::string("BGLHeader ") + limits + ", TerrainHeaderStart, VTPHeader");
        EXPECT_EQ(Split(LWM_file_bytes(p))[9],
                  std::string("BGLHeader ") + limits + ", LWMHeader, TerrainHeaderStart");
    }
}

TEST(LWMTextTest, TheWholeFileOfOnePolygonAndThePolygonLines) {
    Project p = Project_at_cell_3_5();
    Add_polygon(p, 12, 7, 11, 15, 4);
    EXPECT_EQ(LWM_file_bytes(p), Expected_file("one-polygon-LWM.asm"));
    p.LWMCount = 0;
    EXPECT_EQ(Split(LWM_file_bytes(p)).size(), 33U);

    struct Case {
        int Type, Height, Points;
        const char* Line;
    };
    for (const auto& [type, height, points, line] :
         {Case{10, -9999, 4, "         LWMPoly2 4, 0, 0,-9999, 0"},
          {11, 0, 62, "         LWMPoly2 62, 0, 1, 0, 0"},
          {11, 15, 63, "         LWMPoly2Ex 63, 0, 1, 15, 0, 0"},
          {11, 15, 70, "         LWMPoly2Ex 63, 0, 1, 15, 0, 7"},
          {10, 10000, 200, "         LWMPoly2Ex 63, 0, 0,10000, 0, 137"}}) {
        p.LWMCount = 0;
        Add_polygon(p, 12, 7, type, height, points);
        EXPECT_EQ(Split(LWM_file_bytes(p))[20], line);
    }
}

struct RefusalCase {
    const char* Name;
    void (*Draw)(Project&);
    std::string Text;
};

TEST(AssemblerFilesTest, WhatCannotBeWrittenIsRefusedAndTheOldFileStays) {
    const std::string single =
        "VTP file generation aborted - there is a VTP segment with only one point in it!\n"
        "Please delete this point and try again.";
    const std::string nothing =
        "VTP file generation aborted - no valid coast segments or cell clearing data found in VTP "
        "data!";
    const RefusalCase cases[] = {
        {"nothing", [](Project&) {}, nothing},
        {"plain edges only",
         [](Project& p) {
             Add_segment(p, 0, 80, {{1, 1}, {2, 2}});
         },
         nothing},
        {"single point",
         [](Project& p) {
             Add_cleared_cell(p, 1, 1, 8);
             Add_segment(p, 0, 80, {{5000, 5000}});
         },
         single},
        {"mode 8",
         [](Project& p) {
             Add_segment(p, 8, 80, {{5000, 5000}, {5001, 5000}});
         },
         "VTP file generation aborted - the segment that starts at point 1 has the unknown drawing "
         "mode 8!"},
        {"far away",
         [](Project& p) {
             Add_segment(p, 1, 80, {{-32768, 0}, {0, 0}});
         },
         "VTP file generation aborted - a point lies too far outside the map!"},
    };
    for (const RefusalCase& refusal : cases) {
        Project p = Project_at_cell_3_5();
        p.VTPFileName = "coast-VTP.asm";
        refusal.Draw(p);
        MemoryFiles files;
        files.Content["coast-VTP.asm"] = "old";
        RecordingMessages messages;
        EXPECT_FALSE(Save_VTP_file(p, messages, files)) << refusal.Name;
        EXPECT_TRUE(p.VTPWriteFailed) << refusal.Name;
        EXPECT_EQ(messages.Texts(), Lines{refusal.Text}) << refusal.Name;
        EXPECT_EQ(files.Content["coast-VTP.asm"], "old") << refusal.Name;
    }
}

TEST(AssemblerFilesTest, ASavedFileIsSaidToBeUnlessAnActionWillShowIt) {
    struct Case {
        bool Notepad, Compile, FailsToWrite;
        Lines VTPTexts, LWMTexts;
    };
    const Lines none;
    for (const Case& c :
         {Case{false, false, false, {"VTP file saved OK"}, {"LWM file saved OK"}},
          Case{true, false, false, none, none}, Case{false, true, false, none, none},
          Case{false,
               false,
               true,
               {"v.asm could not be written: No space left on device"},
               {"l.asm could not be written: No space left on device"}}}) {
        Project p = Project_at_cell_3_5();
        p.VTPFileName = "v.asm";
        p.LWMFileName = "l.asm";
        p.VTPNotepad = p.LWMNotepad = c.Notepad;
        p.VTPCompile = p.LWMCompile = c.Compile;
        p.VTPWriteFailed = true;
        Add_cleared_cell(p, 1, 1, 8);
        MemoryFiles files;
        if (c.FailsToWrite) files.WriteError = "No space left on device";
        RecordingMessages vtp, lwm;
        EXPECT_EQ(Save_VTP_file(p, vtp, files), !c.FailsToWrite);
        EXPECT_EQ(p.VTPWriteFailed, c.FailsToWrite);
        EXPECT_EQ(Save_LWM_file(p, lwm, files), !c.FailsToWrite);
        EXPECT_EQ(vtp.Texts(), c.VTPTexts);
        EXPECT_EQ(lwm.Texts(), c.LWMTexts);
        EXPECT_EQ(files.Content.count("v.asm") + files.Content.count("l.asm"),
                  c.FailsToWrite ? 0U : 2U);
    }
}

}  // namespace
}  // namespace tidemark
