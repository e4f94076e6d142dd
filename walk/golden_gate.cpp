#include "walk/golden_gate.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "walk/check.h"
#include "walk/driver.h"
#include "walk/keys_only.h"
#include "walk/killed_editor.h"
#include "walk/mended_coast.h"
#include "walk/picture_strip.h"
#include "walk/there_and_back.h"

namespace tidemark {

namespace {

// A place on the map: an LOD13 cell and a position inside it, in cell units.
struct MapPlace {
    int Column, Row, X, Y;
};

constexpr MapPlace shore[] = {{23, 14, 0, 116},   {23, 14, 12, 88},   {23, 14, 200, 208},
                              {24, 14, 128, 180}, {25, 14, 128, 144}, {26, 14, 128, 104},
                              {27, 14, 60, 88},   {27, 14, 116, 88},  {27, 14, 252, 232}};
constexpr MapPlace bridge[] = {{22, 14, 252, 136}, {22, 12, 196, 244}, {22, 12, 116, 80}};
constexpr int first_column = 23, last_column = 27, shore_row = 14;

void Save_picture(const QList<QWidget*>& windows, const QString& name) {
    constexpr int settling = 200;  // milliseconds for the windows to be painted
    QTest::qWait(settling);
    Check(Picture_of(windows).save(name + ".png"), name + ".png could not be saved");
}

// Over one that an earlier walk has left.
void Copy_file(const QString& from, const QString& to) {
    QFile::remove(to);
    Check(QFile::copy(from, to), to + " could not be copied");
}

class Walk {
  public:
    explicit Walk(TidemarkMain& window)
        : window_(window),
          panel_(Control<Status>(window, "Status")),
          canvas_(Control<QWidget>(window, "Picture2")) {}

    void Start_empty() { Take_picture("empty"); }
    void Load_the_map();
    void Draw_the_shore();
    void Put_its_ends_on_the_edges();
    void Make_water_and_land();
    void Draw_the_bridge();
    void Clear_what_is_there();
    void Save_the_project();
    void Write_both_files();
    void Compile_and_copy(const QString& compiler);
    void Mend_and_fill() {
        Draw_mend_and_fill(window_, Save_picture);
        Scroll_to({700, 500});
    }
    void Draw_without_the_mouse() {
        Draw_with_keys_only(window_, [this] { Take_picture("drawing-by-keys"); });
    }
    void Import_the_coast();
    void Open_the_sample();
    void Undo_and_redo() {
        Undo_and_redo_everything(window_, [this] { return Saved_files(); });
    }
    void Exit_through_the_question();

  private:
    const Project& Now() const { return window_.Current_project(); }
    void Take_picture(const QString& name) { Save_picture({&window_, &panel_}, name); }
    void Choose_mode(const QString& mode) {
        Choose_line(Control<QComboBox>(panel_, "DrawModeCombo"), mode);
    }
    QPoint Pixel(const MapPlace& place);
    void Scroll_to(QPoint top_left);
    void Click_map(const MapPlace& place, Qt::MouseButton button = Qt::LeftButton);
    void Move_point(const MapPlace& near, int in_cell_x, const QString& picture);
    void Save_file(const char* entry, const QString& name);
    QByteArrayList Saved_files();
    void Save_and_compile(const char* entry, const QString& name, const QString& picture);

