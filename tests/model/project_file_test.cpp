// The project file: its bytes line by line, what is read back, what is refused.
#include "model/project_file.h"

#include <gtest/gtest.h>

#include "fakes/environment.h"
#include "fakes/sample_projects.h"

namespace tidemark {
namespace {

using namespace std::string_literals;

std::string With_line(const std::string& bytes, int line, const std::string& text) {
    std::size_t start = 0;
    for (int at = 1; at < line; ++at) start = bytes.find("\r\n", start) + 2;
    return bytes.substr(0, start) + text + bytes.substr(bytes.find("\r\n", start));
}

TEST(ProjectFileTest, EveryValueStandsOnItsOwnLine) {
    const std::string folder = TIDEMARK_SOURCE_DIR "/fuzz/corpus/project_file/";
    const char* const then = "2026-11-22 14:05:09";
    EXPECT_EQ(Project_bytes(Project(), then), File_content(folder + "empty.TDM"));
    EXPECT_EQ(Project_bytes(Project_of_all_values(), then),
              File_content(folder + "all-values.TDM"));
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
        EXPECT_TRUE(read.DataChanged && read.CursorVTPX == 77);
    }
}

TEST(ProjectFileTest, LineEndsFirstAndLastLineAndTheFormOfNumbersDoNotMatter) {
    const Project project = Project_of_all_values();
    const std::string bytes = Project_bytes(project, "now");
    std::string unix_lines = bytes;
    std::erase(unix_lines, '\r');
    for (const std::string& variant :
         {unix_lines, With_line(bytes, 2, "\r-10\r2\r\r"), With_line(bytes, 1, "any\0thing"s),
          bytes.substr(0, bytes.rfind("END OF FILE")), bytes + "more\r\nlines",
          With_line(bytes, 2, "   -1.02e2 units"), With_line(bytes, 2, "-101.5")}) {
        Project read;
        EXPECT_FALSE(Read_project(variant, read).Error.has_value());
        EXPECT_TRUE(read == project);
    }
}

TEST(ProjectFileTest, WhatIsMissingAtTheEndIsZeroOffAndEmptyAndOnlyTrueWithItsBlankIsOn) {
    Project read = Project_of_all_values(), expected;
    EXPECT_EQ(Read_project("x saved on y\r\n 5\r\n 6", read).EndedAtLine, 4);
    expected.AreaLeftVTP = 5;
    expected.AreaTopVTP = 6;
    EXPECT_TRUE(read == expected);
    for (const char* text : {"True", " true", " True ", ""}) {
        Read_project(With_line(Project_bytes(Project_of_all_values(), ""), 96, text), read);
        EXPECT_FALSE(read.CopyToFS) << text;
    }
}

TEST(ProjectFileTest, WhatCannotBeHeldIsRefusedAtItsLineAndTheProjectStays) {
    const Project old = Project_of_all_values();
    const std::string good = Project_bytes(old, "now");
    struct Case {
        int Line;
        std::string Text, What;
    };
    for (const auto& [line, text, what] :
         {Case{2, " 32768", "AreaLeftVTP does not fit -32768..32767:  32768"},
          {14, " 1e39", "ScaleX is not a 32-bit number:  1e39"},
          {16, " 1000", "VTPCount is 1000, not in 0..999"},
          {16, "-1", "VTPCount is -1, not in 0..999"},
          {17, " 201", "LWMCount is 201, not in 0..200"},
          {18, " 1001", "KillCount is 1001, not in 0..1000"},
          {23, std::string(60, '9'),
           "VTPMode does not fit -32768..32767: " + std::string(40, '9') + "..."},
          {49, " 201", "LWMPointCount is 201, not in 0..200"},
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
    const auto read_back = [](const std::string& text) {
        Project p;
        p.BackgroundFile = text;
        Read_project(Project_bytes(p, ""), p);
        return p.BackgroundFile;
    };
    EXPECT_EQ(read_back("\xFC\xA0\x80.jpg"), "\xC3\xBC\xC2\xA0\xC2\x80.jpg");
    for (const std::string utf8 : {"\xC3\xBC", "\xE2\x82\xAC", "\xF0\x9F\x8C\x8A"})
        EXPECT_EQ(read_back(utf8), utf8);
    for (const std::string invalid : {"\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80",
                                      "\xF4\x90\x80\x80", "\xE2\x82", "\x80", "\xFF"})
        EXPECT_EQ(read_back(invalid).size(), 2 * invalid.size());
}

}  // namespace
}  // namespace tidemark
