#include "coast/check.h"

#include <algorithm>

#include "coast/check_parts.h"

namespace tidemark {

Findings Check_coast(const Project& project) {
    const CoastSurvey survey(project);
    Findings findings;
    Check_points(project, survey, findings);
    Check_crossings(project, survey, findings);
    Check_cells(project, survey, findings);
    Check_polygons(project, survey, findings);
    Check_common_edges(project, findings);
    Check_limits(project, findings);
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding& a, const Finding& b) { return a.Cell < b.Cell; });
    return findings;
}

}  // namespace tidemark
