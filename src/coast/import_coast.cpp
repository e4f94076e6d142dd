#include "coast/import_coast.h"

#include <algorithm>
#include <memory>

#include "coast/check.h"
#include "coast/clear_along.h"
#include "model/segments.h"

namespace tidemark {

namespace {

// A segment; its number range and the side of its land, where that is known.
void Append_line(Project& p, const LaidLine& line, const ImportOptions& options,
                 std::vector<KnownShore>& shores) {
    const int first = p.VTPCount + 1;
    for (const auto& [x, y] : line.Points) {
        const int i = p.VTPCount + 1;
        p.VTPCount = i;
        p.VTPPoint(i, 0) = x;
        p.VTPPoint(i, 1) = y;
        p.VTPSegStart(i) = i == first;
        p.VTPMode(i) = options.Mode;
        p.VTPWidth(i) = options.Width;
    }
    const std::optional<bool> side = line.LandOnLeft ? line.LandOnLeft : options.LandOnLeft;
    if (side) shores.push_back({first, p.VTPCount, *side});
}

// False when there is no room.
bool Clear_all(Project& p, int first, int& cleared) {
    for (const Segment& segment : Segments(p)) {
        if (segment.First < first) continue;
        const std::vector<LOD13Cell> cells = Cells_to_clear(p, segment.First);
        cleared += static_cast<int>(cells.size());
        if (p.KillCount + static_cast<int>(cells.size()) > MaxKillCount) return false;
        Clear_cells(p, segment.First, cells);
    }
    return true;
}

// The errors there are now and were not before.
Findings New_errors(const Project& before, const Project& after) {
    const Findings known = Check_coast(before);
    Findings errors;
    for (Finding& finding : Check_coast(after))
        if (finding.IsError && std::find(known.begin(), known.end(), finding) == known.end())
            errors.push_back(std::move(finding));
    return errors;
}

}  // namespace

ImportResult Import_coast(Project& project, const LaidCoast& coast, const ImportOptions& options) {
    ImportResult result;
    if (int{project.VTPCount} + coast.Points > MaxVTPCount) {
        result.Refusal = std::to_string(coast.Points) + " points are needed, and " +
                         std::to_string(MaxVTPCount - project.VTPCount) + " are free.";
        return result;
    }
    const auto changed = std::make_unique<Project>(project);
    const int first = project.VTPCount + 1;
    std::vector<KnownShore> shores;
    for (const LaidLine& line : coast.Lines) Append_line(*changed, line, options, shores);
    Repair_segments(*changed);
    if (options.ClearCells && !Clear_all(*changed, first, result.Cleared)) {
        result.Refusal = "There is no room for the cells to be cleared: a project holds at most " +
                         std::to_string(MaxKillCount) + ".";
        return result;
    }
    if (options.FillWater || options.FillLand) {
        const FillOptions filling{
            .Water = options.FillWater, .Land = options.FillLand, .Inside = false, .Within = {}};
        result.Filled = Plan_fill(*changed, shores, filling);
        if (result.Filled.Fits()) Fill(*changed, result.Filled);
    }
    result.Errors = New_errors(project, *changed);
    project = *changed;
    return result;
}

}  // namespace tidemark
