#include "coast/fill.h"

#include "coast/fill_ground.h"
#include "coast/fill_seeds.h"
#include "coast/fill_walk.h"
#include "coast/project_places.h"
#include "model/drawing_modes.h"

namespace tidemark {

FillPlan Plan_fill(const Project& project, int polygon, const FillOptions& options) {
    if (polygon < 1 || polygon > project.LWMCount) {
        FillPlan nothing;
        nothing.Refusal = "Choose a polygon in the list of LWM polygons first.";
        return nothing;
    }
    const FillGround ground(project, options);
    FillWalk walk(ground, {project.LWMType(polygon), project.LWMHeight(polygon)},
                  options.Water && options.Land);
    walk.Begin_at_polygon(Cell_of_polygon(project, polygon), Seed_of_polygon(ground, polygon));
    return walk.Planned();
}

FillPlan Plan_fill(const Project& project, std::span<const KnownShore> shores,
                   const FillOptions& options) {
    const FillGround ground(project, options);
    FillWalk walk(ground, {WaterPolygon, 0}, true);
    for (const SurveyedCell& cell : ground.Coast_cells()) {
        if (walk.Has_reached(cell.Cell) || !ground.Is_wanted(cell.Cell)) continue;
        if (auto seed = Seed_of_shores(ground, cell, shores))
            walk.Begin(cell.Cell, std::move(*seed));
    }
    return walk.Planned();
}

std::string Fill_count_text(const FillPlan& plan) {
    const auto counted = [](std::size_t count, const char* what) {
        return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
    };
    return counted(static_cast<std::size_t>(plan.Cells), "cell") + "; " +
           counted(plan.Polygons.size(), "polygon") + " needed, " + std::to_string(plan.Free) +
           " free";
}

std::string Fill_advice(const Project& project, int polygon, const FillOptions& options,
                        const std::optional<CellRange>& view) {
    struct Choice {
        const char* Name;
        FillOptions Options;
    };
    std::vector<Choice> choices;
    FillOptions narrower = options;
    narrower.Inside = false;
    if (options.Inside) choices.push_back({"without the cells inside", narrower});
    if (options.Water && options.Land) {
        choices.push_back({"water only", {true, false, false, options.Within}});
        choices.push_back({"land only", {false, true, false, options.Within}});
    }
    if (view && !options.Within) {
        narrower.Within = view;
        choices.push_back({"the cells in view", narrower});
    }
    std::string advice;
    for (const auto& [name, chosen] : choices) {
        const FillPlan plan = Plan_fill(project, polygon, chosen);
        if (!plan.Refusal.empty() || plan.Polygons.empty() || !plan.Fits()) continue;
        advice += advice.empty() ? "These would fit: " : ", ";
        advice += std::string(name) + " (" + std::to_string(plan.Polygons.size()) + ")";
    }
    return advice;
}

void Fill(Project& project, const FillPlan& plan) {
    for (const auto& [cell, kind, outline] : plan.Polygons)
        Store_polygon(project, project.LWMCount + 1, cell.Column, cell.Row, kind, outline);
}

}  // namespace tidemark
