// The include arrows between the rooms of src/: which room may know which.
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>

#include <gtest/gtest.h>

namespace tidemark {
namespace {

namespace fs = std::filesystem;

const std::set<std::string> all_rooms{"app",   "canvas", "georef",   "lwm",
                                      "model", "output", "platform", "vtp_edit"};

const std::map<std::string, std::set<std::string>> may_include{
    {"app", all_rooms},
    {"canvas", {"canvas", "model", "platform"}},
    {"georef", {"georef", "model", "platform"}},
    {"lwm", {"lwm", "model", "platform"}},
    {"model", {"model"}},
    {"output", {"output", "model", "platform"}},
    {"platform", {"platform"}},
    {"vtp_edit", {"vtp_edit", "model", "platform"}},
};

bool Is_window(const std::string& name) {
    return name.starts_with("qt_") || name.find("_window.") != name.npos ||
           name == "main_tidemark.cpp";
}

TEST(LayersTest, IncludesRunAlongTheArrowsAndRulesSeeNoQt) {
    const std::regex include(R"re(#include ([<"])(?:(\w+)/)?([\w.]+)[>"])re");
    int seen = 0;
    for (const auto& entry : fs::recursive_directory_iterator(TIDEMARK_SOURCE_DIR "/src")) {
        const std::string name = entry.path().filename().string();
        if (!name.ends_with(".h") && !name.ends_with(".cpp")) continue;
        const std::string room = entry.path().parent_path().filename().string();
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            std::smatch found;
            if (!std::regex_search(line, found, include)) continue;
            ++seen;
            const std::string where = room + "/" + name + ": " + line;
            const std::string target = found[3];
            if (found[1] == "<") {
                EXPECT_TRUE(Is_window(name) || !target.starts_with("Q")) << where;
                continue;
            }
            EXPECT_TRUE(may_include.at(room).contains(found[2])) << where;
            EXPECT_TRUE(Is_window(name) || !Is_window(target)) << where;
        }
    }
    EXPECT_GT(seen, 100);
}

}  // namespace
}  // namespace tidemark
