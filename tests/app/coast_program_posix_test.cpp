// The program tidemark-coast itself, as a shell starts it.
#include <sys/wait.h>

#include "fakes/rules_test.h"

namespace tidemark {

TEST(CoastProgramTest, ExitCodesOutputAndComplaints) {
    const WorkingFolder folder;
    Write_file("gate.json", Source_file("sample/golden-gate-coastline.geojson"));
    std::filesystem::create_directory("out");
    const auto run = [](const std::string& arguments) {
        const int status =
            std::system(("{ " TIDEMARK_COAST " " + arguments + "; } >said 2>&1").c_str());
        return std::to_string(WEXITSTATUS(status)) + "\n" + File_content("said");
    };
    const std::string usage = run("--help").substr(2);
    EXPECT_TRUE(usage.starts_with("Usage: tidemark-coast [OPTION]... (--at LAT,LON | "));
    Expect_cases("app/data/coast_program.txt", [&](const Given& given) {
        std::string said = run(given[0]);
        for (const auto& [part, by] : {std::pair<std::string, std::string>{usage, "(usage)\n"},
                                       {TIDEMARK_VERSION, "(version)"},
                                       {TIDEMARK_COAST, "tidemark-coast"},
                                       {"\nTry 'tidemark-coast --help'.", ""}})
            if (const auto at = said.find(part); at != said.npos) said.replace(at, part.size(), by);
        said.pop_back();
        return said;
    });
}

}  // namespace tidemark
