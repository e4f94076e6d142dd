#include "sample_project.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <utility>

#include "coast/cell_path.h"
#include "coast/clear_along.h"
#include "golden_gate.h"
#include "lwm/polygon_builder.h"
#include "model/cell_frame.h"
#include "model/drawing_modes.h"
#include "model/rounding.h"
#include "model/segments.h"

namespace tidemark {

namespace {

void Georeference(Project& project) {
    project.BGLOD8X = SampleLOD8X;
    project.BGLOD8Y = SampleLOD8Y;
    project.BGLOD13brX = project.BGLOD13brY = LastLOD13;
    project.AreaLeftVTP = project.AreaTopVTP = FirstVTP;
    project.AreaRightVTP = project.AreaBottomVTP = FirstVTP + AreaSize;
    project.AreaWidth = project.AreaHeight = AreaSize;
    project.ScaleX = project.ScaleY = static_cast<float>(PictureSize) / AreaSize;
    project.CellLatitude = Round_half_even(90 - (SampleLOD8Y + 1) * LOD8DegreesSouth);
    project.CellLongitude = Round_half_even((SampleLOD8X + 1) * LOD8DegreesEast - 180);
}

// Names without folders: they hold wherever the sample is opened from its own folder.
void Name_files(Project& project) {
    project.ProjectFile = "golden-gate.TDM";
    project.BackgroundFile = "golden-gate.jpg";
    project.BackgroundLoaded = true;
    project.OutputRoot = "golden-gate.asm";
    project.LWMFileName = "golden-gate-LWM.asm";
    project.VTPFileName = "golden-gate-VTP.asm";
    project.PrefsSet = true;
}

void Add_segment(Project& project, const std::vector<Position>& points, int mode, int width) {
    bool start = true;
    for (const auto& [x, y] : points) {
        if (project.VTPCount == MaxVTPCount) throw std::out_of_range("Too many points.");
        const int i = ++project.VTPCount;
        project.VTPPoint(i, 0) = x;
        project.VTPPoint(i, 1) = y;
        project.VTPSegStart(i) = std::exchange(start, false);
        project.VTPMode(i) = mode;
        project.VTPWidth(i) = width;
    }
}

bool On_map_edge(Position position) {
    return std::any_of(position.begin(), position.end(),
                       [](int value) { return value == FirstVTP || value == LastVTP; });
}

// One segment for each stretch of one kind of coast; they join where the line enters a cell.
void Add_coast(Project& project, const GeoLine& line) {
    const CellPath path = Cut_at_cell_edges(Placed(VTP_positions(line)));
    if (!On_map_edge(path.Points.front()) || !On_map_edge(path.Points.back()))
        throw std::runtime_error("A coastline ends inside the map.");

    const auto at = [&path](std::size_t i) {
        return path.Points.begin() + static_cast<std::ptrdiff_t>(i);
    };
    std::vector<Position> segment;
    int mode = Coast_mode(Geo_point(path.Points.front()));
    std::size_t next = 0;
    for (const auto& [before, edge] : path.Crossings) {
        segment.insert(segment.end(), at(next), at(before + 1));
        next = before + 1;
        const int mode_ahead = Coast_mode(Geo_point(edge));
        if (mode_ahead == mode) continue;
        segment.push_back(edge);
        Add_segment(project, segment, mode, CoastWidth);
        segment = {edge};
        mode = mode_ahead;
    }
    segment.insert(segment.end(), at(next), path.Points.end());
    Add_segment(project, segment, mode, CoastWidth);
}

void Add_cleared_cells(Project& project) {
    std::set<std::array<int, 3>> cells;  // clear code, row, column
    const auto clear_under = [&cells](int mode, Position point) {
        const auto [column, row] = Cell_of(point);
        cells.insert({Clear_code(mode), row, column});
    };
    for (const Segment& segment : Segments(project))
        for (int i = segment.First; Is_coastline(segment.Mode) && i <= segment.Last; ++i)
            clear_under(segment.Mode, {project.VTPPoint(i, 0), project.VTPPoint(i, 1)});
    for (const DrawnLine& line : Roads_and_streams())
        for (const Position& point : Cut_at_cell_edges(Placed(VTP_positions(line.Line))).Points)
            clear_under(line.Mode, point);

    for (const auto& [code, row, column] : cells) {
        if (project.KillCount == MaxKillCount) throw std::out_of_range("Too many cleared cells.");
        const int k = ++project.KillCount;
        project.KillCell(k, 0) = column;
        project.KillCell(k, 1) = row;
        project.KillType(k) = code;
    }
}

// Nobody is there to read a message: one that comes up is a fault of the sample.
class NoMessages : public Messages {
  public:
    MessageAnswer Show(const Message& message) override { throw std::runtime_error(message.Text); }
};

// Water lies at sea level; land keeps the height of the terrain.
void Add_polygons(Project& project) {
    NoMessages messages;
    for (const auto& [type, where] : Polygon_clicks()) {
        const Position click = VTP_position(where);
        const auto [column, row] = Cell_of(click);
        Session session;
        session.DrawMode = type;
        session.CursorCellX = column;
        session.CursorCellY = row;
        session.CursorInCellX = click[0] - Cell_edge_VTP(column);
        session.CursorInCellY = click[1] - Cell_edge_VTP(row);
        const bool water = type == WaterPolygon;
        const HeightChoice height = water ? HeightChoice::Explicit : HeightChoice::Conform;
        const LWMPolyResult built = Add_LWM_Poly(project, session, messages, height, "0");
        if (!built.Added || !built.StatusLine.empty())
            throw std::runtime_error("A click built another polygon: " + built.StatusLine);
    }
}

}  // namespace

std::unique_ptr<Project> Sample_project(const std::vector<GeoLine>& coast) {
    auto project = std::make_unique<Project>();
    Georeference(*project);
    Name_files(*project);
    for (const GeoLine& line : coast) Add_coast(*project, line);
    for (const GeoLine& island : Islands())
        Add_segment(*project, Cut_ring(Placed(VTP_positions(island))), Coast_mode(island.front()),
                    CoastWidth);
    for (const DrawnLine& line : Roads_and_streams())
        Add_segment(*project, Placed(VTP_positions(line.Line)), line.Mode, line.Width);
    Repair_segments(*project);
    Add_cleared_cells(*project);
    Add_polygons(*project);
    return project;
}

}  // namespace tidemark
