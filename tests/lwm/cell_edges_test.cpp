// Where the coastlines cross the cell's boundary.
#include "lwm/cell_edges.h"

#include "fakes/cases.h"
#include "fakes/cell_picture.h"
#include "fakes/recording_messages.h"

namespace tidemark {
namespace {

TEST(CellEdgesTest, AStepCrossesTheBoundaryWhereItsLineDoes) {
    Expect_cases("lwm/data/crossings.txt", [](const Given& given) {
        const auto project = Cell_project(given[0]);
        RecordingMessages messages;
        CellEdges edges(*project, messages);
        edges.Point_in_cell(1);
        edges.Add_Edge_Crossing(2, false);
        return Points_text({{edges.EdgePoint(1)}});
    });
}

}  // namespace
}  // namespace tidemark
