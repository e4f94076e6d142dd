#include "fakes/cell_picture.h"

#include <sstream>

#include "fakes/sample_projects.h"
#include "model/cell_frame.h"
#include "model/drawing_modes.h"

namespace tidemark {

std::vector<CellPoint> Points_from(std::string_view text) {
    std::vector<CellPoint> points;
    std::istringstream stream{std::string(text)};
    int x = 0;
    int y = 0;
    for (char comma = 0; stream >> x >> comma >> y;) points.push_back({x, y});
    return points;
}

std::string Points_text(std::span<const CellPoint> points) {
    std::ostringstream text;
    for (const CellPoint& p : points)
        text << (&p == points.data() ? "" : " ") << int{p.X} << ',' << int{p.Y};
    return text.str();
}

void Add_line(Project& project, int mode, std::span<const CellPoint> points) {
    std::vector<std::pair<int, int>> places;
    for (const CellPoint& p : points)
        places.emplace_back(Cell_edge_VTP(PictureColumn) + p.X, Cell_edge_VTP(PictureRow) + p.Y);
    Add_segment(project, mode, 80, places);
}

Session Cell_session(CellPoint click) {
    Session session;
    session.CursorCellX = PictureColumn;
    session.CursorCellY = PictureRow;
    session.CursorInCellX = click.X;
    session.CursorInCellY = click.Y;
    session.DrawMode = WaterPolygon;
    return session;
}

std::unique_ptr<Project> Cell_project(std::string_view lines) {
    auto project = std::make_unique<Project>();
    Place_area(*project, PictureColumn - 2, PictureRow - 1, LastLOD13, LastLOD13);
    std::istringstream stream{std::string(lines)};
    for (std::string line; std::getline(stream, line, '|');) {
        const auto colon = line.find(':');
        const int mode = colon == line.npos ? 0 : std::stoi(line);
        Add_line(*project, mode, Points_from(colon == line.npos ? line : line.substr(colon + 1)));
    }
    return project;
}

}  // namespace tidemark
