// The project file: its bytes line by line, what is read back, what is refused.
#include "fakes/rules_test.h"

namespace tidemark {

using namespace std::string_literals;

class ProjectFileTest : public testing::Test {
  protected:
    // The file of all values with another text on one of its lines.
    std::string With_line(int line, const std::string& text) const {
        std::size_t start = 0;
        for (int at = 1; at < line; ++at) start = bytes_.find("\r\n", start) + 2;
        return bytes_.substr(0, start) + text + bytes_.substr(bytes_.find("\r\n", start));
    }

    const Project all_values_ = Project_of_all_values();
    const std::string bytes_ = Project_bytes(all_values_, "2026-11-22 14:05:09");
};

TEST_F(ProjectFileTest, EveryValueStandsOnItsOwnLine) {
    EXPECT_EQ(bytes_, Source_file("fuzz/corpus/project_file/all-values.TDM"));
    EXPECT_EQ(Project_bytes(Project(), "2026-11-22 14:05:09"),
              Source_file("fuzz/corpus/project_file/empty.TDM"));
}

TEST_F(ProjectFileTest, WhatWasWrittenIsReadBackEqual) {
    for (const Project& project : {Project(), all_values_, Largest_project()}) {
        Project read = Largest_project();  // with entries and texts to be overwritten
        const auto reading = Read_project(Project_bytes(project, "now"), read);
        EXPECT_TRUE(!reading.Error && reading.EndedAtLine == 0);
        EXPECT_TRUE(read == project);
    }
}

TEST_F(ProjectFileTest, LineEndsFirstAndLastLineAndTheFormOfNumbersDoNotMatter) {
    std::string unix_lines = bytes_;
    std::erase(unix_lines, '\r');
    for (const std::string& variant :
         {unix_lines, With_line(2, "\r-10\r2\r\r"), With_line(1, "any\0thing"s),
          bytes_.substr(0, bytes_.rfind("END OF FILE")), bytes_ + "more\r\nlines",
          With_line(2, "   -1.02e2 units"), With_line(2, "-101.5")}) {
        Project read;
        EXPECT_FALSE(Read_project(variant, read).Error.has_value());
        EXPECT_TRUE(read == all_values_);
    }
}

TEST_F(ProjectFileTest, WhatIsMissingAtTheEndIsZeroOffAndEmptyAndOnlyTrueWithItsBlankIsOn) {
    Project read = all_values_, expected;
    EXPECT_EQ(Read_project("x saved on y\r\n 5\r\n 6", read).EndedAtLine, 4);
    expected.AreaLeftVTP = 5;
    expected.AreaTopVTP = 6;
    EXPECT_TRUE(read == expected);
    for (const char* text : {"True", " true", " True ", ""}) {
        Read_project(With_line(96, text), read);
        EXPECT_FALSE(read.CopyToFS) << text;
    }
}

TEST_F(ProjectFileTest, WhatIsPlainlySomethingElseDoesNotReadAsAProject) {
    std::string no_date = With_line(1, "");
    for (const std::string& bytes :
         {bytes_, no_date, With_line(1, "any\0thing"s), With_line(2, "none"), ""s, "x saved on y"s,
          "x\n70000\n"s, "\r\n \r\n-.5\r\n"s, With_line(88, "a\0b"s)})
        EXPECT_TRUE(Reads_as_project(bytes)) << bytes.substr(0, 80);
    for (const std::string& bytes : {"\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s, "\x7F"s + "ELF\2\1\1\0"s,
                                     "x saved on y\0\n 1\n"s + "\0"s, Source_file("README.md"),
                                     Source_file("sample/golden-gate.jpg"), "one line"s, "\n\n"s,
                                     "{\n  \"a\": 1,\n  \"b\": 2\n}\n"s})
        EXPECT_FALSE(Reads_as_project(bytes)) << bytes.substr(0, 80);
}

TEST_F(ProjectFileTest, WhatCannotBeHeldIsRefusedAtItsLineAndTheProjectStays) {
    const auto refused = [this](int line, const std::string& text) {
        Project project = all_values_;
        const auto reading = Read_project(With_line(line, text), project);
        EXPECT_TRUE(project == all_values_);
        return std::to_string(reading.Error.value().Line) + ": " + reading.Error.value().What;
    };
    Expect_cases("model/data/refusals.txt",
                 [&](const Given& given) { return refused(std::stoi(given[0]), given[1]); });
    EXPECT_EQ(refused(88, "a\0b"s), "88: LWMFileName holds a NUL");
    EXPECT_EQ(refused(89, std::string(32768, 'v')), "89: VTPFileName is longer than 32767 bytes");
}

TEST_F(ProjectFileTest, BytesThatAreNoUTF8AreTakenAsLatin1) {
    for (const auto& [bytes, text] :
         {std::pair{"\xFC\xA0\x80.jpg"s, "\xC3\xBC\xC2\xA0\xC2\x80.jpg"s},
          {"\xC3\xBC\xE2\x82\xAC\xF0\x9F\x8C\x8A", "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x8C\x8A"},
          {"\xC0\x80", "\xC3\x80\xC2\x80"},
          {"\xE0\x80\x80", "\xC3\xA0\xC2\x80\xC2\x80"},
          {"\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xC2\x80"},
          {"\xF4\x90\x80\x80", "\xC3\xB4\xC2\x90\xC2\x80\xC2\x80"},
          {"\xE2\x82", "\xC3\xA2\xC2\x82"},
          {"\xFF", "\xC3\xBF"}}) {
        Project p;
        p.BackgroundFile = bytes;
        Read_project(Project_bytes(p, ""), p);
        EXPECT_EQ(p.BackgroundFile, text);
    }
}

}  // namespace tidemark
