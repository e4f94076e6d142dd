// The documents against the program and the program against the documents: every link leads
// somewhere; every menu entry, control and message that they name is one of the program's, and
// every sentence that the program can say is in them. The packages' files, against its version.
#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include "fakes/rules_test.h"
#include "model/project_layout.h"

namespace tidemark {

namespace fs = std::filesystem;

const std::string documents = TIDEMARK_SOURCE_DIR "/Documentation/";

// What the pattern's group matches each time, or with -1 what stands between.
static std::vector<std::string> Found(const std::string& text, const char* pattern, int group = 1) {
    const std::regex regex(pattern);
    return {std::sregex_token_iterator(text.begin(), text.end(), regex, group), {}};
}

// As it reads: line ends and runs of blanks are one blank each.
static std::string Plain(std::string text) {
    for (const auto& [pattern, by] : {std::pair{"&gt;", ">"},
                                      {"&lt;", "<"},
                                      {"&amp;", "&"},
                                      {R"(\\")", "\""},
                                      {"\\s+", " "},
                                      {"^ | $", ""}})
        text = std::regex_replace(text, std::regex(pattern), by);
    return text;
}

// The pieces of a quoted message. What differs from time to time stands between <var> and </var>,
// and <wbr> where the program puts pieces together.
static std::vector<std::string> Pieces(const std::string& message) {
    std::vector<std::string> pieces;
    for (const std::string& piece : Found(message, "<br>|<wbr>|<var>[^<]*</var>", -1))
        pieces.push_back(Plain(piece));
    return pieces;
}

// All that a page marks as the program's own words, one piece a line.
static std::string Quoted_in(const std::string& page) {
    std::string quoted;
    const std::string text = File_content(documents + page);
    for (const std::string& words :
         Found(text, "<(?:q class=\"says\"|b class=\"(?:ui|menu)\")>([^]*?)</[qb]>"))
        for (const std::string& piece : Pieces(words)) quoted += piece + '\n';
    return quoted;
}

