// What the Edit Point dialog shows, refuses and stores.
#include "vtp_edit/edit_point.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"

namespace tidemark {
namespace {

// An area of 2 x 3 cells with its top-left cell at column 3, row 5.
Project Area_with_point(int x, int y) {
    Project project;
    project.BGLOD13tlX = 3;
    project.BGLOD13tlY = 5;
    project.AreaLeftVTP = 4848;
    project.AreaTopVTP = 5360;
    project.AreaRightVTP = 4848 + 512;
    project.AreaBottomVTP = 5360 + 768;
    Add_segment(project, 1, 80, {{x, y}});
    return project;
}

TEST(EditPointTest, ShowsThePlaceInTheAreaAndInTheCell) {
    struct Case {
        int X, Y;
        const char *InCellX, *InCellY;
        const char* Cell;
    };
    for (const Case& c : {Case{5000, 6000, "152", "128", "[ 3, 7 ]"},
                          {4848, 5615, "0", "255", "[ 3, 5 ]"},
                          {4847, 5000, "255", "152", "[ 2, 3 ]"},
                          {5360, 5360, "0", "0", "[ 5, 5 ]"}}) {
        Project project = Area_with_point(c.X, c.Y);
        const EditPointTexts texts = Edit_point_texts(project, 1);
        EXPECT_EQ(texts.VTPX + "," + texts.VTPY, std::to_string(c.X) + "," + std::to_string(c.Y));
        EXPECT_EQ(texts.LOD13X, c.InCellX);
        EXPECT_EQ(texts.LOD13Y, c.InCellY);
        EXPECT_EQ(Edit_point_cell_text(project, 1), "Current LOD13 cell is " + std::string(c.Cell));
        EXPECT_EQ(std::to_string(project.CursorInCellX), c.InCellX);
        EXPECT_EQ(std::to_string(project.CursorInCellY), c.InCellY);
    }
}

TEST(EditPointTest, RefusesTheFirstNumberThatIsOutOfRange) {
    struct Case {
        EditPointTexts Texts;
        const char* Warning;  // null: accepted
    };
    const auto units = [](const char* x, const char* y) {
        return EditPointTexts{x, y, "999", "999", false};
    };
    const auto in_cell = [](const char* x, const char* y) {
        return EditPointTexts{"0", "0", x, y, true};
    };
    for (const auto& [texts, warning] :
         {Case{units("4848", "5360"), nullptr},
          {units("5360", "6128"), nullptr},
          {units("5360.1", "0"), "X value must be in the range 4848-5360"},
          {units("", "6000"), "X value must be in the range 4848-5360"},
          {units("5000", "6129"), "Y value must be in the range 5360-6128"},
          {units("5000", "5359.9"), "Y value must be in the range 5360-6128"},
          {in_cell("255", ""), nullptr},
          {in_cell("256", "-1"), "X value must be in the range 0-255"},
          {in_cell("-.4", "0"), "X value must be in the range 0-255"},
          {in_cell("0", "1e99"), "Y value must be in the range 0-255"}}) {
        RecordingMessages messages;
        EXPECT_EQ(Check_edit_point(Area_with_point(5000, 6000), texts, messages), !warning);
        EXPECT_EQ(messages.Texts(),
                  warning ? std::vector<std::string>{warning} : std::vector<std::string>{});
    }
}

TEST(EditPointTest, StoresThePlaceOfTheChosenForm) {
    struct Case {
        EditPointTexts Texts;
        int FromX, X, Y;
    };
    for (const auto& [texts, from_x, x, y] :
         {Case{{"5001.5", "6002.5", "1", "2", false}, 5000, 5002, 6002},
          {{"1", "2", "255", "0.5", true}, 5000, 4848 + 255, 5360 + 512},
          {{"1", "2", "10", "1.5", true}, 4847, 4848 - 256 + 10, 5360 + 512 + 2}}) {
        Project project = Area_with_point(from_x, 6000);
        Store_edit_point(project, 1, texts);
        EXPECT_EQ(project.VTPPoint(1, 0), x);
        EXPECT_EQ(project.VTPPoint(1, 1), y);
        EXPECT_TRUE(project.DataChanged);
        EXPECT_TRUE(project.VTPSegStart(1) && project.VTPMode(1) == 1 && project.VTPWidth(1) == 80);
    }
}

}  // namespace
}  // namespace tidemark
