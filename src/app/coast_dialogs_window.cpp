#include "app/coast_dialogs_window.h"

#include <QScreen>

#include "app/coast_commands.h"
#include "app/fill_commands.h"
#include "coast/finding_choice.h"

namespace tidemark {

CoastDialogs::CoastDialogs(Document& document, Session& session, Platform& platform, MapView& map,
                           CoastWatch& coast_watch, QWidget& owner)
    : document_(document),
      session_(session),
      platform_(platform),
      map_(map),
      coast_watch_(coast_watch),
      owner_(owner) {}

void CoastDialogs::Fill() {
    if (!fill_coast_) fill_coast_ = new FillCoast(&owner_);
    const auto [from, to] = map_.Canvas_in_view();
    const auto plan = fill_coast_->Ask(document_.Now(), session_.Panel.SelectedPolygon + 1,
                                       Cells_in_view(document_.Now(), from, to));
    if (plan) Q_EMIT Said(Fill_along_coast(document_, session_, *plan));
}

void CoastDialogs::Clear() {
    Q_EMIT Said(Clear_along_coast(document_, session_));
}

void CoastDialogs::Import(const QString& path) {
    if (!Has_map_area(document_.Now())) {
        Q_EMIT Said(std::string(NoMapAreaText));
        return;
    }
    if (!import_coast_) {
        import_coast_ = new ImportCoast(platform_, &owner_);
        connect(import_coast_, &ImportCoast::Preview_changed, this, &CoastDialogs::Preview_changed);
    }
    const auto wanted = import_coast_->Ask(document_.Now(), path);
    if (!wanted) return;
    Q_EMIT Said(Imported_text(wanted->Coast, Import_coast_file(document_, session_, *wanted)));
}

void CoastDialogs::Check() {
    if (!coast_check_) Make_coast_check();
    coast_check_->show();
    coast_check_->raise();
    coast_check_->activateWindow();
}

void CoastDialogs::Make_coast_check() {
    coast_check_ = new CoastCheck(document_, session_, coast_watch_, &owner_);
    connect(coast_check_, &CoastCheck::Chosen_changed, this,
            [this] { map_.Canvas().Show_finding_frame(Frame_of_finding()); });
    connect(coast_check_, &CoastCheck::Show_wanted, this, &CoastDialogs::Bring_finding_into_view);
    connect(coast_check_, &CoastCheck::Go_wanted, this, &CoastDialogs::Go_to_finding);
    Place_coast_check();
}

// In a corner of the map, as its middle is where findings come into view; on a screen that is too
// small for that, over the Status panel.
void CoastDialogs::Place_coast_check() {
    constexpr int title_height = 48;  // about what a window frame adds
    coast_check_->adjustSize();
    const QRect map(map_.mapToGlobal(QPoint(0, 0)), map_.size());
    const QRect area = owner_.screen()->availableGeometry();
    QRect place({0, 0}, coast_check_->size() + QSize(0, title_height));
    place.moveBottomLeft(map.bottomLeft());
    if (place.contains(map.center())) place.moveBottomRight(area.bottomRight());
    coast_check_->move(place.left(), qMax(place.top(), area.top()));
}

// The frame of the chosen finding's cell; no lines when none is chosen, or it is beside the map.
std::vector<MarkLine> CoastDialogs::Frame_of_finding() {
    const Finding* const chosen = coast_check_->Chosen();
    if (!chosen || !chosen->Cell) return {};
    return Finding_frame(document_.Now(), chosen->Cell->Column, chosen->Cell->Row);
}

void CoastDialogs::Bring_finding_into_view() {
    const std::vector<MarkLine> frame = Frame_of_finding();
    if (frame.empty()) return;
    const CanvasPoint from = frame[0].From, to = frame[1].To;
    const auto on_screen = [this](CanvasPoint point) {
        const QPointF zoomed = QPointF(point.X, point.Y) * map_.Scale().Zoom();
        return map_.Canvas().mapToGlobal(zoomed.toPoint());
    };
    const bool is_covered =
        coast_check_->frameGeometry().intersects(QRect(on_screen(from), on_screen(to)));
    if (map_.Is_in_view(from, to) && !is_covered) return;
    const auto place = Place_of_finding(document_.Now(), *coast_check_->Chosen());
    Q_EMIT Place_wanted({(*place)[0], (*place)[1]});
}

void CoastDialogs::Go_to_finding(const Finding& finding) {
    if (const auto list = Select_finding(finding, session_)) Q_EMIT Selected_in_list(*list);
}

}  // namespace tidemark
