// The sequence after saving with a real compiler, real folders and real time.
#include <gtest/gtest.h>

#include "fakes/environment.h"
#include "fakes/recording_messages.h"
#include "fakes/temporary_folder.h"
#include "output/after_save.h"

namespace tidemark {
namespace {

class RealPatience : public Patience {
    void Wait(const std::string&, int milliseconds) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }
};

TEST(CompilingTest, ASlowCompilersFileIsCopiedWholeOverTheOldOneWhateverItsNamesAndTheirCase) {
    const Variable delay("STANDIN_DELAY", "1"), pieces("STANDIN_PIECES", "6");
    const Variable lower("STANDIN_LOWER_CASE", "1");
    const TemporaryFolder simulator;
    const WorkingFolder scenery;
    const std::string text = Source_file("tests/output/data/one-segment-VTP.asm");
    const std::string file = "-VTP a;$(b)'.asm", compiled = simulator / "-VTP a;$(b)'.BGL";
    std::filesystem::copy_file(STANDIN_COMPILER, "bglc.exe");
    Write_file(file, text);
    Write_file("-vtp A;$(B)'.bgl", "of an earlier run");
    Write_file(compiled, "of an earlier run");
    RecordingMessages messages;
    DiskFiles files;
    SystemPrograms programs;
    RealPatience patience;
    After_save({file, false, true, true, simulator.Path()}, messages, files, programs, patience);
    EXPECT_EQ(messages.Said(),
              "Tidemark - File OK: -VTP a;$(b)'.BGL successfully copied to " + simulator.Path());
    EXPECT_EQ(File_content(compiled), "BGL begins\n" + text + "BGL ends");
}

}  // namespace
}  // namespace tidemark
