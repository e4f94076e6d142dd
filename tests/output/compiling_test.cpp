// The sequence after saving with a real compiler, real folders and real time.
#include <gtest/gtest.h>

#include "fakes/environment.h"
#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "fakes/temporary_folder.h"
#include "output/after_save.h"
#include "output/assembler_files.h"

namespace tidemark {
namespace {

namespace fs = std::filesystem;

class RealPatience : public Patience {
    void Wait(const std::string&, int milliseconds) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }
};

TEST(CompilingTest, ASlowCompilersFileIsCopiedWholeOverTheOldOneWhateverItsNamesAndTheirCase) {
    const Variable delay("STANDIN_DELAY", "1"), pieces("STANDIN_PIECES", "6");
    const Variable lower("STANDIN_LOWER_CASE", "1");
    const TemporaryFolder scenery, simulator;
    fs::copy_file(STANDIN_COMPILER, scenery / "bglc.exe");
    Write_file(scenery / "-vtp A;$(B)'.bgl", "of an earlier run");
    Write_file(simulator / "-VTP a;$(b)'.BGL", "of an earlier run");
    Project project;
    Add_segment(project, 1, 80, {{5460, 6000}, {5500, 6100}});
    project.VTPFileName = "-VTP a;$(b)'.asm";
    project.VTPCompile = project.CopyToFS = true;
    project.FSFolder = simulator.Path();

    RecordingMessages messages;
    DiskFiles files;
    SystemPrograms programs;
    RealPatience patience;
    const fs::path before = fs::current_path();
    fs::current_path(scenery.Path());
    EXPECT_TRUE(Save_VTP_file(project, messages, files));
    After_save(VTP_after_save(project), messages, files, programs, patience);
    fs::current_path(before);
    EXPECT_EQ(messages.Texts().at(0),
              "-VTP a;$(b)'.BGL successfully copied to " + simulator.Path());
    EXPECT_EQ(File_content(simulator / "-VTP a;$(b)'.BGL"),
              "BGL begins\n" + File_content(scenery / project.VTPFileName) + "BGL ends");
}

}  // namespace
}  // namespace tidemark
