// The main window's part in the coast check: the findings on the map, in the lists and in the
// status bar.
#include <QScreen>

#include "app/tidemark_main_window.h"
#include "canvas/map_frame.h"
#include "coast/finding_choice.h"
#include "platform/qt_text.h"

namespace tidemark {

void TidemarkMain::Wire_coast_check() {
    connect(coast_watch_, &CoastWatch::Checked, this,
            [this] { tool_bar_->Show_findings(coast_watch_->Current()); });
    connect(&tool_bar_->CoastCheck(), &QAction::triggered, this, &TidemarkMain::CoastCheck_Click);
}

void TidemarkMain::CoastCheck_Click() {
    if (!coast_check_) {
        coast_check_ = new CoastCheck(document_, session_, *coast_watch_, this);
        connect(coast_check_, &CoastCheck::Chosen_changed, this,
                [this] { map_->Canvas().Show_finding_frame(Frame_of_finding()); });
        connect(coast_check_, &CoastCheck::Show_wanted, this,
                &TidemarkMain::Bring_finding_into_view);
        connect(coast_check_, &CoastCheck::Go_wanted, this, &TidemarkMain::Go_to_finding);
        Place_coast_check();
    }
    coast_check_->show();
    coast_check_->raise();
    coast_check_->activateWindow();
}

// In a corner of the map, as its middle is where findings come into view; on a screen that is too
// small for that, over the Status panel.
void TidemarkMain::Place_coast_check() {
    constexpr int title_height = 48;  // about what a window frame adds
    coast_check_->adjustSize();
    const QRect map(map_->mapToGlobal(QPoint(0, 0)), map_->size());
    const QRect area = screen()->availableGeometry();
    QRect place({0, 0}, coast_check_->size() + QSize(0, title_height));
    place.moveBottomLeft(map.bottomLeft());
    if (place.contains(map.center())) place.moveBottomRight(area.bottomRight());
    coast_check_->move(place.left(), qMax(place.top(), area.top()));
}

// The frame of the chosen finding's cell; no lines when none is chosen, or it is beside the map.
std::vector<MarkLine> TidemarkMain::Frame_of_finding() {
    const Finding* const chosen = coast_check_->Chosen();
    if (!chosen || !chosen->Cell) return {};
    return Finding_frame(document_.Now(), chosen->Cell->Column, chosen->Cell->Row);
}

void TidemarkMain::Bring_finding_into_view() {
    const std::vector<MarkLine> frame = Frame_of_finding();
    if (frame.empty()) return;
    const CanvasPoint from = frame[0].From, to = frame[1].To;
    const auto on_screen = [this](CanvasPoint point) {
        const QPointF zoomed = QPointF(point.X, point.Y) * map_->Scale().Zoom();
        return map_->Canvas().mapToGlobal(zoomed.toPoint());
    };
    const bool is_covered =
        coast_check_->frameGeometry().intersects(QRect(on_screen(from), on_screen(to)));
    if (map_->Is_in_view(from, to) && !is_covered) return;
    const auto place = Place_of_finding(document_.Now(), *coast_check_->Chosen());
    Show_place({(*place)[0], (*place)[1]});
}

// Selects what the finding is about in its list, as a click there does, and hands it the keyboard.
void TidemarkMain::Go_to_finding(const Finding& finding) {
    PanelState& panel = session_.Panel;
    const char* list = nullptr;
    const auto select = [&](int entry, int& selected, ListKind kind, const char* name) {
        if (entry < 1) return;
        selected = entry - 1;
        session_.LastChosen = kind;
        list = name;
    };
    select(finding.ClearedCell, panel.SelectedCell, ListKind::ClearedCells, "KillListBox");
    select(finding.Polygon, panel.SelectedPolygon, ListKind::Polygons, "LWMlistBox");
    select(finding.Point, panel.SelectedPoint, ListKind::Points, "VTPlistbox");
    if (!list) return;
    status_->Refresh();
    ShowStatus_Click();
    status_->findChild<QWidget*>(list)->setFocus();
}

// The status bar names the finding that explains a polygon that was refused, or built beside the
// click.
void TidemarkMain::Add_polygon() {
    const Findings findings = coast_watch_->Current();
    const Position click{session_.CursorVTPX, session_.CursorVTPY};
    const LWMPolyResult result = status_->LWM().Add_LWM_Poly();
    if (!result.IsRefusedByCoast && result.StatusLine.empty()) return;
    const Finding* const finding = Explaining_finding(findings, click);
    if (!finding) return;
    const std::string remark = result.StatusLine.empty() ? "" : result.StatusLine + " ";
    Remark(To_qt(remark + Finding_line(*finding)));
}

}  // namespace tidemark
