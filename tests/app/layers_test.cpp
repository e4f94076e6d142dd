// The include arrows between the rooms of src/: which room may know which, and who may see Qt.
#include <filesystem>
#include <fstream>
#include <regex>

#include <gtest/gtest.h>

namespace tidemark {

namespace fs = std::filesystem;

static bool May_include(const std::string& room, const std::string& other) {
    const bool is_base = room == "model" || room == "platform";
    const bool other_is_base = other == "model" || other == "platform";
    const bool is_coast_on_cells = room == "coast" && other == "lwm";
    return room == "app" || room == other || is_coast_on_cells || (!is_base && other_is_base);
}

static bool Is_window(const std::string& name) {
    return name.starts_with("qt_") || name.find("_window.") != name.npos ||
           name == "main_tidemark.cpp";
}

// Windows see the project through the gate: none names one that it could change.
TEST(LayersTest, WindowsNameNoProjectThatTheyCouldChange) {
    const std::regex changeable(R"re((^|[^:\w])(const )?Project[&*])re");
    int windows = 0;
    for (const auto& entry : fs::recursive_directory_iterator(TIDEMARK_SOURCE_DIR "/src")) {
        if (!Is_window(entry.path().filename().string())) continue;
        ++windows;
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            for (std::sregex_iterator found(line.begin(), line.end(), changeable), end;
                 found != end; ++found)
                EXPECT_TRUE((*found)[2].matched) << entry.path() << ": " << line;
        }
    }
    EXPECT_GT(windows, 30);
}

TEST(LayersTest, IncludesRunAlongTheArrowsAndRulesSeeNoQt) {
    const std::regex include(R"re(#include ([<"])(?:(\w+)/)?([\w.]+)[>"])re");
    int seen = 0;
    for (const auto& entry : fs::recursive_directory_iterator(TIDEMARK_SOURCE_DIR "/src")) {
        const std::string name = entry.path().filename().string();
        const std::string room = entry.path().parent_path().filename().string();
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            std::smatch found;
            if (!std::regex_search(line, found, include)) continue;
            ++seen;
            const std::string target = found[3];
            const bool is_own = found[1] == "\"";
            EXPECT_TRUE(!is_own || May_include(room, found[2]))
                << room << "/" << name << ": " << line;
            EXPECT_TRUE(Is_window(name) || !(is_own ? Is_window(target) : target.starts_with("Q")))
                << room << "/" << name << ": " << line;
        }
    }
    EXPECT_GT(seen, 100);
}

}  // namespace tidemark
