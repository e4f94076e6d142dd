// The console companion over files in memory.
#include "app/asm_companion.h"

#include <sstream>

#include <gtest/gtest.h>

#include "fakes/fake_platform.h"
#include "fakes/sample_projects.h"
#include "model/project_file.h"
#include "output/lwm_text.h"
#include "output/vtp_text.h"

namespace tidemark {
namespace {

Project River_and_polygon() {
    Project p;
    Add_segment(p, 5, 80, {{5000, 6000}, {5010, 6000}});
    Add_polygon(p, 1, 2, 10, 0, 4);
    p.VTPFileName = "C:\\Scenery\\Skye-VTP.asm";
    p.LWMFileName = "C:\\Scenery\\Skye-LWM.asm";
    return p;
}

TEST(CompanionTest, NamesComeFromThePreferencesOrTheProjectAndTheFolderReplacesTheirs) {
    for (const auto& [prefs_set, folder, out] :
         {std::tuple{true, "", "C:\\Scenery\\Skye-VTP.asm\nC:\\Scenery\\Skye-LWM.asm\n"},
          {true, "to", "to/Skye-VTP.asm\nto/Skye-LWM.asm\n"},
          {false, "", "in/v1.2/river-VTP.asm\nin/v1.2/river-LWM.asm\n"},
          {false, "to", "to/river-VTP.asm\nto/river-LWM.asm\n"}}) {
        Project p = River_and_polygon();
        p.PrefsSet = prefs_set;
        MemoryFiles files;
        files.Content["in/v1.2/river.TDM"] = Project_bytes(p, "");
        std::ostringstream written, errors;
        EXPECT_TRUE(Write_assembler_files({folder, {"in/v1.2/river.TDM"}}, files, written, errors));
        EXPECT_EQ(written.str() + errors.str(), out);
    }
}

// The last project has wrong flags and a closing point, which are put right as in the editor.
TEST(CompanionTest, ARefusalDoesNotStopTheOtherFilesAndProjects) {
    const Project river = River_and_polygon();
    Project no_segments = river, stored = river;
    no_segments.VTPCount = 0;
    stored.VTPSegStart(1) = stored.VTPSegEnd(2) = false;
    stored.LWMPointCount(1) = 5;
    for (const int axis : {0, 1}) stored.LWMPoint(1, 5, axis) = stored.LWMPoint(1, 1, axis);
    MemoryFiles files;
    files.Content = {{"polygons.TDM", Project_bytes(no_segments, "")},
                     {"river.TDM", Project_bytes(stored, "")},
                     {"bad.TDM", "x\n70000\n"}};
    std::ostringstream written, errors;
    EXPECT_FALSE(Write_assembler_files({"", {"gone.TDM", "bad.TDM", "polygons.TDM", "river.TDM"}},
                                       files, written, errors));
    EXPECT_EQ(written.str(), "polygons-LWM.asm\nriver-VTP.asm\nriver-LWM.asm\n");
    EXPECT_EQ(errors.str(),
              "gone.TDM: No such file or directory\n"
              "bad.TDM: line 2: AreaLeftVTP does not fit -32768..32767: 70000\n"
              "polygons.TDM: VTP file generation aborted - no valid coast segments or cell "
              "clearing data found in VTP data!\n");
    EXPECT_EQ(files.Content["river-VTP.asm"], VTP_file_bytes(river));
    EXPECT_EQ(files.Content["river-LWM.asm"], LWM_file_bytes(river));
}

}  // namespace
}  // namespace tidemark
