// The documents against the program: every link leads somewhere, and every menu entry, control
// and message that they name is one of the program's. The packages' files, against its version.
#include <filesystem>
#include <regex>
#include <set>

#include "fakes/rules_test.h"

namespace tidemark {

namespace fs = std::filesystem;

const std::string folder = TIDEMARK_SOURCE_DIR "/Documentation/";

// What the pattern's group matches each time, or with -1 what stands between.
static std::vector<std::string> Found(const std::string& text, const char* pattern, int group = 1) {
    const std::regex regex(pattern);
    return {std::sregex_token_iterator(text.begin(), text.end(), regex, group), {}};
}

// As it reads: line ends and runs of blanks are one blank each.
static std::string Plain(std::string text) {
    for (const auto& [pattern, by] :
         {std::pair{"&gt;", ">"}, {"&amp;", "&"}, {"\\s+", " "}, {"^ | $", ""}})
        text = std::regex_replace(text, std::regex(pattern), by);
    return text;
}

class DocumentsTest : public testing::TestWithParam<const char*> {
  protected:
    // Reads the string literals of all sources; neighbours that the compiler joins are joined.
    static void SetUpTestSuite() {
        for (const auto& entry : fs::recursive_directory_iterator(TIDEMARK_SOURCE_DIR "/src")) {
            if (!entry.is_regular_file()) continue;
            const std::string source = std::regex_replace(File_content(entry.path().string()),
                                                          std::regex("\"\\s*\n\\s*\""), "");
            for (std::string literal : Found(source, R"re("((?:[^"\\\n]|\\.)*)")re")) {
                for (const std::string& line : Found(literal, R"(\\n)", -1))
                    texts_ += Plain(line) + '\n';
                std::erase(literal, '&');
                captions_.insert(Plain(literal));
            }
        }
    }

    inline static std::string texts_;                        // every line of every literal
    inline static std::set<std::string> captions_ = {"OK"};  // each without access key, and Qt's

    const std::string text_ = File_content(folder + GetParam());
};

TEST_P(DocumentsTest, EveryLinkAndPictureIsThere) {
    const auto targets = Found(text_, "(?:href|src)=\"([^\"]*)\"");
    EXPECT_GT(targets.size(), 10U);
    for (const std::string& target : targets) {
        const std::string file = target.substr(0, target.find('#'));
        EXPECT_TRUE(file.empty() || fs::is_regular_file(folder + file)) << target;
        if (target.find('#') == target.npos) continue;
        const std::string id = "id=\"" + target.substr(target.find('#') + 1) + "\"";
        const std::string page = file.empty() ? text_ : File_content(folder + file);
        EXPECT_NE(page.find(id), page.npos) << target;
    }
}

// What differs from time to time in a message stands between <var> and </var>.
TEST_P(DocumentsTest, EveryMenuEntryControlAndMessageIsTheProgramsOwn) {
    for (const std::string& control : Found(text_, "<b class=\"ui\">([^<]*)</b>"))
        EXPECT_TRUE(captions_.contains(Plain(control))) << control;
    for (const std::string& path : Found(text_, "<b class=\"menu\">([^<]*)</b>"))
        for (const std::string& entry : Found(path, "&gt;", -1))
            EXPECT_TRUE(captions_.contains(Plain(entry))) << path;
    for (const std::string& message : Found(text_, "<q class=\"says\">([^]*?)</q>"))
        for (const std::string& piece : Found(message, "<br>|<var>[^<]*</var>", -1))
            EXPECT_NE(texts_.find(Plain(piece)), texts_.npos) << message << "\nlacks: " << piece;
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

INSTANTIATE_TEST_SUITE_P(All, DocumentsTest,
                         testing::Values("Instructions.html", "Tutorial.html", "ManyCells.html"));

}  // namespace tidemark