    TidemarkMain& window_;
    Status& panel_;
    QWidget& canvas_;
};

// Scrolls to the place unless it is in view, and away from the window's edges.
QPoint Walk::Pixel(const MapPlace& place) {
    const double zoom = Control<MapView>(window_, "MapView").Scale().Zoom();
    const double x = place.Column * CellSizeVTP + place.X;
    const double y = place.Row * CellSizeVTP + place.Y;
    const QPoint pixel(qRound(x * Now().ScaleX * zoom), qRound(y * Now().ScaleY * zoom));
    if (!canvas_.visibleRegion().contains(pixel)) Scroll_to(pixel - QPoint(200, 200));
    return pixel;
}

void Walk::Scroll_to(QPoint top_left) {
    Control<QScrollBar>(window_, "HScroll1").setValue(top_left.x());
    Control<QScrollBar>(window_, "VScroll1").setValue(top_left.y());
}

void Walk::Click_map(const MapPlace& place, Qt::MouseButton button) {
    Click_at(canvas_, Pixel(place), button);
}

void Walk::Load_the_map() {
    Plan plan;
    plan.Then_choose(QDir::current().absoluteFilePath("golden-gate.jpg"));
    plan.Then([](QWidget& properties) {
        Click(Control<QPushButton>(properties, "ShowCalc"));  // the next two steps come up inside
        Type(Control<QLineEdit>(properties, "LOD13brX"), "31");
        Type(Control<QLineEdit>(properties, "LOD13brY"), "31");
        Save_picture({&properties}, "background-properties");
        Click(Control<QPushButton>(properties, "OKButton"));
    });
    plan.Then([](QWidget& calculator) {
        Type(Control<QLineEdit>(calculator, "CalcLatText"), "37:49:10");
        Type(Control<QLineEdit>(calculator, "CalcLonText"), "122:28:42");
        Choose_line(Control<QComboBox>(calculator, "EWcombo"), "W");
        Save_picture({&calculator}, "cell-calculator");
        Click(Control<QPushButton>(calculator, "CalcButton"));
    });
    plan.Then_answer(QMessageBox::Yes);
    Choose_entry(window_, "BackgroundMenu", "BackgroundLoad");
    plan.Finish();
    Check(Now().BackgroundLoaded && Now().BGLOD8X == 122 && Now().BGLOD8Y == 148,
          "the map was not loaded and placed");
    Scroll_to({1300, 700});
}

void Walk::Draw_the_shore() {
    Choose_mode("Coastline (sand), no waves");
    Type(Control<QLineEdit>(panel_, "VTPwidthText"), "40");
    for (const MapPlace& place : shore) Click_map(place);
    // A point too few and one to go: insert one before the last, and take it out again.
    const int count = Now().VTPCount;
    Click_map(shore[7], Qt::RightButton);
    Click_map({27, 14, 88, 88});
    Check(Now().VTPCount == count + 1, "no point was inserted");
    Press(canvas_, Qt::Key_Delete);
    Check(Now().VTPCount == count && count == 9, "the shore does not have its points");
    Click_map(shore[8], Qt::RightButton);
    Take_picture("drawing");
}

void Walk::Move_point(const MapPlace& near, int in_cell_x, const QString& picture) {
    Click_map(near, Qt::RightButton);
    Plan plan;
    plan.Then([&](QWidget& dialog) {
        Click(Control<QRadioButton>(dialog, "Option2"));
        Type(Control<QLineEdit>(dialog, "LOD13X"), QString::number(in_cell_x));
        if (!picture.isEmpty()) Save_picture({&dialog}, picture);
        Click(Control<QPushButton>(dialog, "OKButton"));
    });
    Press(canvas_, Qt::Key_E);
    plan.Finish();
}

void Walk::Put_its_ends_on_the_edges() {
    Move_point(shore[0], 0, "edit-point");
    Move_point(shore[8], 255, "");
    Check(Now().VTPPoint(9, 0) == 4080 + 256 * last_column + 255, "the last point was not moved");
    Click(Control<QPushButton>(panel_, "ReverseButton"));
    Check(Now().VTPPoint(1, 0) == 4080 + 256 * last_column + 255, "the shore was not reversed");
}

void Walk::Make_water_and_land() {
    Choose_mode("Water polygon");
    for (int column = first_column; column <= last_column; ++column)
        Click_map({column, shore_row, 180, 40});
    Choose_mode("Land polygon");
    for (int column = first_column; column <= last_column; ++column)
        Click_map({column, shore_row, 60, 240});
    Check(Now().LWMCount == 10, "there are not ten polygons");
    Take_picture("polygons");
}

void Walk::Draw_the_bridge() {
    Choose_mode("Road (2 lane concrete)");
    Type(Control<QLineEdit>(panel_, "VTPwidthText"), "8");
    for (const MapPlace& place : bridge) Click_map(place);
    Check(Now().VTPSegStart(10) && Now().VTPWidth(10) == 8, "the bridge is no segment of its own");
}

void Walk::Clear_what_is_there() {
    Choose_mode("Clear existing coastlines in LOD13 cell");
    for (int column = first_column; column <= last_column; ++column)
        Click_map({column, shore_row, 128, 128});
    Choose_mode("Clear existing major roads in LOD13 cell");
    for (const int row : {12, 13, 14}) Click_map({22, row, 128, 128});
    Check(Now().KillCount == 8, "there are not eight cleared cells");
}

void Walk::Save_the_project() {
    QFile::remove("north-shore.TDM");  // of an earlier walk, which would have to be overwritten
    Plan plan;
    plan.Then_choose(QDir::current().absoluteFilePath("north-shore")).Then_answer();
    Choose_entry(window_, "FileMenu", "FileSaveAs");
    plan.Finish();
    Check(window_.windowTitle() == "Tidemark - NORTH-SHORE.TDM", "the project was not saved");
}

// Where the scenery compiler is not there, a warning says so after each file.
void Walk::Save_file(const char* entry, const QString& name) {
    Plan plan;
    plan.Then_answer();
    if (!QFile::exists("BGLC.EXE")) plan.Then_answer();
    Choose_entry(window_, "Output", entry);
    plan.Finish();
    Check(plan.Messages().at(0).endsWith("file saved OK"), name + " was not saved");
    Check(QFile::exists(name), name + " is not there");
}

void Walk::Write_both_files() {
    Plan plan;
    plan.Then([](QWidget& preferences) {
        Click(Control<QPushButton>(preferences, "BrowseButton"));  // the next step comes up inside
        Save_picture({&preferences}, "preferences");
        Click(Control<QPushButton>(preferences, "OKbutton"));
    });
    plan.Then_choose(QDir::current().absoluteFilePath("north-shore"));
    Choose_entry(window_, "Output", "OutputPreferences");
    plan.Finish();
    Save_file("VTPsave", "north-shore-VTP.asm");
    Save_file("LWMsave", "north-shore-LWM.asm");
}

void Walk::Compile_and_copy(const QString& compiler) {
    Copy_file(compiler, "BGLC.EXE");
    QDir::current().mkdir("scenery");
    Plan plan;
    plan.Then([](QWidget& preferences) {
        for (const char* const check : {"Check2", "Check4", "FScopy"})
            Click(Control<QCheckBox>(preferences, check));
        Type(Control<QLineEdit>(preferences, "FSname"), QDir::current().filePath("scenery"));
        Save_picture({&preferences}, "compiling");
        Click(Control<QPushButton>(preferences, "OKbutton"));
    });
    Choose_entry(window_, "Output", "OutputPreferences");
    plan.Finish();
    Save_and_compile("VTPsave", "north-shore-VTP", "");
    Save_and_compile("LWMsave", "north-shore-LWM", "copied");
}

void Walk::Save_and_compile(const char* entry, const QString& name, const QString& picture) {
    const QString copy = "scenery/" + name + ".BGL";
    QFile::remove(copy);  // of an earlier walk
    Plan plan;
    plan.Then([&](QWidget& box) {
        if (!picture.isEmpty()) Save_picture({&window_, &panel_, &box}, picture);
        Click(*qobject_cast<QMessageBox*>(&box)->button(QMessageBox::Ok));
    });
    Choose_entry(window_, "Output", entry);
    plan.Finish();
    Check(QFile(copy).size() > QFile(name + ".asm").size(), copy + " is not the compiled file");
}

// Of the whole map, with nothing on it yet.
void Walk::Import_the_coast() {
    while (Now().VTPCount > 0) Click(Control<QWidget>(window_, "EditUndoButton"));
    Click(Control<QWidget>(window_, "ZoomWholeButton"));
    Take_picture("map");
    Plan plan;
    plan.Then([&](QWidget& dialog) {
        Click(Control<QPushButton>(dialog, "CoastFileButton"));  // the next step comes up inside
        Choose_line(Control<QComboBox>(dialog, "ImportModeCombo"), "Coastline (sand), no waves");
        for (const char* const check : {"ReverseCheck", "ClearCellsCheck", "FillWaterCheck"})
            Click(Control<QCheckBox>(dialog, check));
        Save_picture({&window_, &panel_, &dialog}, "import-coast");
        Click(Control<QPushButton>(dialog, "OkButton"));
    });
    plan.Then_choose(QDir::current().absoluteFilePath("golden-gate-coastline.geojson"));
    Click(Control<QWidget>(window_, "ImportCoastButton"));
    plan.Finish();
    Check(Now().VTPCount > 100 && Now().KillCount > 50 && Now().LWMCount > 50,
          "the coast was not imported");
    Click(Control<QWidget>(window_, "ZoomResetButton"));
    Scroll_to({1300, 700});
    Take_picture("imported");
}

void Walk::Open_the_sample() {
    Plan plan;
    plan.Then_choose(QDir::current().absoluteFilePath("golden-gate.TDM"));
    Choose_entry(window_, "FileMenu", "FileOpen");
    plan.Finish();
    Check(window_.windowTitle() == "Tidemark - GOLDEN-GATE.TDM", "the sample was not opened");
    Scroll_to({700, 500});
    Take_picture("main-window");
    Save_file("VTPsave", "golden-gate-VTP.asm");
}

// The project and both its assembler files, saved under the names that they have; the first line
// of the project tells when that was.
QByteArrayList Walk::Saved_files() {
    Plan plan;
    plan.Then_answer(QMessageBox::Yes).Then_answer();
    Choose_entry(window_, "FileMenu", "FileSave");
    plan.Finish();
    Save_file("VTPsave", "golden-gate-VTP.asm");
    Save_file("LWMsave", "golden-gate-LWM.asm");
    QByteArrayList contents;
    for (const char* const name :
         {"golden-gate.TDM", "golden-gate-VTP.asm", "golden-gate-LWM.asm"}) {
        QFile file(name);
        Check(file.open(QIODevice::ReadOnly), QString(name) + " cannot be read");
        if (contents.empty()) file.readLine();
        contents << file.readAll();
    }
    return contents;
}

// The click adds a point, which Exit then asks about; No goes back to the map.
void Walk::Exit_through_the_question() {
    Choose_mode("Coastline (sand), no waves");
    Click(Control<QWidget>(window_, "ZoomInButton"));
    Click_map({22, 14, 128, 128});
    const auto hits = [&](int point, int axis, int cell) {
        return qAbs(Now().VTPPoint(point, axis) - (FirstVTP + cell * CellSizeVTP + 128)) <= 1;
    };
    bool is_there = false;
    for (int i = 1; i <= Now().VTPCount; ++i) is_there |= hits(i, 0, 22) && hits(i, 1, 14);
    Check(is_there, "the last click has landed beside its place");
    Click(Control<QWidget>(window_, "ZoomResetButton"));
    Scroll_to({700, 500});
    Plan plan;
    plan.Then([&](QWidget& question) {
        Save_picture({&window_, &panel_, &question}, "exit-question");
        Click(*qobject_cast<QMessageBox*>(&question)->button(QMessageBox::No));
    });
    Choose_entry(window_, "FileMenu", "FileExit");
    Check(window_.isVisible(), "No did not stay");
    plan.Then_answer(QMessageBox::Yes);
    Choose_entry(window_, "FileMenu", "FileExit");
    plan.Finish();
    Check(!window_.isVisible() && !panel_.isVisible(), "Yes did not end the program");
}

}  // namespace

void Play_golden_gate(TidemarkMain& window, const WalkFolders& folders) {
    QDir::setCurrent(folders.Out);
    QFile::remove("BGLC.EXE");  // of an earlier walk
    for (const char* const name :
         {"golden-gate.TDM", "golden-gate.jpg", "golden-gate-coastline.geojson"})
        Copy_file(folders.Sample + "/" + name, name);
    Walk walk(window);
    walk.Start_empty();
    walk.Load_the_map();
    walk.Draw_the_shore();
    walk.Put_its_ends_on_the_edges();
    walk.Make_water_and_land();
    walk.Draw_the_bridge();
    walk.Clear_what_is_there();
    walk.Save_the_project();
    walk.Write_both_files();
    walk.Compile_and_copy(folders.Compiler);
    walk.Draw_without_the_mouse();
    walk.Import_the_coast();
    walk.Open_the_sample();
    walk.Mend_and_fill();
    walk.Undo_and_redo();
    walk.Exit_through_the_question();
    Kill_and_recover(Save_picture);
    Save_picture_strip(
        {"empty.png", "background-properties.png", "cell-calculator.png", "drawing.png",
         "edit-point.png", "polygons.png", "preferences.png", "compiling.png", "copied.png",
         "drawing-by-keys.png", "import-coast.png", "imported.png", "main-window.png",
         "coast-check.png", "coast-filled.png", "exit-question.png", "recovery.png"},
        "strip.png");
    constexpr int in_a_row = 3;
    Save_picture_strip({"map.png", "import-coast.png", "imported.png", "coast-check.png",
                        "coast-filled.png", "copied.png"},
                       "whole-way.png", in_a_row);
}

}  // namespace tidemark
