// The documents against the program: every link leads somewhere, and every menu entry, control and
// message that they name is one of the program's.
#include <algorithm>
#include <cctype>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/environment.h"

namespace tidemark {
namespace {

namespace fs = std::filesystem;

const std::string folder = TIDEMARK_SOURCE_DIR "/Documentation/";

void Replace_all(std::string& text, std::string_view from, std::string_view to) {
    for (auto at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

// Line ends and runs of blanks as one blank each, none at the ends.
std::string Folded(std::string_view text) {
    std::string folded;
    for (const char c : text) {
        const bool blank = std::isspace(static_cast<unsigned char>(c)) != 0;
        if (!blank)
            folded += c;
        else if (!folded.empty() && folded.back() != ' ')
            folded += ' ';
    }
    if (folded.ends_with(' ')) folded.pop_back();
    return folded;
}

// The text between two marks, each time they occur.
std::vector<std::string> Between(std::string_view text, std::string_view open,
                                 std::string_view close) {
    std::vector<std::string> found;
    for (auto start = text.find(open); start != text.npos; start = text.find(open, start)) {
        start += open.size();
        const auto end = text.find(close, start);
        found.emplace_back(text.substr(start, end - start));
    }
    return found;
}

std::string Plain(std::string html) {
    Replace_all(html, "&gt;", ">");
    Replace_all(html, "&amp;", "&");
    return Folded(html);
}

std::vector<std::string> Split(std::string text, std::string_view separator) {
    std::vector<std::string> parts;
    for (auto at = text.find(separator); at != text.npos; at = text.find(separator)) {
        parts.push_back(Folded(text.substr(0, at)));
        text.erase(0, at + separator.size());
    }
    parts.push_back(Folded(text));
    return parts;
}

// Reads the string literals of a source; neighbours that the compiler joins are joined.
class Literals {
  public:
    explicit Literals(std::string_view source) : rest_(source) {
        while (!rest_.empty()) Take_piece();
    }

    std::vector<std::string> Found;

  private:
    void Take_piece() {
        if (rest_.starts_with("//")) return Drop(rest_.find('\n'));
        if (rest_.starts_with('\'')) return Drop(rest_[1] == '\\' ? 4 : 3);
        if (rest_.starts_with('"')) return Take_literal();
        if (!std::isspace(static_cast<unsigned char>(rest_[0]))) joins_ = false;
        Drop(1);
    }

    void Take_literal() {
        if (!std::exchange(joins_, true)) Found.emplace_back();
        for (Drop(1); !rest_.starts_with('"'); Drop(1)) {
            const bool escaped = rest_.starts_with('\\');
            if (escaped) Drop(1);
            Found.back() += escaped && rest_[0] == 'n' ? '\n' : rest_[0];
        }
        Drop(1);
    }

    void Drop(std::size_t count) { rest_.remove_prefix(std::min(count, rest_.size())); }

    std::string_view rest_;
    bool joins_ = false;
};

class DocumentsTest : public testing::TestWithParam<const char*> {
  protected:
    DocumentsTest() : text_(File_content(folder + GetParam())) {}

    static void SetUpTestSuite() {
        for (const auto& entry : fs::recursive_directory_iterator(TIDEMARK_SOURCE_DIR "/src")) {
            if (!entry.is_regular_file()) continue;
            for (const std::string& literal : Literals(File_content(entry.path().string())).Found) {
                for (const std::string& line : Split(literal, "\n")) texts_ += line + '\n';
                std::string caption = literal;
                Replace_all(caption, "&", "");
                captions_.insert(Folded(caption));
            }
        }
    }

    static std::string texts_;               // every line of every literal
    static std::set<std::string> captions_;  // every literal without its access key, and Qt's own

    const std::string text_;
};

std::string DocumentsTest::texts_;
std::set<std::string> DocumentsTest::captions_{"OK"};

TEST_P(DocumentsTest, EveryLinkAndPictureIsThere) {
    std::vector<std::string> targets = Between(text_, "href=\"", "\"");
    for (const std::string& picture : Between(text_, "src=\"", "\"")) targets.push_back(picture);
    EXPECT_GT(targets.size(), 10U);
    for (const std::string& target : targets) {
        const std::string file = target.substr(0, target.find('#'));
        EXPECT_TRUE(file.empty() || fs::is_regular_file(folder + file)) << target;
        if (target.find('#') == target.npos) continue;
        const std::string id = "id=\"" + target.substr(target.find('#') + 1) + "\"";
        const std::string page = file.empty() ? text_ : File_content(folder + file);
        EXPECT_NE(page.find(id), page.npos) << target;
    }
    EXPECT_EQ(text_.find("<script"), text_.npos);
}

TEST_P(DocumentsTest, EveryMenuEntryAndControlIsTheProgramsOwn) {
    for (const std::string& control : Between(text_, "<b class=\"ui\">", "</b>"))
        EXPECT_TRUE(captions_.contains(Plain(control))) << control;
    for (const std::string& path : Between(text_, "<b class=\"menu\">", "</b>"))
        for (const std::string& entry : Split(Plain(path), " > "))
            EXPECT_TRUE(captions_.contains(entry)) << path;
}

// What differs from time to time in a message stands between <var> and </var>.
TEST_P(DocumentsTest, EveryMessageIsTheProgramsOwn) {
    for (std::string message : Between(text_, "<q class=\"says\">", "</q>")) {
        for (const std::string& part : Between(message, "<var>", "</var>"))
            Replace_all(message, "<var>" + part + "</var>", "<br>");
        for (const std::string& piece : Split(Plain(message), "<br>"))
            EXPECT_NE(texts_.find(piece), texts_.npos) << message << "\nlacks: " << piece;
    }
}

INSTANTIATE_TEST_SUITE_P(All, DocumentsTest, testing::Values("Instructions.html", "Tutorial.html"),
                         [](const auto& test) {
                             return std::string(test.param, std::string_view(test.param).find('.'));
                         });

}  // namespace
}  // namespace tidemark
