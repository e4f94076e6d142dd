// The main window's handlers for the map and what is done on it.
#include <algorithm>

#include <QScopeGuard>
#include <QStatusBar>

#include "app/chosen_place.h"
#include "app/fill_commands.h"
#include "app/project_commands.h"
#include "app/tidemark_main_window.h"
#include "canvas/click.h"
#include "canvas/map_frame.h"
#include "canvas/map_marks.h"
#include "canvas/refresh_graphics.h"
#include "model/path_text.h"
#include "platform/qt_keys.h"
#include "platform/qt_text.h"
#include "vtp_edit/vtp_commands.h"

namespace tidemark {

MapScreen TidemarkMain::Screen() {
    return {[this](const std::string& path) { return map_->Show_image(path); },
            [this] {
                const QSize size = map_->Canvas_size();
                return ViewSize{size.width(), size.height()};
            },
            [this](const GeoreferenceTexts& texts) { return Background_properties().Ask(texts); }};
}

void TidemarkMain::BackgroundLoad_Click() {
    Load_background(document_, session_, platform_, Screen());
}

void TidemarkMain::BackgroundProperties_Click() {
    Change_background_properties(document_, messages_, Screen());
}

void TidemarkMain::CellCalc_Click() {
    session_.CalcFromBGproperties = false;
    Calculator().exec();
    Refresh_Graphics();
}

// Afterwards: a box that comes up must not wait for its answer in the middle of a resize.
void TidemarkMain::Reload_picture_later() {
    if (document_.Now().BackgroundLoaded)
        QMetaObject::invokeMethod(this, &TidemarkMain::Reload_picture, Qt::QueuedConnection);
}

void TidemarkMain::Reload_picture() {
    if (!document_.Now().BackgroundLoaded) return;
    Reload_background(document_, session_, messages_, Screen().Show_image);
    // While a command waits for its dialog, nothing else shows what it has changed so far.
    if (document_.Is_in_step()) Refresh_Graphics();
}

void TidemarkMain::Picture2_MouseMove(float x, float y) {
    if (const auto texts = Move_cursor(document_.Now(), session_, x, y))
        status_->Show_cursor(To_qt(texts->VTP), To_qt(texts->Cell));
    status_line_->Show_place(document_.Now(), session_);
    if (tool_bar_->Wanted_marks().Pointer)
        map_->Canvas().Show_pointer_frame(Pointer_frame(document_.Now(), session_));
}

void TidemarkMain::Picture2_MouseDown(int button) {
    constexpr int left = 1, right = 2;
    if (button == left) Left_click();
    if (button == right) Select_point();
}

void TidemarkMain::Left_click() {
    const auto adds =
        Take_left_click(document_.Now(), session_, status_->Drawing_mode().Item(), messages_);
    if (!adds) return;
    switch (*adds) {
        case Adds::Point:
            status_->VTP().Add_VTP_Point();
            break;
        case Adds::Polygon:
            Add_polygon();
            break;
        case Adds::ClearedCell:
            status_->Kill().Add_Kill_Cell();
            break;
    }
}

void TidemarkMain::Select_point() {
    const auto nearest = Nearest_point(document_.Now(), session_);
    if (!nearest) return;
    session_.Panel.SelectedPoint = *nearest - 1;
    session_.LastChosen = ListKind::Points;
    status_->VTP().Refresh();
    Refresh_Graphics();
}

void TidemarkMain::Picture2_KeyDown(int key_code) {
    if (key_code == KeyDelete) Delete_selected_point(document_, session_);
    if (key_code == KeyE) EditButton_Click();
}

void TidemarkMain::EditButton_Click() {
    const int selected = session_.Panel.SelectedPoint;
    if (selected >= 0) Edit_point_dialog().Edit(selected + 1);
}

void TidemarkMain::Travel(void (Document::*where)(), const char* said, const std::string& step) {
    (document_.*where)();
    Say(said + step +
        (picture_is_gone_ ? "; its background picture cannot be shown any more" : ""));
}

EditPoint& TidemarkMain::Edit_point_dialog() {
    if (!edit_point_) edit_point_ = new EditPoint(document_, session_, messages_, this);
    return *edit_point_;
}

BGproperties& TidemarkMain::Background_properties() {
    if (!background_properties_)
        background_properties_ = new BGproperties(session_, Calculator(), this);
    return *background_properties_;
}

CellCalculator& TidemarkMain::Calculator() {
    if (!calculator_) calculator_ = new CellCalculator(session_, messages_, this);
    return *calculator_;
}

// The one place that shows what a step has made of the project.
void TidemarkMain::Show_project() {
    status_->Refresh();
    const OpenedState& opened = session_.Opened;
    Show_title();
    entries_.FileSave->setEnabled(opened.FileSave);
    entries_.LWMsave->setEnabled(session_.Panel.LWMsave);
    entries_.VTPsave->setEnabled(session_.Panel.VTPsave);
    picture_is_gone_ = !Show_picture();
    entries_.BackgroundProperties->setEnabled(!opened.Picture.empty());
    tool_bar_->Show_history(document_);
    status_line_->Show_counts(document_.Now());
    coast_watch_->Notice();
    Notice_state();
    Refresh_Graphics();
}

void TidemarkMain::Show_title() {
    const std::string& path = session_.Opened.Path;
    if (path.empty()) return setWindowTitle("Tidemark");
    // A window's title has "[*]" for its own use; twice, it stands for itself.
    const QString name = To_qt(Last_part(path)).toUpper().replace("[*]", "[*][*]");
    setWindowTitle("Tidemark - " + name);
}

// Only undoing and redoing leave another picture on the screen than the session's.
// False when that one is gone meanwhile; the other then stays.
bool TidemarkMain::Show_picture() {
    std::string& picture = session_.Opened.Picture;
    if (picture == map_->Shown_file()) return true;
    if (picture.empty()) {
        map_->Show_nothing();
        return true;
    }
    const bool is_shown = map_->Show_image(picture);
    if (!is_shown) picture = map_->Shown_file();
    return is_shown;
}

// A box that comes up in the middle of a redraw lets other events through, which may ask for
// another one; the redraw that waits for the box shows all there is then.
void TidemarkMain::Refresh_Graphics() {
    if (redrawing_) return;
    redrawing_ = true;
    const auto done = qScopeGuard([this] { redrawing_ = false; });
    tidemark::Refresh_Graphics(document_.Now(), session_.Panel.SelectedPoint,
                               map_->Canvas().Surface(), messages_);
    Show_marks();
}

void TidemarkMain::Show_marks() {
    const MarkKinds kinds = tool_bar_->Wanted_marks();
    MapMarks marks = Marks_of(document_.Now(), session_, kinds);
    marks.Areas.insert(marks.Areas.end(), preview_.Areas.begin(), preview_.Areas.end());
    marks.Lines.insert(marks.Lines.end(), preview_.Lines.begin(), preview_.Lines.end());
    map_->Canvas().Show_marks(std::move(marks));
    if (!kinds.Pointer) map_->Canvas().Show_pointer_frame({});
}

void TidemarkMain::Go_to() {
    if (!go_to_) go_to_ = new GoTo(this);
    const VTPPlace middle{session_.CursorVTPX, session_.CursorVTPY};
    if (const auto place = go_to_->Ask(document_.Now(), middle)) Show_place(*place);
}

void TidemarkMain::Show_chosen() {
    if (const auto place = Chosen_place(document_.Now(), session_)) Show_place(*place);
}

void TidemarkMain::Fill_coast() {
    if (!fill_coast_) fill_coast_ = new FillCoast(this);
    const auto [from, to] = map_->Canvas_in_view();
    const auto plan = fill_coast_->Ask(document_.Now(), session_.Panel.SelectedPolygon + 1,
                                       Cells_in_view(document_.Now(), from, to));
    if (plan) Say(Fill_along_coast(document_, session_, *plan));
}

void TidemarkMain::Import_coast(const QString& path) {
    if (!Has_map_area(document_.Now())) return Say(std::string(NoMapAreaText));
    if (!import_coast_) {
        import_coast_ = new ImportCoast(platform_, this);
        connect(import_coast_, &ImportCoast::Preview_changed, this, &TidemarkMain::Show_preview);
    }
    const auto wanted = import_coast_->Ask(document_.Now(), path);
    if (wanted) Say(Imported_text(wanted->Coast, Import_coast_file(document_, session_, *wanted)));
}

// A preview of which nothing is in view is brought into it.
void TidemarkMain::Show_preview(const MapMarks& preview) {
    preview_ = preview;
    Show_marks();
    const auto [from, to] = map_->Canvas_in_view();
    const auto is_in_view = [from = from, to = to](const MarkLine& line) {
        return line.From.X >= from.X && line.From.X <= to.X && line.From.Y >= from.Y &&
               line.From.Y <= to.Y;
    };
    const std::vector<MarkLine>& lines = preview.Lines;
    if (!lines.empty() && std::none_of(lines.begin(), lines.end(), is_in_view))
        map_->Center_on(lines.front().To);
}

void TidemarkMain::Show_place(VTPPlace place) {
    map_->Center_on(VTP_to_canvas(document_.Now(), place.X, place.Y));
    key_drawing_->Go_to(place);
}

}  // namespace tidemark
