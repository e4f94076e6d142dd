#include "app/coast_commands.h"

#include <algorithm>

#include "app/map_commands.h"
#include "coast/check.h"
#include "lwm/cell_text.h"

namespace tidemark {

namespace {

// A step that mends, with what is due after it.
template <class Mending>  // mending(project, number of the selected point)
MendResult Do_mend(Document& document, Session& session, const std::string& name,
                   const Mending& mending) {
    return document.Do(name, [&](Project& project) {
        MendResult result = mending(project, session.Panel.SelectedPoint + 1);
        if (project == document.Settled()) return result;
        session.Panel.SelectedPoint = result.Followed - 1;
        session.DataChanged = true;
        Refresh_lists(project, session);
        return result;
    });
}

std::string Name_of_mending(const Finding& finding) {
    if (!finding.Cell) return "mend the coast";
    return "mend cell " + Cell_text(finding.Cell->Column, finding.Cell->Row);
}

}  // namespace

MendResult Mend_finding(Document& document, Session& session, const Finding& finding) {
    const Findings findings = Check_coast(document.Now());
    if (std::find(findings.begin(), findings.end(), finding) == findings.end()) return {};
    return Do_mend(document, session, Name_of_mending(finding), [&](Project& project, int point) {
        return Mend(project, std::span(&finding, 1), point);
    });
}

MendResult Mend_all_findings(Document& document, Session& session) {
    return Do_mend(document, session, "mend the coast",
                   [](Project& project, int point) { return Mend_all(project, point); });
}

std::optional<ListKind> Select_finding(const Finding& finding, Session& session) {
    std::optional<ListKind> list;
    const auto select = [&](int entry, int& selected, ListKind kind) {
        if (entry < 1) return;
        selected = entry - 1;
        session.LastChosen = kind;
        list = kind;
    };
    PanelState& panel = session.Panel;
    select(finding.ClearedCell, panel.SelectedCell, ListKind::ClearedCells);
    select(finding.Polygon, panel.SelectedPolygon, ListKind::Polygons);
    select(finding.Point, panel.SelectedPoint, ListKind::Points);
    return list;
}

}  // namespace tidemark
