#include "lwm/edge_points.h"

#include <array>

#include "model/drawing_modes.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

// Where a VTP point lies, as seen from the cell.
enum class Place { Outside, OnBoundary, Inside };

// The walk along the coastlines, point by point.
class CoastWalk {
  public:
    CoastWalk(CellPoints& points, CellEdges& edges) : points_(points), edges_(edges) {}

    void First_point(int i) {
        const Place place = Place_of(i);
        if (place == Place::Inside) Add_point(i, EdgeType::Terminal, false);
        if (place == Place::OnBoundary) Add_point(i, EdgeType::Boundary, false);
        outside_ = place == Place::Outside;
    }

    void Middle_point(int i) {
        switch (Place_of(i)) {
            case Place::Inside:
                if (outside_) Add_crossing(i, false);
                Add_point(i, EdgeType::Interior, true);
                outside_ = false;
                break;
            case Place::OnBoundary:
                Add_point(i, EdgeType::Boundary, !outside_);
                outside_ = !outside_;
                break;
            case Place::Outside:
                if (!outside_) Add_crossing(i, true);
                outside_ = true;
        }
    }

    void Last_point(int i) {
        switch (Place_of(i)) {
            case Place::Inside:
                if (outside_) Add_crossing(i, false);
                Add_point(i, EdgeType::Terminal, true);
                break;
            case Place::OnBoundary:
                if (!outside_) Add_point(i, EdgeType::Boundary, true);
                break;
            case Place::Outside:
                if (!outside_) Add_crossing(i, true);
        }
    }

  private:
    Place Place_of(int i) {
        if (!points_.Point_in_cell(i)) return Place::Outside;
        return Is_on_boundary(points_.PointInCell()) ? Place::OnBoundary : Place::Inside;
    }

    void Add_point(int i, EdgeType type, bool linked) {
        edges_.Add_Edge_Point(i, points_.PointInCell(), type, linked);
    }

    void Add_crossing(int i, bool linked) {
        edges_.Add_Edge_Point(i, points_.Crossing(i), EdgeType::Boundary, linked);
    }

    CellPoints& points_;
    CellEdges& edges_;
    bool outside_ = true;
};

// Makes the chain that begins at a end there. A chain that has no boundary point, because the flags
// of its segment do not agree, is reversed whole: behind its last point only the reversed
// predecessor is found.
void Reverse_chain_from(CellEdges& edges, int a) {
    for (int e = a; e != 0;) {
        const int next = edges.Next_edge_point(e);
        const bool goes_on = !Is_edge(edges.EdgePointType(e)) && next > e;
        edges.Set_link(e, goes_on ? next : 0);
        e = goes_on ? next : 0;
    }
}

// Makes the chain that ends at a begin there.
void Reverse_chain_to(CellEdges& edges, int a) {
    int e = a;
    while (e != 0 && !Is_edge(edges.EdgePointType(e))) e = edges.EdgePointLink(e);
    while (e != 0 && edges.EdgePointType(e) != EdgeType::Terminal) {
        const int next = edges.Next_edge_point(e);
        edges.Set_link(e, next);
        e = next;
    }
    edges.Set_link(a, 0);
}

// Links the chains of the terminal points a and b by a straight step between the two.
void Join_chains(CellEdges& edges, int a, int b) {
    const bool a_begins = edges.EdgePointLink(a) == 0;
    const bool b_begins = edges.EdgePointLink(b) == 0;
    if (a_begins && b_begins) Reverse_chain_from(edges, a);
    if (!a_begins && !b_begins) Reverse_chain_to(edges, a);

    const int a_link = edges.EdgePointLink(a);
    const int b_link = edges.EdgePointLink(b);
    if (a_link == 0 && b_link > 0)
        edges.Set_link(a, b);
    else if (b_link == 0 && a_link > 0)
        edges.Set_link(b, a);
}

int Next_terminal_point(const CellEdges& edges, int e) {
    while (edges.EdgePointType(e) != EdgeType::Terminal) ++e;
    return e;
}

void Refuse_terminal_points(int terminals, Messages& messages) {
    if (terminals == 1)
        Warn(messages,
             "1 VTP coastline segment terminates inside this LOD13 cell.\n"
             "Tidemark is unable to resolve this to create LWM polygons in this cell.\n"
             "Please remove this segment, or move the end point to one edge of this cell or an "
             "adjacent one.");
    else
        Warn(messages,
             Int_text(terminals) +
                 " VTP coastline segments terminate inside this LOD13 cell.\n"
                 "Tidemark is unable to resolve these to create LWM polygons in this cell.\n"
                 "Please remove these segments, or move the end points to one edge of this cell "
                 "or an adjacent one.");
}

}  // namespace

CellEdges Edge_points_of(const Project& project, CellPoints& points) {
    CellEdges edges;
    CoastWalk walk(points, edges);
    bool takes_part = false;
    for (int i = 1; i <= project.VTPCount; ++i) {
        const bool starts = project.VTPSegStart(i);
        const bool ends = project.VTPSegEnd(i);
        if (starts) takes_part = Is_coastline(project.VTPMode(i));
        if (!takes_part) continue;
        if (starts) walk.First_point(i);
        if (!starts && !ends) walk.Middle_point(i);
        if (ends) walk.Last_point(i);
    }
    return edges;
}

void Assign_edges(CellEdges& edges) {
    struct Test {
        Int16 CellPoint::*Coordinate;
        int Value;
        EdgeType Type;
    };
    // A later test that holds overrides an earlier one.
    static constexpr std::array tests{
        Test{&CellPoint::X, 0, EdgeType::Left}, Test{&CellPoint::X, LastCellUnit, EdgeType::Right},
        Test{&CellPoint::Y, 0, EdgeType::Top}, Test{&CellPoint::Y, LastCellUnit, EdgeType::Bottom}};
    for (int e = 1; e <= edges.EdgePointCount; ++e) {
        if (edges.EdgePointType(e) != EdgeType::Boundary) continue;
        for (const Test& test : tests)
            if (edges.EdgePoint(e).*test.Coordinate == test.Value)
                edges.EdgePointType(e) = test.Type;
    }
}

int Count_edge_points(const CellEdges& edges, EdgeType type) {
    int count = 0;
    for (int e = 1; e <= edges.EdgePointCount; ++e)
        if (edges.EdgePointType(e) == type) ++count;
    return count;
}

int Count_boundary_points(const CellEdges& edges) {
    int count = 0;
    for (int e = 1; e <= edges.EdgePointCount; ++e)
        if (Is_edge(edges.EdgePointType(e))) ++count;
    return count;
}

bool Join_terminal_points(CellEdges& edges, int terminals, Messages& messages) {
    if (terminals != 2) {
        Refuse_terminal_points(terminals, messages);
        return false;
    }
    Inform(messages, "Tidemark - Information",
           "2 VTP coastline segments terminate inside this LOD13 cell.\n"
           "Tidemark has assumed that these segments link together in order to create the LWM "
           "polygon in this cell.");
    const int a = Next_terminal_point(edges, 1);
    const int b = Next_terminal_point(edges, a + 1);
    Join_chains(edges, a, b);
    return true;
}

}  // namespace tidemark
