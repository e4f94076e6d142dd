// The console companion over files in memory.
#include "app/asm_companion.h"

#include <sstream>

#include <gtest/gtest.h>

#include "fakes/memory_files.h"
#include "fakes/sample_projects.h"
#include "model/project_file.h"
#include "output/lwm_text.h"
#include "output/vtp_text.h"

namespace tidemark {
namespace {

// A project with a river, and with a polygon on demand.
Project River(bool with_polygon) {
    Project p;
    Add_segment(p, 5, 80, {{5000, 6000}, {5010, 6000}});
    if (with_polygon) Add_polygon(p, 1, 2, 10, 0, 4);
    return p;
}

TEST(CompanionTest, NamesComeFromThePreferencesOrTheProjectAndTheFolderReplacesTheirs) {
    struct Case {
        bool PrefsSet;
        std::string OutputFolder, Out;
    };
    for (const auto& [prefs_set, folder, out] :
         {Case{true, "", "C:\\Scenery\\Skye-VTP.asm\nC:\\Scenery\\Skye-LWM.asm\n"},
          Case{true, "to", "to/Skye-VTP.asm\nto/Skye-LWM.asm\n"},
          Case{false, "", "in/v1.2/river-VTP.asm\nin/v1.2/river-LWM.asm\n"},
          Case{false, "to", "to/river-VTP.asm\nto/river-LWM.asm\n"}}) {
        Project p = River(true);
        p.PrefsSet = prefs_set;
        p.VTPFileName = "C:\\Scenery\\Skye-VTP.asm";
        p.LWMFileName = "C:\\Scenery\\Skye-LWM.asm";
        MemoryFiles files;
        files.Content["in/v1.2/river.TDM"] = Project_bytes(p, "");
        std::ostringstream written, errors;
        EXPECT_TRUE(Write_assembler_files({folder, {"in/v1.2/river.TDM"}}, files, written, errors));
        EXPECT_EQ(written.str(), out);
        EXPECT_EQ(errors.str(), "");
        EXPECT_EQ(files.Content[out.substr(0, out.find('\n'))], VTP_file_bytes(p));
    }
}

TEST(CompanionTest, ARefusalDoesNotStopTheOtherFilesAndProjects) {
    MemoryFiles files;
    Project no_segments;
    Add_polygon(no_segments, 1, 2, 10, 0, 4);
    files.Content["polygons.TDM"] = Project_bytes(no_segments, "");
    files.Content["river.TDM"] = Project_bytes(River(false), "");
    files.Content["bad.TDM"] = "x\n70000\n";
    std::ostringstream written, errors;
    EXPECT_FALSE(Write_assembler_files({"", {"gone.TDM", "bad.TDM", "polygons.TDM", "river.TDM"}},
                                       files, written, errors));
    EXPECT_EQ(written.str(), "polygons-LWM.asm\nriver-VTP.asm\n");
    EXPECT_EQ(errors.str(),
              "gone.TDM: No such file or directory\n"
              "bad.TDM: line 2: AreaLeftVTP does not fit -32768..32767: 70000\n"
              "polygons.TDM: VTP file generation aborted - no valid coast segments or cell "
              "clearing data found in VTP data!\n");
}

TEST(CompanionTest, FlagsAndClosingPointsArePutRightAsInTheEditor) {
    Project stored = River(true);
    stored.VTPSegStart(1) = stored.VTPSegEnd(2) = false;
    stored.LWMPointCount(1) = 5;
    for (const int axis : {0, 1}) stored.LWMPoint(1, 5, axis) = stored.LWMPoint(1, 1, axis);
    MemoryFiles files;
    files.Content["r.TDM"] = Project_bytes(stored, "");
    std::ostringstream written, errors;
    EXPECT_TRUE(Write_assembler_files({"", {"r.TDM"}}, files, written, errors)) << errors.str();
    EXPECT_EQ(files.Content["r-VTP.asm"], VTP_file_bytes(River(false)));
    EXPECT_EQ(files.Content["r-LWM.asm"], LWM_file_bytes(River(true)));
}

}  // namespace
}  // namespace tidemark
