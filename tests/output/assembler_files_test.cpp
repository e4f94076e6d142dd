// The two assembler files: their text line by line, the stand-in compiler's opinion of them, and
// the refusals.
#include "output/assembler_files.h"

#include <sstream>

#include <gtest/gtest.h>

#include "fakes/environment.h"
#include "fakes/fake_platform.h"
#include "fakes/sample_projects.h"
#include "model/project_file.h"
#include "output/lwm_text.h"
#include "output/vtp_text.h"
#include "standin/assembler_check.h"

namespace tidemark {
namespace {

using Lines = std::vector<std::string>;
using Points = std::vector<std::pair<int, int>>;

// The lines that begin with one of the words, without their blanks and CR.
Lines Lines_of(const std::string& bytes, const Lines& words) {
    Lines lines;
    std::istringstream stream(bytes);
    for (std::string line; std::getline(stream >> std::ws, line, '\r');)
        for (const std::string& word : words)
            if (line.starts_with(word + " ")) lines.push_back(line);
    return lines;
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

// The files were checked line by line against the compiler's macros.
TEST(AssemblerTextTest, TheWholeFileOfOneSegmentAndOneClearedCellAndThatOfOnePolygon) {
    const std::string folder = TIDEMARK_SOURCE_DIR "/tests/output/data/";
    Project p = Project_at_cell_3_5();
    Add_segment(p, 1, 80, {{5460, 6000}, {5500, 6100}, {5600, 6150}});
    Add_cleared_cell(p, 5, 17, 31);
    EXPECT_EQ(VTP_file_bytes(p), File_content(folder + "one-segment-VTP.asm"));
    Add_polygon(p, 12, 7, 11, 15, 4);
    EXPECT_EQ(LWM_file_bytes(p), File_content(folder + "one-polygon-LWM.asm"));
}

TEST(AssemblerTextTest, TheCompilerTakesBothFilesOfEveryProject) {
    Project sample, largest = Largest_project();
    Read_project(File_content(TIDEMARK_SOURCE_DIR "/sample/golden-gate.TDM"), sample);
    largest.BGLOD8X = 767;
    largest.BGLOD8Y = 511;
    for (const Project& project : {sample, largest, Project()})
        for (const std::string& bytes : {VTP_file_bytes(project), LWM_file_bytes(project)})
            EXPECT_FALSE(Check_assembler(bytes)) << Check_assembler(bytes)->What;
}

TEST(VTPTextTest, SegmentsAreGroupedByLayerThenTextureThenPoint) {
    Project p = Project_at_cell_3_5();
    for (const int mode : {9, 2, 7, 0, 1, 6, 5, 4, 3, 1})
        Add_segment(p, mode, 10 * mode + p.VTPCount, {{5000, 6000}, {5010, 6000}});
    std::string order;
    for (const std::string& line :
         Lines_of(VTP_file_bytes(p), {"VTPLayer", "VTPTextureId", "VTPWidePointWidth"})) {
        const std::string arguments = line.substr(line.find(' ') + 1);
        const std::string first = arguments.substr(0, arguments.find(','));
        if (line[3] != 'W' || first.size() > 1) order += line.substr(3, 1) + first + " ";
    }
    EXPECT_EQ(order, "L8 T0 W18 W28 T1 W22 T2 W46 T3 W54 L16 T4 W62 L31 T5 W70 L32 T6 W74 T7 W90 ");
}

TEST(VTPTextTest, LongSegmentsAnnounceTheirPointsInTwoLines) {
    for (const auto& [points, method] :
         {std::pair{2, Lines{"VTPPolyMethod2 6, 1, 0"}},
          {27, {"VTPPolyMethod2 31, 1, 0"}},
          {28, {"VTPPolyMethod2 31, 1, 0", "VTPPolyMethod2Ex 1"}},
          {200, {"VTPPolyMethod2 31, 1, 0", "VTPPolyMethod2Ex 173"}}}) {
        Project p = Project_at_cell_3_5();
        Add_segment(p, 5, 80, Points(static_cast<std::size_t>(points), {5000, 6000}));
        const std::string bytes = VTP_file_bytes(p);
        EXPECT_EQ(Lines_of(bytes, {"VTPPolyMethod2", "VTPPolyMethod2Ex"}), method);
        EXPECT_EQ(Lines_of(bytes, {"VTPWidePoint"}).size(), static_cast<std::size_t>(points) + 4);
    }
}

TEST(VTPTextTest, TheLastUnitOfACellAndTheFirstOfTheNextAreWrittenAlike) {
    Project p = Project_at_cell_3_5();
    Add_segment(p, 1, 80, {{4080 + 256 * 7 - 1, 5360}, {4080 + 256 * 7, 5360}});
    const Lines lines = Lines_of(VTP_file_bytes(p), {"VTPWidePoint"});
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "VTPWidePoint 5865, 1, 5355, 0"), 3);
}

TEST(AssemblerTextTest, TheLimitsStayWithinPolesAndDateLine) {
    for (const auto& [latitude, longitude, limits] : {std::tuple{55, 8, "57, 53, 10, 6"},
                                                      {89, 179, "90, 87, 180, 177"},
                                                      {-89, -180, "-87, -90, -178, -180"},
                                                      {32767, -32768, "90, 32765, -32766, -180"}}) {
        Project p;
        p.CellLatitude = latitude;
        p.CellLongitude = longitude;
        const std::string header = std::string("BGLHeader ") + limits;
        EXPECT_EQ(Lines_of(VTP_file_bytes(p), {"BGLHeader"}),
                  Lines{header + ", TerrainHeaderStart, VTPHeader"});
        EXPECT_EQ(Lines_of(LWM_file_bytes(p), {"BGLHeader"}),
                  Lines{header + ", LWMHeader, TerrainHeaderStart"});
    }
}

TEST(LWMTextTest, APolygonsLineTellsItsPointsTypeAndHeight) {
    for (const auto& [type, height, points, line] :
         {std::tuple{10, -9999, 4, "LWMPoly2 4, 0, 0,-9999, 0"},
          {11, 0, 62, "LWMPoly2 62, 0, 1, 0, 0"},
          {11, 15, 63, "LWMPoly2Ex 63, 0, 1, 15, 0, 0"},
          {10, 10000, 200, "LWMPoly2Ex 63, 0, 0,10000, 0, 137"}}) {
        Project p = Project_at_cell_3_5();
        Add_polygon(p, 12, 7, type, height, points);
        EXPECT_EQ(Lines_of(LWM_file_bytes(p), {"LWMPoly2", "LWMPoly2Ex"}), Lines{line});
    }
}

TEST(AssemblerFilesTest, WhatCannotBeWrittenIsRefusedAndTheOldFileStays) {
    const std::string nothing = "no valid coast segments or cell clearing data found in VTP data!";
    const std::string single =
        "there is a VTP segment with only one point in it!\nPlease delete this point and try "
        "again.";
    const std::string mode_8 = "the segment that starts at point 1 has the unknown drawing mode 8!";
    for (const auto& [mode, points, text] :
         {std::tuple{1, Points{}, nothing},
          {0, {{1, 1}, {2, 2}}, nothing},
          {0, {{5000, 5000}}, single},
          {8, {{5000, 5000}, {5001, 5000}}, mode_8},
          {1, {{-32768, 0}, {0, 0}}, "a point lies too far outside the map!"}}) {
        Project p = Project_at_cell_3_5();
        Add_segment(p, mode, 80, points);
        p.VTPFileName = "v.asm";
        FakePlatform fake;
        fake.files.Content["v.asm"] = "old";
        EXPECT_FALSE(Save_VTP_file(p, fake.messages, fake.files)) << text;
        EXPECT_TRUE(p.VTPWriteFailed) << text;
        EXPECT_EQ(fake.messages.Texts(), Lines{"VTP file generation aborted - " + text});
        EXPECT_EQ(fake.files.Content["v.asm"], "old") << text;
    }
}

TEST(AssemblerFilesTest, ASavedFileIsSaidToBeUnlessAnActionWillShowIt) {
    for (const auto& [notepad, compile, error, vtp, lwm] :
         {std::tuple{false, false, "", "VTP file saved OK", "LWM file saved OK"},
          {true, false, "", "", ""},
          {false, true, "", "", ""},
          {true, true, "full", "v could not be written: full", "l could not be written: full"}}) {
        Project p = Project_at_cell_3_5();
        Add_cleared_cell(p, 1, 1, 8);
        p.VTPFileName = "v";
        p.LWMFileName = "l";
        p.VTPNotepad = p.LWMNotepad = notepad;
        p.VTPCompile = p.LWMCompile = compile;
        p.VTPWriteFailed = true;
        FakePlatform fake;
        fake.files.WriteError = error;
        const bool saved = fake.files.WriteError.empty();
        EXPECT_EQ(Save_VTP_file(p, fake.messages, fake.files), saved);
        EXPECT_EQ(fake.messages.Shown.empty() ? "" : fake.messages.Shown.back().Text, vtp);
        EXPECT_EQ(p.VTPWriteFailed, !saved);
        EXPECT_EQ(Save_LWM_file(p, fake.messages, fake.files), saved);
        EXPECT_EQ(fake.messages.Shown.empty() ? "" : fake.messages.Shown.back().Text, lwm);
    }
}

}  // namespace
}  // namespace tidemark