class DocumentsTest : public testing::TestWithParam<const char*> {
  protected:
    // Reads the string literals of all sources; neighbours that are joined are one.
    static void SetUpTestSuite() {
        if (!texts_.empty()) return;
        for (const auto& entry : fs::recursive_directory_iterator(TIDEMARK_SOURCE_DIR "/src")) {
            if (!entry.is_regular_file()) continue;
            std::string source = File_content(entry.path().string());
            for (const char* const dropped : {R"((^|\s)//[^\n]*)", R"(#include "[^\n]*)",
                                              R"(static_assert\([^;]*;)", R"("\s*\+?\s*\n\s*")"})
                source = std::regex_replace(source, std::regex(dropped), "");
            for (std::string literal : Found(source, R"re("((?:[^"\\\n]|\\.)*)")re")) {
                for (const std::string& line : Found(literal, R"(\\n)", -1)) {
                    texts_ += Plain(line) + '\n';
                    lines_[entry.path().filename().string()].push_back(Plain(line));
                }
                std::erase(literal, '&');
                captions_.insert(Plain(literal));
            }
            for (const std::string& key : Found(source, R"(Qt::Key_(?!Ascii)(\w+))"))
                keys_.insert(key);
        }
    }

    inline static std::string texts_;  // every line of every literal
    inline static std::map<std::string, std::vector<std::string>> lines_;  // the same by file name
    inline static std::set<std::string> captions_ = {"OK"};  // each without access key, and Qt's
    inline static std::set<std::string> keys_;               // that the program looks for

    const std::string text_ = File_content(documents + GetParam());
};

TEST_P(DocumentsTest, EveryLinkAndPictureIsThere) {
    const auto targets = Found(text_, "(?:href|src)=\"([^\"]*)\"");
    EXPECT_GT(targets.size(), 10U);
    for (const std::string& target : targets) {
        const std::string file = target.substr(0, target.find('#'));
        EXPECT_TRUE(file.empty() || fs::is_regular_file(documents + file)) << target;
        if (target.find('#') == target.npos) continue;
        const std::string id = "id=\"" + target.substr(target.find('#') + 1) + "\"";
        const std::string page = file.empty() ? text_ : File_content(documents + file);
        EXPECT_NE(page.find(id), page.npos) << target;
    }
}

TEST_P(DocumentsTest, EveryMenuEntryControlAndMessageIsTheProgramsOwn) {
    for (const std::string& control : Found(text_, "<b class=\"ui\">([^<]*)</b>"))
        EXPECT_TRUE(captions_.contains(Plain(control))) << control;
    for (const std::string& path : Found(text_, "<b class=\"menu\">([^<]*)</b>"))
        for (const std::string& entry : Found(path, "&gt;", -1))
            EXPECT_TRUE(captions_.contains(Plain(entry))) << path;
    for (const std::string& message : Found(text_, "<q class=\"says\">([^]*?)</q>"))
        for (const std::string& piece : Pieces(message))
            EXPECT_NE(texts_.find(piece), texts_.npos) << message << "\nlacks: " << piece;
}

INSTANTIATE_TEST_SUITE_P(All, DocumentsTest,
                         testing::Values("Instructions.html", "Tutorial.html", "ManyCells.html",
                                         "ProjectFile.html"));

class InstructionsTest : public DocumentsTest {};

// A sentence is whatever has two words. Lines of the assembler files and the values' names in
// messages are none, and the manual pages tell of the programs' options.
TEST_P(InstructionsTest, EverySentenceOfTheProgramIsInTheDocuments) {
    const std::regex sentence("[A-Za-z]{2,}[^A-Za-z ]* [^A-Za-z ]*[A-Za-z]{2,}");
    const std::regex not_said(
        "(vtp|lwm|assembler)_text.*|main_.*|console_program.*|project_layout.h|recovery_file.*");
    const std::regex on_consoles(".*_companion.cpp|coast_project.cpp");
    const std::string editor = Quoted_in("Instructions.html") + Quoted_in("ProjectFile.html");
    const std::string console = editor + Quoted_in("ManyCells.html");
    int seen = 0;
    for (const auto& [file, lines] : lines_) {
        if (std::regex_match(file, not_said)) continue;
        const std::string& told = std::regex_match(file, on_consoles) ? console : editor;
        for (std::string line : lines) {
            std::erase(line, '&');
            if (!std::regex_search(line, sentence)) continue;
            ++seen;
            EXPECT_NE(told.find(line), told.npos) << file << " says: " << line;
        }
    }
    EXPECT_GT(seen, 300);
}

TEST_P(InstructionsTest, EveryKeyThatTheProgramLooksForIsTold) {
    const std::map<std::string, std::string> names{
        {"Escape", "Esc"}, {"Return", "Enter"}, {"Plus", "[+]"}, {"Minus", "-"}, {"Equal", "="}};
    EXPECT_GT(keys_.size(), 15U);
    for (const std::string& key : keys_) {
        const bool is_arrow = std::set<std::string>{"Left", "Right", "Up", "Down"}.contains(key);
        const std::string name = names.contains(key) ? names.at(key) : key;
        const std::regex told(is_arrow ? "an arrow" : "<kbd>(\\w+[+])*" + name + "</kbd>");
        EXPECT_TRUE(std::regex_search(text_, told)) << key;
    }
}

INSTANTIATE_TEST_SUITE_P(All, InstructionsTest, testing::Values("Instructions.html"));

// Notes the values of a project in the words of the page.
struct LayoutRows {
    std::vector<std::string> Rows;

    void operator()(const char* name, Int16&) { Add(name, "whole"); }
    void operator()(const char* name, float&) { Add(name, "number"); }
    void operator()(const char* name, bool&) { Add(name, "flag"); }
    void operator()(const char* name, std::string&) { Add(name, "text"); }
    void Count(const char* name, Int16&, int limit) {
        Add(name, "count to " + std::to_string(limit));
    }

  private:
    void Add(const std::string& name, const std::string& form) {
        Rows.push_back("<code>" + name + "</code></td><td>" + form);
    }
};

// A project with one entry in each table visits each value once.
TEST(ProjectFilePageTest, NamesTheValuesInTheOrderOfTheFileWithTheirForms) {
    const std::string page = File_content(documents + "ProjectFile.html");
    Project one;
    one.VTPCount = one.KillCount = one.LWMCount = one.LWMPointCount(1) = 1;
    LayoutRows layout;
    Visit_project(one, layout);
    EXPECT_EQ(Found(page, "<td>(<code>\\w[\\w ]*</code></td><td>[a-z]+(?: to [0-9]+)?)</td>"),
              layout.Rows);
    int line = 2;
    for (const std::string& told : Found(page, "<td class=\"number\">([0-9]+)</td><td><code>"))
        EXPECT_EQ(told, std::to_string(line++));
    EXPECT_EQ(line, 19);
}

TEST(ProjectFilePageTest, ItsExampleIsAProjectFileByteForByte) {
    const std::string page = File_content(documents + "ProjectFile.html");
    const std::string example = Found(page, "<pre id=\"file\"><code>([^]*?)</code></pre>").at(0);
    const std::string bytes = std::regex_replace(example, std::regex("\n"), "\r\n");
    Project project;
    const ProjectFileReading reading = Read_project(bytes, project);
    EXPECT_FALSE(reading.Error);
    EXPECT_EQ(reading.EndedAtLine, 0);
    EXPECT_EQ(Project_bytes(project, "2003-01-27 12:00:00"), bytes);
    EXPECT_EQ(project.LWMHeight(1), ConformsHeight);
}

TEST(PackagingTest, EveryFileNamesTheProgramsVersion) {
    const std::string version = TIDEMARK_VERSION;
    for (const auto& [file, text] :
         {std::pair{"README.md", "/tidemark_" + version + "_amd64.deb"},
          {"README.md", "/tidemark-" + version + "-windows.msi"},
          {"packaging/debian/changelog", "tidemark (" + version + ")"},
          {"packaging/debian/tidemark.1", "\"Tidemark " + version + "\""},
          {"packaging/debian/tidemark-asm.1", "\"Tidemark " + version + "\""},
          {"packaging/debian/tidemark-coast.1", "\"Tidemark " + version + "\""},
          {"packaging/debian/example.tidemark.Tidemark.metainfo.xml",
           "<release version=\"" + version + "\""}})
        EXPECT_NE(Source_file(file).find(text), std::string::npos) << file << " lacks " << text;
}

}  // namespace tidemark
