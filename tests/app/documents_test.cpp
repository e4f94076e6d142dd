// The documents against the program: every link leads somewhere, and every menu entry, control
// and message that they name is one of the program's.
#include <filesystem>
#include <regex>
#include <set>

#include <gtest/gtest.h>

#include "fakes/environment.h"

namespace tidemark {
namespace {

namespace fs = std::filesystem;

const std::string folder = TIDEMARK_SOURCE_DIR "/Documentation/";

std::string Replaced(const std::string& text, const char* pattern, const char* by) {
    return std::regex_replace(text, std::regex(pattern), by);
}

// What the pattern's group matches, each time.
std::vector<std::string> Found(const std::string& text, const char* pattern) {
    const std::regex regex(pattern);
    return {std::sregex_token_iterator(text.begin(), text.end(), regex, 1), {}};
}

// As it reads: line ends and runs of blanks are one blank each.
std::string Plain(const std::string& html) {
    const std::string text = Replaced(Replaced(html, "&gt;", ">"), "&amp;", "&");
    return Replaced(Replaced(text, "\\s+", " "), "^ | $", "");
}

std::vector<std::string> Split(const std::string& text, const char* separator) {
    const std::regex regex(separator);
    std::vector<std::string> parts{std::sregex_token_iterator(text.begin(), text.end(), regex, -1),
                                   {}};
    for (std::string& part : parts) part = Plain(part);
    return parts;
}

class DocumentsTest : public testing::TestWithParam<const char*> {
  protected:
    // Reads the string literals of all sources; neighbours that the compiler joins are joined.
    static void SetUpTestSuite() {
        for (const auto& entry : fs::recursive_directory_iterator(TIDEMARK_SOURCE_DIR "/src")) {
            if (!entry.is_regular_file()) continue;
            const std::string source =
                Replaced(File_content(entry.path().string()), "\"\\s*\n\\s*\"", "");
            for (const std::string& literal : Found(source, R"re("((?:[^"\\\n]|\\.)*)")re")) {
                for (const std::string& line : Split(literal, R"(\\n)")) texts_ += line + '\n';
                captions_.insert(Plain(Replaced(literal, "&", "")));
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
        for (const std::string& entry : Split(path, "&gt;"))
            EXPECT_TRUE(captions_.contains(entry)) << path;
    for (const std::string& message : Found(text_, "<q class=\"says\">([^]*?)</q>"))
        for (const std::string& piece : Split(message, "<br>|<var>[^<]*</var>"))
            EXPECT_NE(texts_.find(piece), texts_.npos) << message << "\nlacks: " << piece;
}

INSTANTIATE_TEST_SUITE_P(All, DocumentsTest, testing::Values("Instructions.html", "Tutorial.html"));

}  // namespace
}  // namespace tidemark
