// Adding and deleting points in the main window: the handler, the list, the redraw and the paint
// together.
#include <memory>
#include <string>

#include <QCoreApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <benchmark/benchmark.h>

#include "app/tidemark_main_window.h"
#include "fakes/sample_projects.h"
#include "fakes/temporary_folder.h"
#include "model/project_file.h"
#include "platform/qt_text.h"

namespace tidemark {
namespace {

constexpr QSize MapSize(1600, 1000);

enum class Holds { PointsOnly, Everything };  // everything: 1000 cells and 200 polygons besides

// A project of 998 points over a map, opened in a main window.
class Editor {
  public:
    explicit Editor(Holds holds) {
        auto project = std::make_unique<Project>(Largest_project());
        project->VTPCount = MaxVTPCount - 1;
        if (holds == Holds::PointsOnly) project->KillCount = project->LWMCount = 0;
        project->BackgroundFile = folder_ / "map.bmp";
        project->BackgroundLoaded = true;
        project->ScaleX = MapSize.width() / 8192.0F;
        project->ScaleY = MapSize.height() / 8192.0F;
        QImage map(MapSize, QImage::Format_RGB32);
        map.fill(Qt::darkCyan);
        map.save(To_qt(project->BackgroundFile));
        const std::string path = folder_ / "project.TDM";
        DiskFiles().Replace(path, Project_bytes(*project, "now"));
        window_.resize(MapSize);
        window_.show();
        window_.Open(To_qt(path));
        canvas_ = window_.findChild<QWidget*>("Picture2");
        Finish_painting();
    }

    int Points() const { return window_.Current_project().VTPCount; }

    void Click_map() {
        const QPointF at(700, 500);
        Send_mouse(QEvent::MouseMove, at, Qt::NoButton);
        Send_mouse(QEvent::MouseButtonPress, at, Qt::LeftButton);
        Send_mouse(QEvent::MouseButtonRelease, at, Qt::LeftButton);
        Finish_painting();
    }

    void Press_delete() {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, {});
        QCoreApplication::sendEvent(window_.findChild<QWidget*>("VTPlistbox"), &press);
        Finish_painting();
    }

    void Trigger(const char* action) {
        window_.findChild<QAction*>(action)->trigger();
        Finish_painting();
    }

    void Refresh_graphics() {
        window_.findChild<QPushButton*>("RefreshButton")->click();
        Finish_painting();
    }

  private:
    void Send_mouse(QEvent::Type type, QPointF at, Qt::MouseButton button) {
        QMouseEvent event(type, at, canvas_->mapToGlobal(at), button, button, {});
        QCoreApplication::sendEvent(canvas_, &event);
    }

    void Finish_painting() { QCoreApplication::processEvents(); }

    TemporaryFolder folder_;
    TidemarkMain window_;
    QWidget* canvas_;
};

void Add_last_point(benchmark::State& state, Holds holds) {
    Editor editor(holds);
    for (auto _ : state) {
        editor.Click_map();
        if (editor.Points() != 999) state.SkipWithError("no point was added");
        state.PauseTiming();
        editor.Press_delete();
        state.ResumeTiming();
    }
}

void Delete_points(benchmark::State& state, Holds holds) {
    Editor editor(holds);
    editor.Click_map();
    for (auto _ : state) editor.Press_delete();
    if (editor.Points() > 899) state.SkipWithError("the points were not deleted");
}

void Redraw_only(benchmark::State& state, Holds holds) {
    Editor editor(holds);
    for (auto _ : state) editor.Refresh_graphics();
}

void Record_steps(benchmark::State& state, const Project& project) {
    Session session;
    Document document(session);
    document.Settle([&](Project& p) { p = project; });
    Int16 by = 1;
    for (auto _ : state) {
        by = -by;
        document.Do("edit point 500", [&](Project& p) { p.VTPPoint(500, 0) += by; });
    }
    if (!document.Can_undo()) state.SkipWithError("no step was recorded");
}

void Record_on_largest(benchmark::State& state) {
    Record_steps(state, Largest_project());
}

void Record_on_sample(benchmark::State& state) {
    Project sample;
    std::string bytes;
    DiskFiles().Read(TIDEMARK_SOURCE_DIR "/sample/golden-gate.TDM", MaxProjectFileSize, bytes);
    Read_project(bytes, sample);
    Record_steps(state, sample);
}

// Undoing and redoing by turns.
void Travel(benchmark::State& state, Holds holds) {
    Editor editor(holds);
    editor.Click_map();
    bool back = true;
    for (auto _ : state) {
        editor.Trigger(back ? "EditUndo" : "EditRedo");
        back = !back;
        if (editor.Points() != (back ? 999 : 998)) state.SkipWithError("nothing was undone");
    }
}

const bool registered = [] {
    const auto measure = [](const char* name, auto function, Holds holds) {
        benchmark::RegisterBenchmark(name, function, holds)->UseRealTime()->Iterations(100);
    };
    const Holds points = Holds::PointsOnly, everything = Holds::Everything;
    measure("adding the 999th point by a click [16 ms]|tidemark", Add_last_point, points);
    measure("adding the 999th point by a click [16 ms]|redrawing alone", Redraw_only, points);
    measure("each point while Delete is held [16 ms]|tidemark", Delete_points, points);
    measure("each point while Delete is held [16 ms]|redrawing alone", Redraw_only, points);
    measure("adding it to the largest project|tidemark", Add_last_point, everything);
    measure("adding it to the largest project|redrawing alone", Redraw_only, everything);
    const char* const recording = "recording a step on the largest project [0.1x]|";
    benchmark::RegisterBenchmark((std::string(recording) + "tidemark").c_str(), Record_on_largest);
    measure((std::string(recording) + "one redraw of it").c_str(), Redraw_only, everything);
    benchmark::RegisterBenchmark("recording a step on the sample [50 us]|tidemark",
                                 Record_on_sample);
    measure("undoing or redoing on the largest project|tidemark", Travel, everything);
    measure("undoing or redoing on the largest project|redrawing alone", Redraw_only, everything);
    return true;
}();

}  // namespace
}  // namespace tidemark
