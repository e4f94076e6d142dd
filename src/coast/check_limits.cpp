#include "coast/check_parts.h"

namespace tidemark {

namespace {

// From which part of a limit on it is worth a remark.
constexpr int NearPercent = 90;

bool Is_on_map(const Project& p, LOD13Cell cell) {
    return cell.Column >= p.BGLOD13tlX && cell.Column <= p.BGLOD13brX && cell.Row >= p.BGLOD13tlY &&
           cell.Row <= p.BGLOD13brY;
}

void Check_cell(const Project& p, LOD13Cell cell, Finding finding, Findings& findings) {
    const bool is_in_world = Is_in_LOD8_cell(cell);
    const bool has_map = p.AreaWidth > 0 && p.AreaHeight > 0;
    if (is_in_world && (!has_map || Is_on_map(p, cell))) return;
    finding.Kind = FindingKind::Limits;
    finding.IsError = !is_in_world;
    finding.Cell = cell;
    finding.Text += is_in_world ? " lies outside the map" : " lies outside the cells 0 to 31";
    finding.Text += finding.Point > 0 ? "; delete it or move it back" : "; delete it";
    findings.push_back(std::move(finding));
}

void Check_limit(int count, int limit, const char* what, Findings& findings) {
    if (100 * count < NearPercent * limit) return;
    findings.push_back({.Kind = FindingKind::Limits,
                        .IsError = false,
                        .Text = "the project holds " + std::to_string(count) + " of at most " +
                                std::to_string(limit) + " " + what +
                                "; begin another project for what is left to draw"});
}

}  // namespace

void Check_limits(const Project& p, Findings& findings) {
    for (int i = 1; i <= p.VTPCount; ++i)
        Check_cell(p, Cell_of_point(p, i), {.Text = Point_text(i), .Point = i}, findings);
    for (int i = 1; i <= p.LWMCount; ++i)
        Check_cell(p, {p.LWMCell(i, 0), p.LWMCell(i, 1)},
                   {.Text = "polygon " + std::to_string(i), .Polygon = i}, findings);
    for (int i = 1; i <= p.KillCount; ++i)
        Check_cell(p, {p.KillCell(i, 0), p.KillCell(i, 1)},
                   {.Text = "cleared cell " + std::to_string(i), .ClearedCell = i}, findings);
    Check_limit(p.VTPCount, MaxVTPCount, "points", findings);
    Check_limit(p.LWMCount, MaxLWMCount, "polygons", findings);
    Check_limit(p.KillCount, MaxKillCount, "cleared cells", findings);
}

}  // namespace tidemark
