// The two assembler files: their whole text, the stand-in compiler's opinion of them, and the
// refusals.
#include "output/assembler_files.h"

#include "fakes/rules_test.h"
#include "output/lwm_text.h"
#include "output/vtp_text.h"
#include "standin/assembler_check.h"

namespace tidemark {

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
    Session session;
    FakePlatform fake;
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
    for (const std::size_t points : {27U, 28U}) Add_segment(p, 5, 80, Points(points, {5000, 6000}));
    Expect_file(VTP_file_bytes(p), "every-mode-VTP.asm");
    Add_polygon(p, 12, 7, 10, -9999, 4);
    Add_polygon(p, 13, 7, 11, 0, 62);
    Add_polygon(p, 12, 8, 11, 15, 63);
    Add_polygon(p, 13, 8, 10, 10000, 200);
    Expect_file(LWM_file_bytes(p), "long-polygons-LWM.asm");
}

TEST_F(AssemblerFilesTest, TheCompilerTakesBothFilesOfTheSampleAndOfTheLargestProject) {
    Project sample;
    Read_project(Source_file("sample/golden-gate.TDM"), sample);
    p = Largest_project();
    p.BGLOD8X = 767;
    p.BGLOD8Y = 511;
    for (const Project& project : {p, sample})
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
    p.VTPFileName = "v.asm";
    Expect_cases("output/data/refusals.txt", [this](const Given& given) {
        p.VTPCount = 0;
        Points points;
        for (const auto& [x, y] : Points_from(given[1])) points.emplace_back(x, y);
        Add_segment(p, std::stoi(given[0]), 80, points);
        fake.files.Content["v.asm"] = "old";
        EXPECT_FALSE(Save_VTP_file(p, session, fake.messages, fake.files));
        EXPECT_TRUE(session.VTPWriteFailed && fake.files.Content["v.asm"] == "old");
        return fake.messages.Said();
    });
}

TEST_F(AssemblerFilesTest, AFileOfAnotherKindIsReplacedOnlyAfterYes) {
    Add_cleared_cell(p, 1, 1, 8);
    Add_polygon(p, 1, 1, 10, 0, 4);
    p.VTPFileName = p.LWMFileName = "notes.txt";
    fake.messages.Answers = {MessageAnswer::No, MessageAnswer::No, MessageAnswer::Yes};
    fake.files.Content["notes.txt"] = "mine";
    EXPECT_FALSE(Save_VTP_file(p, session, fake.messages, fake.files));
    EXPECT_FALSE(Save_LWM_file(p, fake.messages, fake.files));
    EXPECT_EQ(fake.files.Content["notes.txt"], "mine");
    EXPECT_TRUE(Save_VTP_file(p, session, fake.messages, fake.files));
    EXPECT_TRUE(Save_LWM_file(p, fake.messages, fake.files)) << "it is one of ours now";
    EXPECT_EQ(fake.messages.Shown.size(), 5U);
}

TEST_F(AssemblerFilesTest, ASavedFileIsSaidToBeUnlessAnActionWillShowIt) {
    Add_cleared_cell(p, 1, 1, 8);
    p.VTPFileName = "v";
    p.LWMFileName = "l";
    const auto said = [&](bool notepad, bool compile) {
        p.VTPNotepad = p.LWMNotepad = notepad;
        p.VTPCompile = p.LWMCompile = compile;
        const bool fails = !fake.files.WriteError.empty();
        session.VTPWriteFailed = !fails;
        EXPECT_EQ(Save_VTP_file(p, session, fake.messages, fake.files), !fails);
        EXPECT_EQ(Save_LWM_file(p, fake.messages, fake.files), !fails);
        EXPECT_EQ(session.VTPWriteFailed, fails);
        return fake.messages.Said();
    };
    EXPECT_EQ(said(false, false),
              "Tidemark - File saved: VTP file saved OK\nTidemark - File saved: LWM file saved OK");
    EXPECT_EQ(said(true, false) + said(false, true), "");
    fake.files.WriteError = "full";
    EXPECT_EQ(said(true, true), "v could not be written: full\nl could not be written: full");
}

}  // namespace tidemark
