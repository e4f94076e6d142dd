// What the project looks like, as operations on the drawing surface.
#include "canvas/refresh_graphics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "fakes/recording_surface.h"
#include "fakes/sample_projects.h"

namespace tidemark {
namespace {

using testing::ElementsAre;

// The whole LOD8 cell at half a pixel to the VTP unit across and one down.
class RefreshGraphicsTest : public testing::Test {
  protected:
    RefreshGraphicsTest() {
        p.AreaLeftVTP = p.AreaTopVTP = 4080;
        p.ScaleX = 0.5F;
        p.ScaleY = 1;
    }

    std::vector<std::string> Drawn(int selected = -1, std::size_t reports = 0) {
        RecordingSurface surface;
        RecordingMessages messages;
        Refresh_Graphics(p, selected, surface, messages);
        EXPECT_EQ(messages.Shown.size(), reports);
        return surface.Operations;
    }

    Project p;
};

TEST_F(RefreshGraphicsTest, EverythingInOrder) {
    EXPECT_THAT(Drawn(0), ElementsAre("erase", "width 3"));
    Add_polygon(p, 1, 0, 10, 20, 3);
    Add_polygon(p, 1, 0, 11, 20, 1);
    Add_segment(p, 1, 80, {{4080, 4080}, {4180, 4080}, {4180, 4090}});
    Add_segment(p, 7, 80, {{4280, 4080}, {4281, 4081}});
    Add_cleared_cell(p, 0, 0, 16);
    EXPECT_THAT(Drawn(3), ElementsAre("erase", "width 3",                               //
                                      "colour 0 0 255",                                 //
                                      "line 128,0 255.5,0", "line 255.5,0 255.5,255",   //
                                      "line 128,0 255.5,255",                           //
                                      "colour 0 255 0", "line 128,0 128,0",             //
                                      "width 2", "colour 255 255 0",                    //
                                      "line 0,0 50,0", "line 50,0 50,10",               //
                                      "width 1", "colour 0 0 0", "line 100,0 100.5,1",  //
                                      "width 2", "colour 0 0 128",                      //
                                      "line 9,18 119,18", "line 119,18 9,238",          //
                                      "line 9,238 9,18", "line 9,18 119,238",           //
                                      "line 119,238 119,18", "line 9,238 119,238",      //
                                      "width 2", "circle 100,0 r5 colour 255 0 0"));
    EXPECT_EQ(Drawn(4).back(), "circle 100.5,1 r5 colour 255 0 0");
    EXPECT_EQ(Drawn(5).back(), "line 9,238 119,238");
}

TEST_F(RefreshGraphicsTest, EveryModeHasItsPenAndAnUnknownOneKeepsTheLast) {
    for (const int mode : {0, 1, 2, 3, 4, 5, 6, 7, 9, 8, -1}) Add_segment(p, mode, 80, {{0, 0}});
    EXPECT_THAT(Drawn(-1, 1),
                ElementsAre("erase", "width 3",                                              //
                            "width 1", "colour 255 0 255",                                   //
                            "width 2", "colour 255 255 0",                                   //
                            "width 2", "colour 255 255 0",                                   //
                            "width 2", "colour 255 255 255", "width 2", "colour 255 255 0",  //
                            "width 2", "colour 0 255 255",                                   //
                            "width 2", "colour 128 128 0",                                   //
                            "width 1", "colour 0 0 0",                                       //
                            "width 2", "colour 0 0 0"));
}

TEST_F(RefreshGraphicsTest, ClearedCellsNestBySizeAndAnUnknownCodeRepeatsTheLast) {
    for (const int code : {9, 8, 31, 32, 7}) Add_cleared_cell(p, 0, 0, code);
    std::vector<std::string> inks_and_tops;
    std::string before = "colour";
    for (const std::string& drawn : Drawn()) {
        if (drawn.starts_with("colour") || before.starts_with("colour"))
            inks_and_tops.push_back(drawn);
        before = drawn;
    }
    EXPECT_THAT(inks_and_tops, ElementsAre("erase", "colour 128 128 0", "line 4,8 124,8",  //
                                           "colour 128 128 128", "line 14,28 114,28",      //
                                           "colour 0 0 0", "line 19,38 109,38"));
    EXPECT_EQ(Drawn()[3], "line 64,128 64,128");  // no size before the first known code
    EXPECT_EQ(before, "line 19,218 109,218");
}

TEST_F(RefreshGraphicsTest, WhatLiesTooFarAwayForSixteenBitsIsLeftOut) {
    Add_polygon(p, 200, 0, 10, 20, 3);
    Add_segment(p, 5, 80, {{4080, 4080}, {-30000, 4080}, {4082, 4080}, {4084, 4080}});
    Add_cleared_cell(p, 0, 200, 16);
    EXPECT_THAT(Drawn(1),
                ElementsAre("erase", "width 3", "colour 0 0 255", "width 2", "colour 0 255 255",
                            "line 1,0 2,0", "width 2", "colour 0 0 128", "width 2"));
}

}  // namespace
}  // namespace tidemark
