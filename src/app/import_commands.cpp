#include "app/import_commands.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "app/map_commands.h"
#include "canvas/map_frame.h"
#include "lwm/cell_text.h"
#include "model/path_text.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

constexpr std::array<std::string_view, 5> CoastExtensions{".geojson", ".json", ".shp", ".kml",
                                                          ".gpx"};
constexpr double LeastTolerance = 0.1, MostTolerance = 1000;

constexpr Colour PreviewInk{224, 0, 160};
constexpr Colour PreviewRim{255, 255, 255};  // which makes the line stand out from any map
constexpr int PreviewWidth = 2, RimWidth = 4;

std::string Cleared_text(int cells) {
    return cells == 0 ? "No cell is left to be cleared."
                      : Counted(cells, "cell is cleared.", "cells are cleared.");
}

std::string Filling_text(const FillPlan& plan) {
    if (!plan.Refusal.empty()) return plan.Refusal;
    const std::string count = Fill_count_text(plan);
    return plan.Fits() ? count
                       : count +
                             "\nThe polygons do not fit and are left out; everything else is "
                             "imported.";
}

std::vector<std::string> Remarks_on(const CoastImport& import) {
    std::vector<std::string> remarks = import.FileRemarks;
    remarks.insert(remarks.end(), import.Coast.Dropped.begin(), import.Coast.Dropped.end());
    return remarks;
}

std::vector<std::string> Remarks_on(const CoastImport& import, const ImportResult& result) {
    std::vector<std::string> remarks = Remarks_on(import);
    for (const Finding& error : result.Errors) remarks.push_back(Finding_line(error));
    for (const FillStop& stop : result.Filled.Stops)
        remarks.push_back(Cell_text(stop.Cell.Column, stop.Cell.Row) +
                          " Filling stops here: " + stop.Why);
    return remarks;
}

std::vector<MarkLine> Coast_lines(const Project& project, const LaidCoast& coast) {
    std::vector<MarkLine> marks;
    if (!Has_scale(project)) return marks;
    const auto pixel = [&](Position at) { return VTP_to_canvas(project, at[0], at[1]); };
    for (const auto& [ink, width] : {std::pair{PreviewRim, RimWidth}, {PreviewInk, PreviewWidth}})
        for (const LaidLine& line : coast.Lines)
            for (std::size_t i = 1; i < line.Points.size(); ++i)
                marks.push_back({pixel(line.Points[i - 1]), pixel(line.Points[i]), ink, width});
    return marks;
}

// As the marks tint them.
std::vector<MarkArea> New_polygons(const Project& before, const Project& after) {
    constexpr MarkKinds tint{.Cells = false, .Pointer = false, .Tint = true, .Chosen = false};
    std::vector<MarkArea> areas = Marks_of(after, {}, tint).Areas;
    const std::size_t old = Marks_of(before, {}, tint).Areas.size();
    return {areas.begin() + static_cast<std::ptrdiff_t>(old), areas.end()};
}

}  // namespace

std::optional<std::string> Choose_coast_file(Platform& platform, const std::string& last) {
    std::string filter;
    for (const std::string_view extension : CoastExtensions)
        filter.append(filter.empty() ? "*" : ";*").append(extension);
    return platform.choosers.Choose({.Name = "OpenCoast",
                                     .Title = "Tidemark - Open Coast File",
                                     .Filter = filter,
                                     .DefaultExtension = "",
                                     .FileName = last,
                                     .InitialFolder = platform.StartFolder});
}

bool Is_coast_file(std::string_view path) {
    return Has_extension(path, ".kmz") ||
           std::any_of(CoastExtensions.begin(), CoastExtensions.end(),
                       [&](std::string_view each) { return Has_extension(path, each); });
}

std::optional<double> Take_tolerance(std::string_view text) {
    const double tolerance = Numeric_value(text);
    const bool is_right = tolerance >= LeastTolerance && tolerance <= MostTolerance;
    return is_right ? std::optional(tolerance) : std::nullopt;
}

ImportPreview Preview_import(const Project& project, const CoastImport& import) {
    const LaidCoast& coast = import.Coast;
    if (coast.Lines.empty())
        return {"Nothing of this file can be laid into the map.", Remarks_on(import), {}, false};
    const auto copy = std::make_unique<Project>(project);
    const ImportResult result = Import_coast(*copy, coast, import.Options);
    MapMarks marks{New_polygons(project, *copy), Coast_lines(project, coast), {}};
    if (!result.Refusal.empty())
        return {result.Refusal, Remarks_on(import), std::move(marks), false};
    std::string counts = Laid_text(coast, MaxVTPCount - project.VTPCount);
    if (import.Options.ClearCells) counts += "\n" + Cleared_text(result.Cleared);
    if (import.Options.FillWater || import.Options.FillLand)
        counts += "\n" + Filling_text(result.Filled);
    return {counts, Remarks_on(import, result), std::move(marks), true};
}

ImportResult Import_coast_file(Document& document, Session& session, const CoastImport& import) {
    return document.Do("import coast", [&](Project& project) {
        ImportResult result = Import_coast(project, import.Coast, import.Options);
        if (!result.Refusal.empty()) return result;
        session.DataChanged = true;
        session.Panel.NewSegment = true;  // the next click is to leave the coast as it is
        Refresh_lists(project, session);
        return result;
    });
}

std::string Imported_text(const LaidCoast& coast, const ImportResult& result) {
    if (!result.Refusal.empty()) return result.Refusal;
    std::string text =
        Counted(coast.Lines.size(), "line") + " imported, " + Counted(coast.Points, "point");
    const int polygons = static_cast<int>(result.Filled.Polygons.size());
    if (polygons > 0)
        text +=
            ", " + (result.Filled.Fits() ? Counted(polygons, "polygon") : "without the polygons");
    if (result.Cleared > 0) text += ", " + Counted(result.Cleared, "cell") + " cleared";
    return text + ".";
}

}  // namespace tidemark
