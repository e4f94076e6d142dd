// The two assembler files: their whole text, the stand-in compiler's opinion of them, and the
// refusals.
#include "output/assembler_files.h"

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

using Points = std::vector<std::pair<int, int>>;

class AssemblerFilesTest : public testing::Test {
  protected:
    AssemblerFilesTest() {
        Place_area(p, 3, 5, 31, 31);
        p.BGLOD8X = 400;
        p.BGLOD8Y = 100;
        p.CellLatitude = 55;
        p.CellLongitude = 8;
    }

    // The file was checked line by line against the compiler's macros.
    void Expect_file(const std::string& bytes, const std::string& name) const {
        EXPECT_EQ(bytes, Source_file("tests/output/data/" + name));
        EXPECT_FALSE(Check_assembler(bytes)) << Check_assembler(bytes)->What;
    }

    Project p;
};

TEST_F(AssemblerFilesTest, TheWholeFileOfOneSegmentAndOneClearedCellAndThatOfOnePolygon) {
    Add_segment(p, 1, 80, {{5460, 6000}, {5500, 6100}, {5600, 6150}});
    Add_cleared_cell(p, 5, 17, 31);
    Expect_file(VTP_file_bytes(p), "one-segment-VTP.asm");
    Add_polygon(p, 12, 7, 11, 15, 4);
    Expect_file(LWM_file_bytes(p), "one-polygon-LWM.asm");
}

// Segments are grouped by layer, then texture, then point, and long ones announce their points in
// two lines, as long polygons do. The last unit of a cell and the first of the next are alike.
TEST_F(AssemblerFilesTest, TheWholeFilesOfEveryModeAndOfLongRecords) {
    for (const int mode : {9, 2, 7, 0, 1, 6, 5, 4, 3, 1})
        Add_segment(p, mode, 10 * mode + p.VTPCount, {{5871, 5360}, {5872, 5360}});
    for (const std::size_t points : {27, 28}) Add_segment(p, 5, 80, Points(points, {5000, 6000}));
    Expect_file(VTP_file_bytes(p), "every-mode-VTP.asm");
    Add_polygon(p, 12, 7, 10, -9999, 4);
    Add_polygon(p, 13, 7, 11, 0, 62);
    Add_polygon(p, 12, 8, 11, 15, 63);
    Add_polygon(p, 13, 8, 10, 10000, 200);
    Expect_file(LWM_file_bytes(p), "long-polygons-LWM.asm");
}

TEST_F(AssemblerFilesTest, TheCompilerTakesBothFilesOfEveryProject) {
    Project sample, largest = Largest_project();
    Read_project(Source_file("sample/golden-gate.TDM"), sample);
    largest.BGLOD8X = 767;
    largest.BGLOD8Y = 511;
    for (const Project& project : {sample, largest, Project()})
        for (const std::string& bytes : {VTP_file_bytes(project), LWM_file_bytes(project)})
            EXPECT_FALSE(Check_assembler(bytes)) << Check_assembler(bytes)->What;
}

TEST_F(AssemblerFilesTest, TheLimitsStayWithinPolesAndDateLine) {
    for (const auto& [latitude, longitude, limits] :
         {std::tuple{89, 179, "\nBGLHeader 90, 87, 180, 177, "},
          {-89, -180, "\nBGLHeader -87, -90, -178, -180, "},
          {32767, -32768, "\nBGLHeader 90, 32765, -32766, -180, "}}) {
        p.CellLatitude = latitude;
        p.CellLongitude = longitude;
        EXPECT_NE(VTP_file_bytes(p).find(limits), std::string::npos) << limits;
    }
}

TEST_F(AssemblerFilesTest, WhatCannotBeWrittenIsRefusedAndTheOldFileStays) {
    const std::string nothing = "no valid coast segments or cell clearing data found in VTP data!";
    const std::string single =
        "there is a VTP segment with only one point in it!\nPlease delete this point and try "
        "again.";
    const std::string mode_8 = "the segment that starts at point 1 has the unknown drawing mode 8!";
    p.VTPFileName = "v.asm";
    for (const auto& [mode, points, text] :
         {std::tuple{1, Points{}, nothing},
          {0, {{1, 1}, {2, 2}}, nothing},
          {0, {{5000, 5000}}, single},
          {8, {{5000, 5000}, {5001, 5000}}, mode_8},
          {1, {{-32768, 0}, {0, 0}}, "a point lies too far outside the map!"}}) {
        p.VTPCount = 0;
        Add_segment(p, mode, 80, points);
        FakePlatform fake;
        fake.files.Content["v.asm"] = "old";
        EXPECT_FALSE(Save_VTP_file(p, fake.messages, fake.files)) << text;
        EXPECT_TRUE(p.VTPWriteFailed) << text;
        EXPECT_EQ(fake.messages.Said(), "VTP file generation aborted - " + text);
        EXPECT_EQ(fake.files.Content["v.asm"], "old") << text;
    }
}

TEST_F(AssemblerFilesTest, ASavedFileIsSaidToBeUnlessAnActionWillShowIt) {
    const std::string saved = "Tidemark - File saved: ";
    Add_cleared_cell(p, 1, 1, 8);
    p.VTPFileName = "v";
    p.LWMFileName = "l";
    for (const auto& [notepad, compile, error, vtp, lwm] :
         {std::tuple{false, false, "", saved + "VTP file saved OK", saved + "LWM file saved OK"},
          {true, false, "", "", ""},
          {false, true, "", "", ""},
          {true, true, "full", "v could not be written: full", "l could not be written: full"}}) {
        p.VTPNotepad = p.LWMNotepad = notepad;
        p.VTPCompile = p.LWMCompile = compile;
        p.VTPWriteFailed = true;
        FakePlatform fake;
        fake.files.WriteError = error;
        const bool is_saved = fake.files.WriteError.empty();
        EXPECT_EQ(Save_VTP_file(p, fake.messages, fake.files), is_saved);
        EXPECT_EQ(fake.messages.Said(), vtp);
        EXPECT_EQ(p.VTPWriteFailed, !is_saved);
        EXPECT_EQ(Save_LWM_file(p, fake.messages, fake.files), is_saved);
        EXPECT_EQ(fake.messages.Said(), lwm);
    }
}

}  // namespace
}  // namespace tidemark
