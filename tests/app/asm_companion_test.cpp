// The console companion over files in memory.
#include "app/asm_companion.h"

#include "fakes/rules_test.h"
#include "output/lwm_text.h"
#include "output/vtp_text.h"

namespace tidemark {

class CompanionTest : public testing::Test {
  protected:
    CompanionTest() {
        Add_segment(river_, 5, 80, {{5000, 6000}, {5010, 6000}});
        Add_polygon(river_, 1, 2, 10, 0, 4);
        river_.VTPFileName = "C:\\Scenery\\Skye-VTP.asm";
        river_.LWMFileName = "C:\\Scenery\\Skye-LWM.asm";
    }

    // What it prints, the errors last.
    std::string Run(const CompanionTask& task, bool all_is_written) {
        std::ostringstream written, errors;
        EXPECT_EQ(Write_assembler_files(task, files_, written, errors), all_is_written);
        return written.str() + errors.str();
    }

    Project river_;
    MemoryFiles files_;
};

TEST_F(CompanionTest, NamesComeFromThePreferencesOrTheProjectAndTheFolderReplacesTheirs) {
    for (const auto& [prefs_set, folder, out] :
         {std::tuple{true, "", "C:\\Scenery\\Skye-VTP.asm\nC:\\Scenery\\Skye-LWM.asm\n"},
          {true, "to", "to/Skye-VTP.asm\nto/Skye-LWM.asm\n"},
          {false, "", "in/v1.2/river-VTP.asm\nin/v1.2/river-LWM.asm\n"},
          {false, "to", "to/river-VTP.asm\nto/river-LWM.asm\n"}}) {
        river_.PrefsSet = prefs_set;
        files_.Content["in/v1.2/river.TDM"] = Project_bytes(river_, "");
        EXPECT_EQ(Run({folder, {"in/v1.2/river.TDM"}}, true), out);
    }
    files_.Content["v1.2/river"] = Project_bytes(river_, "");
    EXPECT_EQ(Run({"", {"v1.2/river"}}, true), "v1.2/river-VTP.asm\nv1.2/river-LWM.asm\n");
}

// The last project has wrong flags and a closing point, which are put right as in the editor.
TEST_F(CompanionTest, ARefusalDoesNotStopTheOtherFilesAndProjects) {
    Project no_segments = river_, no_polygons = river_, nothing, stored = river_;
    no_segments.VTPCount = no_polygons.LWMCount = 0;
    Project plain = no_segments, cleared = no_segments;
    Add_segment(plain, PlainSegment, 80, {{5000, 6000}, {5010, 6000}});
    Add_cleared_cell(cleared, 1, 2, ClearCoastlines);
    stored.VTPSegStart(1) = stored.VTPSegEnd(2) = false;
    stored.LWMPointCount(1) = 5;
    for (const int axis : {0, 1}) stored.LWMPoint(1, 5, axis) = stored.LWMPoint(1, 1, axis);
    files_.Content = {{"polygons.TDM", Project_bytes(no_segments, "")},
                      {"plain.TDM", Project_bytes(plain, "")},
                      {"cleared.TDM", Project_bytes(cleared, "")},
                      {"nothing.TDM", Project_bytes(nothing, "")},
                      {"line.TDM", Project_bytes(no_polygons, "")},
                      {"river.TDM", Project_bytes(stored, "")},
                      {"bad.TDM", "x\n70000\n"}};
    EXPECT_EQ(Run({"",
                   {"gone.TDM", "bad.TDM", "polygons.TDM", "plain.TDM", "cleared.TDM",
                    "nothing.TDM", "line.TDM", "river.TDM"}},
                  false),
              "polygons-LWM.asm\nplain-LWM.asm\ncleared-VTP.asm\ncleared-LWM.asm\nline-VTP."
              "asm\nriver-VTP.asm\nriver-LWM.asm\n"
              "gone.TDM: No such file or directory\n"
              "bad.TDM: line 2: AreaLeftVTP does not fit -32768..32767: 70000\n"
              "nothing.TDM: VTP file generation aborted - no valid coast segments or cell "
              "clearing data found in VTP data!\n");
    EXPECT_EQ(files_.Content["river-VTP.asm"], VTP_file_bytes(river_));
    EXPECT_EQ(files_.Content["river-LWM.asm"], LWM_file_bytes(river_));
}

TEST_F(CompanionTest, OnlyAFileThatBeginsAsOneOfOursIsReplaced) {
    files_.Content = {{"river.TDM", Project_bytes(river_, "")}};
    const std::string written = Run({"", {"river.TDM"}}, true);
    std::string& file = files_.Content["river-VTP.asm"];
    std::string older = file;
    older.replace(older.find("V1.1"), 4, "V1.0");
    for (const std::string& ours : {older, file, std::string()}) {
        file = ours;
        EXPECT_EQ(Run({"", {"river.TDM"}}, true), written);
    }
    for (const std::string& foreign : {older.substr(1), older.substr(0, 20), std::string("x")}) {
        file = foreign;
        EXPECT_EQ(Run({"", {"river.TDM"}}, false),
                  "river-LWM.asm\nriver.TDM: river-VTP.asm is there and is no assembler file of "
                  "Tidemark; it is left as it is\n");
        EXPECT_EQ(file, foreign);
    }
}

TEST_F(CompanionTest, NoFileIsWrittenTwice) {
    for (const char* const path : {"a/c.TDM", "b/c.TDM"})
        files_.Content[path] = Project_bytes(river_, "");
    river_.PrefsSet = true;
    river_.VTPFileName = river_.LWMFileName = "both.asm";
    files_.Content["both.TDM"] = Project_bytes(river_, "");
    EXPECT_EQ(Run({"to", {"a/c.TDM", "b/c.TDM", "both.TDM"}}, false),
              "to/c-VTP.asm\nto/c-LWM.asm\nto/both.asm\n"
              "b/c.TDM: to/c-VTP.asm would be written twice\n"
              "b/c.TDM: to/c-LWM.asm would be written twice\n"
              "both.TDM: to/both.asm would be written twice\n");
    EXPECT_EQ(files_.Content["to/both.asm"], VTP_file_bytes(river_));
}

TEST_F(CompanionTest, ErrorsOfTheCoastAreToldAndKeepNoFileFromBeingWritten) {
    const std::string error =
        "coast.TDM: [ 3, 8 ] Error: the step from point 3 to point 4 skips cell [ 3, 8 ], which is "
        "built without it; Mend puts points on both sides of the edges that it crosses\n";
    Add_segment(river_, SandWithWaves, 80, {{5000, 5872}, {5000, 6400}, {5000, 6639}});
    Add_segment(river_, Stream, 80, {{5000, 6400}, {5000, 6400}, {5010, 6400}});
    files_.Content = {{"coast.TDM", Project_bytes(river_, "")}};
    EXPECT_EQ(
        Run({"", {"coast.TDM", "gone.TDM"}, true}, false),
        error +
            "coast.TDM: [ 3, 9 ] Remark: points 6 and 7 are at the same place; Mend deletes one "
            "of them\ngone.TDM: No such file or directory\n");
    EXPECT_EQ(files_.Content.size(), 1U);
    EXPECT_EQ(Run({"", {"coast.TDM"}}, true), "coast-VTP.asm\ncoast-LWM.asm\n" + error);
    river_.VTPCount = 2;
    files_.Content["river.TDM"] = Project_bytes(river_, "");
    EXPECT_EQ(
        Run({"", {"river.TDM"}, true}, true),
        "river.TDM: Remark: there is no coastline to hold the polygons against; they belong to "
        "another project of this LOD8 cell, or it is gone\n");
}

}  // namespace tidemark
