#include "walk/mended_coast.h"

#include <memory>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "canvas/map_frame.h"
#include "coast/check.h"
#include "model/cell_frame.h"
#include "walk/check.h"
#include "walk/driver.h"

namespace tidemark {

namespace {

// A place in an LOD13 cell, in cell units.
struct Place {
    int Column, Row, X, Y;
};

// As a hand in a hurry clicks: three steps skip cells, and both ends miss their cells' edges.
constexpr Place Shore[] = {{9, 22, 5, 128},   {10, 21, 200, 200}, {12, 23, 100, 100},
                           {14, 21, 128, 60}, {15, 22, 60, 60},   {15, 23, 250, 128}};
constexpr Place Water{12, 23, 128, 200};

class MendedCoast {
  public:
    MendedCoast(TidemarkMain& window, const TakePicture& take_picture)
        : window_(window), take_picture_(take_picture) {}

    void Draw();
    void Look_and_mend();
    void Fill();
    void Take_back(const Project& before);

  private:
    QPoint Pixel(Place place) const;
    void Bring_into_view(Place place);
    void Click_map(Place place);
    int Errors() const { return Count_errors(Check_coast(window_.Current_project())); }
    void Trigger(const char* action) { window_.findChild<QAction*>(action)->trigger(); }

    TidemarkMain& window_;
    const TakePicture& take_picture_;
    Status& panel_ = Control<Status>(window_, "Status");
    MapView& map_ = Control<MapView>(window_, "MapView");
    QWidget& canvas_ = Control<QWidget>(window_, "Picture2");
};

QPoint MendedCoast::Pixel(Place place) const {
    const auto [x, y] =
        VTP_to_canvas(window_.Current_project(), Cell_edge_VTP(place.Column) + place.X,
                      Cell_edge_VTP(place.Row) + place.Y);
    return {qRound(x), qRound(y)};
}

void MendedCoast::Bring_into_view(Place place) {
    const QPoint pixel = Pixel(place);
    map_.Center_on({double(pixel.x()), double(pixel.y())});
}

void MendedCoast::Click_map(Place place) {
    if (!canvas_.visibleRegion().contains(Pixel(place))) Bring_into_view(place);
    Click_at(canvas_, Pixel(place));
}

void MendedCoast::Draw() {
    map_.Zoom_reset();
    Bring_into_view({12, 22, 128, 128});
    Choose_line(Control<QComboBox>(panel_, "DrawModeCombo"), "Coastline (sand), no waves");
    auto& starts_segment = Control<QCheckBox>(panel_, "NewSegment");
    if (!starts_segment.isChecked()) Click(starts_segment);
    for (const Place& place : Shore) Click_map(place);
    Bring_into_view({12, 22, 128, 128});
    Check(Errors() > 0, "the bad coast has no errors");
}

void MendedCoast::Look_and_mend() {
    Trigger("CoastCheck");
    auto& check = Control<QDialog>(window_, "CoastCheck");
    Check(QTest::qWaitForWindowExposed(&check), "the coast check did not come up");
    auto& findings = Control<QWidget>(check, "FindingList");
    QTest::qWait(300);  // for the check to run
    findings.setFocus();
    Press(findings, Qt::Key_Home);
    QTest::qWait(200);
    take_picture_({&window_, &panel_, &check}, "coast-check");
    Click(Control<QPushButton>(check, "MendAllButton"));
    QTest::qWait(200);
    Check(Errors() == 0, "mending has left errors");
    take_picture_({&window_, &panel_, &check}, "coast-mended");
    check.close();
}

void MendedCoast::Fill() {
    Choose_line(Control<QComboBox>(panel_, "DrawModeCombo"), "Water polygon");
    Click_map(Water);
    auto& polygons = Control<QWidget>(panel_, "LWMlistBox");
    polygons.setFocus();
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End}) Press(polygons, key);
    const int before = window_.Current_project().LWMCount;
    Plan plan;
    plan.Then([&](QWidget& dialog) {
        auto& land = Control<QCheckBox>(dialog, "FillLand");
        Check(!land.isChecked(), "the water polygon is not the chosen one");
        Press(land, Qt::Key_Space);
        take_picture_({&window_, &panel_, &dialog}, "fill-coast");
        Click(Control<QPushButton>(dialog, "OkButton"));
    });
    Trigger("FillCoast");
    plan.Finish();
    Check(window_.Current_project().LWMCount > before + 5, "the coast was not filled");
    Check(Errors() == 0, "the filled coast has errors");
    Trigger("Marks");
    take_picture_({&window_, &panel_}, "coast-filled");
    Trigger("Marks");
}

void MendedCoast::Take_back(const Project& before) {
    for (int i = 0; i < 50 && window_.Current_project() != before; ++i) Trigger("EditUndo");
    Check(window_.Current_project() == before, "it was not taken back");
}

}  // namespace

void Draw_mend_and_fill(TidemarkMain& window, const TakePicture& take_picture) {
    const auto before = std::make_unique<Project>(window.Current_project());
    MendedCoast user(window, take_picture);
    user.Draw();
    user.Look_and_mend();
    user.Fill();
    user.Take_back(*before);
}

}  // namespace tidemark
