// The project file: its bytes line by line, what is read back, what is refused.
#include "model/project_file.h"

#include <sstream>

#include <gtest/gtest.h>

#include "fakes/sample_projects.h"
#include "model/text_forms.h"

namespace tidemark {
namespace {

std::string With_line(const std::string& bytes, int line, const std::string& text) {
    std::size_t start = 0;
    for (int at = 1; at < line; ++at) start = bytes.find("\r\n", start) + 2;
    return bytes.substr(0, start) + text + bytes.substr(bytes.find("\r\n", start));
}

TEST(ProjectFileTest, AnEmptyProjectIs36Lines) {
    std::string expected = " saved on today\r\n";
    for (int i = 0; i < 19; ++i) expected += " 0\r\n";
    for (int i = 0; i < 6; ++i) expected += "\r\n";
    expected += " 0\r\n 0\r\n";
    for (int i = 0; i < 7; ++i) expected += " False\r\n";
    EXPECT_EQ(Project_bytes(Project(), "today"), expected + "END OF FILE\r\n");
}

TEST(ProjectFileTest, EveryValueStandsOnItsOwnLine) {
    Project p;
    const char* expected =
        "here.tdm saved on today\r\n 4848\r\n 5104\r\n 5616\r\n 5360\r\n 122\r\n 148\r\n 3\r\n "
        "4\r\n"
        " 5\r\n 6\r\n 768\r\n 256\r\n 2\r\n .8333333\r\n 2\r\n 1\r\n 1\r\n"
        " 5000\r\n 6000\r\n True\r\n False\r\n 9\r\n 80\r\n"
        " 5010\r\n-7\r\n False\r\n True\r\n 9\r\n 80\r\n"
        " 5\r\n 17\r\n 31\r\n"
        " 1\r\n 10\r\n-9999\r\n 12\r\n 7\r\n 0\r\n 0\r\n"
        " 38\r\n-122\r\nl.asm\r\nv.asm\r\nroot.asm\r\nfolder\r\nhere.tdm\r\nmap.jpg\r\n 100\r\n "
        "37\r\n"
        " True\r\n False\r\n True\r\n False\r\n True\r\n False\r\n True\r\nEND OF FILE\r\n";
    p.AreaLeftVTP = 4848;
    p.AreaTopVTP = 5104;
    p.AreaRightVTP = 5616;
    p.AreaBottomVTP = 5360;
    p.BGLOD8X = 122;
    p.BGLOD8Y = 148;
    p.BGLOD13tlX = 3;
    p.BGLOD13tlY = 4;
    p.BGLOD13brX = 5;
    p.BGLOD13brY = 6;
    p.AreaWidth = 768;
    p.AreaHeight = 256;
    p.ScaleX = 2;
    p.ScaleY = 0.8333333F;
    Add_segment(p, 9, 80, {{5000, 6000}, {5010, -7}});
    Add_cleared_cell(p, 5, 17, 31);
    Add_polygon(p, 12, 7, 10, ConformsHeight, 1);
    p.CellLatitude = 38;
    p.CellLongitude = -122;
    p.LWMFileName = "l.asm";
    p.VTPFileName = "v.asm";
    p.OutputRoot = "root.asm";
    p.FSFolder = "folder";
    p.ProjectFile = "here.tdm";
    p.BackgroundFile = "map.jpg";
    p.PointInCellX = 100;
    p.PointInCellY = 37;
    p.CopyToFS = p.LWMCompile = p.VTPCompile = p.BackgroundLoaded = true;
    EXPECT_EQ(Project_bytes(p, "today"), expected);
}

TEST(ProjectFileTest, WhatWasWrittenIsReadBackEqual) {
    for (const Project& project : {Project(), Project_of_all_values(), Largest_project()}) {
        Project read = Largest_project();  // with entries and texts to be overwritten
        read.DataChanged = true;
        read.CursorVTPX = 77;
        const auto reading = Read_project(Project_bytes(project, "now"), read);
        EXPECT_FALSE(reading.Error.has_value());
        EXPECT_EQ(reading.EndedAtLine, 0);
        EXPECT_TRUE(read == project);
        EXPECT_TRUE(read.DataChanged);
        EXPECT_EQ(read.CursorVTPX, 77);
    }
    const std::string largest = Project_bytes(Largest_project(), "now");
    EXPECT_EQ(std::count(largest.begin(), largest.end(), '\n'), 90030);
}

TEST(ProjectFileTest, LineEndsFirstAndLastLineAndTheFormOfNumbersDoNotMatter) {
    const Project project = Project_of_all_values();
    const std::string bytes = Project_bytes(project, "now");
    std::string unix_lines = bytes;
    std::erase(unix_lines, '\r');
    using namespace std::string_literals;
    std::string stray_CRs = With_line(bytes, 2, "\r-10\r2\r\r");
    for (const std::string& variant :
         {unix_lines, stray_CRs, With_line(bytes, 1, "anything\0at all"s),
          bytes.substr(0, bytes.rfind("END OF FILE")), bytes + "more\r\nlines",
          With_line(bytes, 2, "   -1.02e2 units"), With_line(bytes, 2, "-101.5")}) {
        Project read;
        EXPECT_FALSE(Read_project(variant, read).Error.has_value());
        EXPECT_TRUE(read == project);
    }
}

TEST(ProjectFileTest, AFileThatEndsEarlyGivesZeroOffAndEmpty) {
    Project read = Project_of_all_values();
    const auto reading = Read_project("x saved on y\r\n 5\r\n 6", read);
    Project expected;
    expected.AreaLeftVTP = 5;
    expected.AreaTopVTP = 6;
    EXPECT_FALSE(reading.Error.has_value());
    EXPECT_EQ(reading.EndedAtLine, 4);
    EXPECT_TRUE(read == expected);
}

TEST(ProjectFileTest, WhatCannotBeHeldIsRefusedAtItsLineAndTheProjectStays) {
    const Project old = Project_of_all_values();
    const std::string good = Project_bytes(old, "now");
    struct Case {
        int Line;
        std::string Text, What;
    };
    using namespace std::string_literals;
    for (const auto& [line, text, what] :
         {Case{2, " 32768", "AreaLeftVTP does not fit -32768..32767:  32768"},
          {13, "1e5", "AreaHeight does not fit -32768..32767: 1e5"},
          {14, " 1e39", "ScaleX is not a 32-bit number:  1e39"},
          {16, " 1000", "VTPCount is 1000, not in 0..999"},
          {16, "-1", "VTPCount is -1, not in 0..999"},
          {17, " 201", "LWMCount is 201, not in 0..200"},
          {18, " 1001", "KillCount is 1001, not in 0..1000"},
          {23, std::string(60, '9'),
           "VTPMode does not fit -32768..32767: " + std::string(40, '9') + "..."},
          {49, " 201", "LWMPointCount is 201, not in 0..200"},
          {49, "-1", "LWMPointCount is -1, not in 0..200"},
          {88, "a\0b"s, "LWMFileName holds a NUL"},
          {89, std::string(32768, 'v'), "VTPFileName is longer than 32767 bytes"}}) {
        Project project = old;
        const auto reading = Read_project(With_line(good, line, text), project);
        ASSERT_TRUE(reading.Error.has_value()) << what;
        EXPECT_EQ(reading.Error->What, what);
        EXPECT_EQ(reading.Error->Line, line) << what;
        EXPECT_TRUE(project == old) << what;
    }
}

TEST(ProjectFileTest, BytesThatAreNoUTF8AreTakenAsLatin1) {
    Project p;
    p.BackgroundFile =
        "K\xFC"
        "ste\xA0\x80.jpg";
    Project read;
    Read_project(Project_bytes(p, ""), read);
    EXPECT_EQ(read.BackgroundFile,
              "K\xC3\xBC"
              "ste\xC2\xA0\xC2\x80.jpg");
    for (const char* utf8 : {"\xC3\xBC", "\xE2\x82\xAC", "\xF0\x9F\x8C\x8A"}) {
        p.BackgroundFile = utf8;
        Read_project(Project_bytes(p, ""), read);
        EXPECT_EQ(read.BackgroundFile, utf8);
    }
    for (const char* invalid : {"\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                                "\xE2\x82", "\x80", "\xFF"}) {
        p.BackgroundFile = invalid;
        Read_project(Project_bytes(p, ""), read);
        EXPECT_EQ(read.BackgroundFile.size(), 2 * p.BackgroundFile.size());
    }
}

TEST(ProjectFileTest, ATextThatWouldShiftTheLinesIsFound) {
    Project p = Project_of_all_values();
    EXPECT_EQ(Unsavable_text(p), std::nullopt);
    for (const std::string& text :
         {std::string("a\nb"), std::string("\r"), std::string(1, '\0'), std::string(32768, 'x')}) {
        p.FSFolder = text;
        EXPECT_EQ(Unsavable_text(p), "FSFolder");
    }
}

}  // namespace
}  // namespace tidemark
