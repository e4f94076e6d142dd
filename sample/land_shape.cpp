#include "land_shape.h"

#include <algorithm>
#include <cmath>

namespace tidemark {

namespace {

// Way along the map's edge, clockwise from the north-west corner: 1 is the north-east corner, 4
// the north-west one again. The point is on the edge, or nearly.
double Way_along_edge(GeoPoint point) {
    const auto [x, y] = Part_of_cell(point);
    const std::array<double, 4> distances{y, 1 - x, 1 - y, x};
    const auto nearest = std::min_element(distances.begin(), distances.end()) - distances.begin();
    const std::array<double, 4> ways{x, 1 + y, 3 - x, 4 - y};
    return ways[static_cast<std::size_t>(nearest)];
}

QPointF Corner(int number) {
    const bool east = number % 4 == 1 || number % 4 == 2;
    const bool south = number % 4 == 2 || number % 4 == 3;
    return QPointF(east ? PictureSize : 0, south ? PictureSize : 0);
}

// How far it is along the map's edge, clockwise, from one way to another.
double Distance(double from, double to) {
    return to > from ? to - from : to - from + 4;
}

// One closed piece of land: takes the coastlines of its outline out of `open`.
QPolygonF Land_piece(std::vector<GeoLine>& open) {
    const double start = Way_along_edge(open.back().front());
    QPolygonF outline;
    auto line = open.end() - 1;
    while (true) {
        outline += On_picture(*line);
        const double end = Way_along_edge(line->back());
        open.erase(line);

        double to_next = Distance(end, start);
        line = open.end();
        for (auto other = open.begin(); other != open.end(); ++other) {
            const double to_other = Distance(end, Way_along_edge(other->front()));
            if (to_other >= to_next) continue;
            to_next = to_other;
            line = other;
        }
        for (int corner = static_cast<int>(end) + 1; corner < end + to_next; ++corner)
            outline += Corner(corner);
        if (line == open.end()) return outline;
    }
}

}  // namespace

QPointF On_picture(GeoPoint point) {
    const auto [x, y] = Part_of_cell(point);
    return {x * PictureSize, y * PictureSize};
}

QPolygonF On_picture(const GeoLine& line) {
    QPolygonF polygon;
    for (const GeoPoint& point : line) polygon += On_picture(point);
    return polygon;
}

QPainterPath Land_shape(const std::vector<GeoLine>& coast, const std::vector<GeoLine>& islands) {
    QPainterPath land;
    for (std::vector<GeoLine> open = coast; !open.empty();) {
        land.addPolygon(Land_piece(open));
        land.closeSubpath();
    }
    for (const GeoLine& island : islands) land.addPolygon(On_picture(island));
    return land;
}

}  // namespace tidemark
