// The polygon builder with any VTP points around one cell, whether they make sense or not.
//
// Bytes 0 and 1 are the click. Bit 0 of byte 2: the segment flags are repaired, as a list refresh
// does; bit 1: the polygon has a height, and the byte less 8 is its text. Then three bytes to a
// point: where it lies and what it is, X, Y (see Add_point).
#include <algorithm>
#include <cstdint>
#include <memory>
#include <span>

#include "check.h"
#include "fakes/cell_picture.h"
#include "fakes/recording_messages.h"
#include "lwm/polygon_builder.h"
#include "model/cell_frame.h"
#include "model/segments.h"

namespace tidemark {
namespace {

constexpr std::size_t HeaderSize = 3;
constexpr std::size_t PointSize = 3;

// A coordinate in cell units: inside, before or behind the cell; now and then far away.
int Coordinate(unsigned zone, int value) {
    constexpr int far_away = 20000;
    if (zone == 2) return value == 255 ? -far_away : -1 - value;
    if (zone == 3) return value == 255 ? far_away : CellSizeVTP + value;
    return value;
}

// Bits of the first byte: 0-1 and 2-3 the zones of X and Y, 4 starts a segment, 5 ends one, 6-7 the
// mode.
void Add_point(Project& project, std::span<const std::uint8_t> bytes) {
    constexpr int modes[] = {0, 4, 5, -1};
    const int i = ++project.VTPCount;
    const unsigned bits = bytes[0];
    project.VTPPoint(i, 0) = Cell_edge_VTP(PictureColumn) + Coordinate(bits & 3U, bytes[1]);
    project.VTPPoint(i, 1) = Cell_edge_VTP(PictureRow) + Coordinate(bits >> 2U & 3U, bytes[2]);
    project.VTPSegStart(i) = (bits & 16U) != 0;
    project.VTPSegEnd(i) = (bits & 32U) != 0;
    project.VTPMode(i) = modes[bits >> 6U];
}

void Fill(Project& project, std::span<const std::uint8_t> bytes) {
    const bool repaired = (bytes[2] & 1U) != 0;
    for (bytes = bytes.subspan(HeaderSize);
         bytes.size() >= PointSize && project.VTPCount < MaxVTPCount;
         bytes = bytes.subspan(PointSize))
        Add_point(project, bytes);
    if (repaired) Repair_segments(project);
}

void Check_polygon(const Project& project) {
    const Outline outline = Stored_outline(project, project.LWMCount);
    Check(!outline.empty(), "a polygon has vertices");
    Check(std::all_of(outline.begin(), outline.end(),
                      [](CellPoint p) {
                          return p.X >= 0 && p.X <= LastCellUnit && p.Y >= 0 && p.Y <= LastCellUnit;
                      }),
          "its vertices are in the cell");
}

void Build(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < HeaderSize) return;
    static const std::unique_ptr<Project> empty = Cell_project("");
    static const auto project = std::make_unique<Project>();
    static const auto before = std::make_unique<Project>();
    *project = *empty;
    Fill(*project, bytes);
    *before = *project;

    RecordingMessages messages;
    bool added = false;
    try {
        const auto choice = (bytes[2] & 2U) != 0 ? HeightChoice::Explicit : HeightChoice::Conform;
        added = Add_LWM_Poly(*project, Cell_session({bytes[0], bytes[1]}), messages, choice,
                             std::to_string(bytes[2] - 8))
                    .Added;
        Check(added || !messages.Shown.empty(), "a refusal is said");
    } catch (const Overflow&) {
        // Points farther apart than 16 bits; what it left is looked at all the same.
    }
    constexpr std::size_t most_messages = 20 * 2 * (MaxEdgePointCount + 5);
    Check(messages.Shown.size() <= most_messages, "the messages come to an end");
    Check(project->LWMCount == (added ? 1 : 0), "a polygon is appended whole or not at all");
    if (added) Check_polygon(*project);
    project->LWMCount = 0;
    project->PointInCellX = before->PointInCellX;
    project->PointInCellY = before->PointInCellY;
    Check(*project == *before, "nothing else changes");
}

}  // namespace
}  // namespace tidemark

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tidemark::Build({data, size});
    return 0;
}
