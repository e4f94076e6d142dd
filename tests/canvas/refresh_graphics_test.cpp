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
using testing::IsEmpty;

// The whole LOD8 cell at half a pixel to the VTP unit across and one down.
Project Whole_cell() {
    Project p;
    p.AreaLeftVTP = p.AreaTopVTP = 4080;
    p.ScaleX = 0.5F;
    p.ScaleY = 1;
    return p;
}

std::vector<std::string> Drawn(const Project& p, int selected = -1,
                               std::vector<std::string> expected_messages = {}) {
    RecordingSurface surface;
    RecordingMessages messages;
    Refresh_Graphics(p, selected, surface, messages);
    EXPECT_EQ(messages.Texts(), expected_messages);
    return surface.Operations;
}

TEST(RefreshGraphicsTest, AnEmptyProjectLeavesTheImageAlone) {
    EXPECT_THAT(Drawn(Whole_cell(), 0), ElementsAre("erase", "width 3"));
}

TEST(RefreshGraphicsTest, EverythingInOrder) {
    Project p = Whole_cell();
    Add_polygon(p, 1, 0, 10, 20, 3);
    Add_polygon(p, 1, 0, 11, 20, 1);
    Add_segment(p, 1, 80, {{4080, 4080}, {4180, 4080}, {4180, 4090}});
    Add_segment(p, 7, 80, {{4280, 4080}, {4281, 4081}});
    Add_cleared_cell(p, 0, 0, 16);
    EXPECT_THAT(Drawn(p, 3), ElementsAre("erase", "width 3",                               //
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
}

TEST(RefreshGraphicsTest, EveryModeHasItsPen) {
    struct Case {
        int Mode;
        const char *Width, *Ink;
    };
    for (const auto& [mode, width, ink] : {Case{0, "width 1", "colour 255 0 255"},
                                           {1, "width 2", "colour 255 255 0"},
                                           {2, "width 2", "colour 255 255 0"},
                                           {3, "width 2", "colour 255 255 255"},
                                           {4, "width 2", "colour 255 255 0"},
                                           {5, "width 2", "colour 0 255 255"},
                                           {6, "width 2", "colour 128 128 0"},
                                           {7, "width 1", "colour 0 0 0"},
                                           {9, "width 2", "colour 0 0 0"}}) {
        Project p = Whole_cell();
        Add_segment(p, mode, 80, {{4080, 4080}});
        EXPECT_THAT(Drawn(p), ElementsAre("erase", "width 3", width, ink)) << mode;
    }
}

TEST(RefreshGraphicsTest, AnUnknownModeKeepsThePenAndIsReportedOnce) {
    Project p = Whole_cell();
    Add_segment(p, 5, 80, {{4080, 4080}});
    Add_segment(p, 8, 80, {{4080, 4080}, {4082, 4080}});
    Add_segment(p, -1, 80, {{4080, 4080}, {4084, 4080}});
    EXPECT_THAT(Drawn(p, -1, {"Unknown case encountered."}),
                ElementsAre("erase", "width 3", "width 2", "colour 0 255 255", "line 0,0 1,0",
                            "line 0,0 2,0"));
}

TEST(RefreshGraphicsTest, ClearedCellsNestBySizeAndAnUnknownCodeRepeatsTheLast) {
    Project p = Whole_cell();
    for (const int code : {9, 8, 31, 32, 7}) Add_cleared_cell(p, 0, 0, code);
    std::vector<std::string> lines = Drawn(p);
    std::vector<std::string> inks_and_tops;
    for (std::size_t i = 3; i < lines.size(); ++i)
        if (lines[i].starts_with("colour") || (lines[i - 1].starts_with("colour")))
            inks_and_tops.push_back(lines[i]);
    EXPECT_EQ(lines[3], "line 64,128 64,128");  // no size before the first known code
    EXPECT_THAT(inks_and_tops, ElementsAre("colour 128 128 0", "line 4,8 124,8",       //
                                           "colour 128 128 128", "line 14,28 114,28",  //
                                           "colour 0 0 0", "line 19,38 109,38"));
    EXPECT_EQ(lines.back(), "line 19,218 109,218");
}

TEST(RefreshGraphicsTest, WhatLiesTooFarAwayForSixteenBitsIsLeftOut) {
    Project p = Whole_cell();
    Add_polygon(p, 200, 0, 10, 20, 3);
    Add_segment(p, 5, 80, {{4080, 4080}, {-30000, 4080}, {4082, 4080}, {4084, 4080}});
    Add_cleared_cell(p, 0, 200, 16);
    EXPECT_THAT(Drawn(p, 1),
                ElementsAre("erase", "width 3", "colour 0 0 255", "width 2", "colour 0 255 255",
                            "line 1,0 2,0", "width 2", "colour 0 0 128", "width 2"));
}

TEST(RefreshGraphicsTest, ASelectionOutsideTheListMarksNothing) {
    Project p = Whole_cell();
    Add_segment(p, 0, 80, {{4080, 4080}, {4082, 4080}});
    EXPECT_EQ(Drawn(p, 1).back(), "circle 1,0 r5 colour 255 0 0");
    for (const int selected : {-1, 2}) EXPECT_EQ(Drawn(p, selected).back(), "line 0,0 1,0");
}

}  // namespace
}  // namespace tidemark
