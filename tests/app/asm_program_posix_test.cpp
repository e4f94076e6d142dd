// The program tidemark-asm itself, as a shell starts it.
#include <sys/wait.h>

#include "fakes/rules_test.h"
#include "output/lwm_text.h"
#include "output/vtp_text.h"

namespace tidemark {

class AsmProgramTest : public testing::Test {
  protected:
    AsmProgramTest() {
        Add_segment(river_, 5, 80, {{5000, 6000}, {5010, 6000}});
        Project line = river_;
        Add_polygon(river_, 1, 2, 10, 0, 4);
        for (const char* const name : {"river.TDM", "notes.TDM"})
            Write_file(name, Project_bytes(river_, ""));
        Write_file("line.TDM", Project_bytes(line, ""));
        Write_file("picture.TDM", Source_file("sample/golden-gate.jpg"));
        Write_file("notes-VTP.asm", "; my own work");
        std::filesystem::create_directory("to");
    }

    // The exit code, and what is printed and complained about.
    static std::string Run(const std::string& arguments) {
        const int status =
            std::system(("{ " TIDEMARK_ASM " " + arguments + "; } >out 2>complaints").c_str());
        std::string text = std::to_string(WEXITSTATUS(status)) + "\n" + File_content("out") +
                           File_content("complaints");
        if (text.ends_with('\n')) text.pop_back();
        return text;
    }

    const WorkingFolder folder_;
    Project river_;
};

TEST_F(AsmProgramTest, ExitCodesOutputAndComplaints) {
    const std::string help = Run("--help");
    EXPECT_TRUE(help.starts_with("0\nUsage: tidemark-asm [--output-folder DIR] PROJECT.TDM...\n"));
    const auto replace = [](std::string text, const std::string& part, const std::string& by) {
        const auto at = text.find(part);
        return at == text.npos ? text : text.replace(at, part.size(), by);
    };
    Expect_cases("app/data/asm_program.txt", [&](const Given& given) {
        const std::string said = replace(Run(given[0]), help.substr(2), "(usage)");
        return replace(replace(said, TIDEMARK_VERSION, "(version)"), TIDEMARK_ASM, "tidemark-asm");
    });
    for (const char* const folder : {"", "to/"}) {
        EXPECT_EQ(File_content(folder + std::string("river-VTP.asm")), VTP_file_bytes(river_));
        EXPECT_EQ(File_content(folder + std::string("river-LWM.asm")), LWM_file_bytes(river_));
    }
    EXPECT_EQ(File_content("notes-VTP.asm"), "; my own work");
}

}  // namespace tidemark
