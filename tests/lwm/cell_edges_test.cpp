// Where the coastlines cross the cell's boundary.
#include "lwm/cell_edges.h"

#include <gtest/gtest.h>

#include "fakes/cell_picture.h"
#include "fakes/recording_messages.h"

namespace tidemark {
namespace {

TEST(CellEdgesTest, AStepCrossesTheBoundaryWhereItsLineDoes) {
    for (const auto& [line, crossing] : std::vector<std::pair<const char*, const char*>>{
             {"100,50 -100,250", "0,150"},
             {"-100,250 100,50", "0,150"},
             {"60,110 -20,100", "0,102"},  // 102.5
             {"-10,14 10,13", "0,14"},     // 13.5
             {"10,12 -10,13", "0,12"},     // 12.5
             {"29,1 -71,51", "0,16"},      // 15.5,
             {"-71,51 29,1", "0,15"},      // a little less by the arithmetic
             {"150,120 300,130", "255,127"},
             {"300,130 150,120", "255,127"},
             {"100,200 140,300", "122,255"},
             {"140,300 100,200", "122,255"},
             {"10,100 -90,-20", "-73,0"},  // top wins
             {"250,250 400,300", "265,255"}}) {
        const auto project = Cell_project(line);
        RecordingMessages messages;
        CellEdges edges(*project, messages);
        edges.Point_in_cell(1);
        edges.Add_Edge_Crossing(2, false);
        EXPECT_EQ(Points_text({{edges.EdgePoint(1)}}), crossing) << line;
    }
}

}  // namespace
}  // namespace tidemark
