#include "app/coast_project.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "coast/check.h"
#include "georef/background_properties.h"
#include "lwm/cell_text.h"
#include "model/project_file.h"
#include "model/text_forms.h"
#include "output/output_preferences.h"

namespace tidemark {

namespace {

// As Background Properties and Output Preferences leave them. The scale comes with a picture. The
// project's own name is without a folder, so that it stays right wherever the file is taken.
void Georeference(Project& project, WorldCell cell) {
    project.BGLOD8X = cell.Column;
    project.BGLOD8Y = cell.Row;
    project.BGLOD13brX = project.BGLOD13brY = LastLOD13;
    const CellPlace place = Place_of_cell(Int_text(cell.Column), Int_text(cell.Row));
    project.CellLatitude = Int_value(place.HiddenLat);
    project.CellLongitude = Int_value(place.HiddenLon);
    constexpr int no_picture = 0;
    Derive_area(project, no_picture, no_picture);
}

void Name_files(Project& project, const std::string& folder, const std::string& name) {
    project.ProjectFile = name + ".TDM";
    OutputPreferences preferences;
    preferences.RootText = folder + name + ".asm";
    Store_preferences(preferences, project);
}

std::string Summary_of(const Project& project, const Findings& errors) {
    return Counted(project.VTPCount, "point") + ", " + Counted(project.LWMCount, "polygon") + ", " +
           Counted(project.KillCount, "cleared cell") + ", " +
           (errors.empty() ? "no errors" : Counted(Count_errors(errors), "error"));
}

class CellProjects {
  public:
    CellProjects(WorldCell cell, const std::string& folder, const std::string& saved_on)
        : cell_(cell), folder_(folder), saved_on_(saved_on), project_(std::make_unique<Project>()) {
        Georeference(*project_, cell);
    }

    CoastProjects Make(std::span<const CoastLine> lines, const CoastProjectOptions& options) {
        const LaidCoast coast = Lay_coast(*project_, lines, options.Laying);
        for (const std::string& dropped : coast.Dropped)
            made_.Remarks.push_back("left out: " + dropped);
        if (coast.Lines.empty()) return std::move(made_);
        ImportResult imported = Import_coast(*project_, coast, options.Importing);
        made_.Refusal = imported.Refusal;
        if (!made_.Refusal.empty()) return std::move(made_);
        Say_of_laying(coast, options);
        if (!imported.Filled.Refusal.empty()) made_.Remarks.push_back(imported.Filled.Refusal);
        for (const auto& [cell, why] : imported.Filled.Stops)
            made_.Remarks.push_back("filling stops at " + Cell_text(cell.Column, cell.Row) + ": " +
                                    why);
        if (imported.Filled.Fits())
            Add(*project_, std::move(imported.Errors));
        else
            Share_out(std::move(imported.Filled.Polygons));
        return std::move(made_);
    }

  private:
    void Say_of_laying(const LaidCoast& coast, const CoastProjectOptions& options) {
        if (coast.Tolerance > options.Laying.Tolerance)
            made_.Remarks.push_back("coarser than asked for, to fit into a project: " +
                                    Laid_text(coast, MaxVTPCount));
    }

    void Add(Project& project, Findings errors) {
        const std::string name = Coast_project_name(cell_, static_cast<int>(made_.Each.size()));
        Name_files(project, folder_, name);
        made_.Each.push_back({project.ProjectFile, Project_bytes(project, saved_on_),
                              Summary_of(project, errors), std::move(errors)});
    }

    // As many polygons as there is room for into each project. They are checked beside the coast,
    // which only the first project keeps: of the others, what is wrong with the polygons counts.
    void Share_out(std::vector<PlannedPolygon> polygons) {
        std::stable_sort(polygons.begin(), polygons.end(),
                         [](const auto& a, const auto& b) { return a.Cell < b.Cell; });
        for (std::size_t next = 0; next < polygons.size();) {
            const std::size_t count = std::min(polygons.size() - next, std::size_t{MaxLWMCount});
            const auto from = polygons.begin() + static_cast<std::ptrdiff_t>(next);
            FillPlan part;
            part.Polygons.assign(from, from + static_cast<std::ptrdiff_t>(count));
            const auto project = std::make_unique<Project>(*project_);
            Fill(*project, part);
            Findings errors = Errors_of(*project, next > 0);
            if (next > 0) project->VTPCount = project->KillCount = 0;
            Add(*project, std::move(errors));
            next += count;
        }
    }

    static Findings Errors_of(const Project& project, bool of_polygons_only) {
        Findings errors = Check_coast(project);
        std::erase_if(errors, [&](const Finding& finding) {
            const bool is_of_polygons =
                finding.Kind == FindingKind::Polygon ||
                (finding.Kind == FindingKind::Neighbours && finding.Point == 0);
            return !finding.IsError || (of_polygons_only && !is_of_polygons);
        });
        return errors;
    }

    const WorldCell cell_;
    const std::string& folder_;
    const std::string& saved_on_;
    const std::unique_ptr<Project> project_;
    CoastProjects made_;
};

}  // namespace

std::string Coast_project_name(WorldCell cell, int number) {
    std::string name = "coast-" + std::to_string(cell.Column) + "-" + std::to_string(cell.Row);
    if (number > 0) name += {'-', static_cast<char>('a' + number)};
    return name;
}

GeoBox Box_of(WorldCell cell) {
    const auto project = std::make_unique<Project>();
    Georeference(*project, cell);
    return Map_box(*project);
}

CoastProjects Coast_projects(WorldCell cell, const std::string& folder,
                             std::span<const CoastLine> lines, const CoastProjectOptions& options,
                             const std::string& saved_on) {
    return CellProjects(cell, folder, saved_on).Make(lines, options);
}

}  // namespace tidemark
