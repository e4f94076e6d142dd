// Loading, resizing, scrolling and redrawing the map in a view of 1600 x 1000 pixels, zooming it in
// one of 1920 x 1080: scans of 10,000 x 10,000, and the largest project that there can be.
#include <memory>
#include <random>

#include <QCoreApplication>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>
#include <benchmark/benchmark.h>

#include "canvas/map_frame.h"
#include "canvas/map_view_window.h"
#include "canvas/refresh_graphics.h"
#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "platform/qt_text.h"
#include "scan.h"

namespace tidemark {
namespace {

constexpr QSize WindowSize(1600, 1000);
constexpr QSize LargeWindow(1920, 1080);

// 999 points, 1000 cleared cells and 200 polygons of 200 points all over their cells: 47,000 lines.
std::unique_ptr<Project> Busiest_project(QSize canvas) {
    auto project = std::make_unique<Project>(Largest_project());
    std::mt19937 random(1);
    for (int polygon = 1; polygon <= MaxLWMCount; ++polygon) {
        project->LWMCell(polygon, 0) = random() % 32;
        project->LWMCell(polygon, 1) = random() % 32;
        for (int point = 1; point <= MaxLWMPointCount; ++point)
            for (const int axis : {0, 1}) project->LWMPoint(polygon, point, axis) = random() % 256;
    }
    project->ScaleX = static_cast<float>(canvas.width()) / 8192;
    project->ScaleY = static_cast<float>(canvas.height()) / 8192;
    return project;
}

struct OpenMap {
    explicit OpenMap(const Scan& scan, QSize size = {10000, 10000}, QSize window = WindowSize)
        : project(Busiest_project(size)) {
        view.resize(window);
        view.show();
        view.Show_image(scan.Path());
        Redraw();
    }

    void Redraw() {
        Refresh_Graphics(*project, 500, canvas.Surface(), messages);
        QCoreApplication::processEvents();
    }

    std::unique_ptr<Project> project;
    RecordingMessages messages;
    MapView view;
    MapCanvas& canvas = *view.findChild<MapCanvas*>();
};

void Load(benchmark::State& state, const char* format) {
    const std::string& path = Scan::Large(format).Path();
    for (auto _ : state) {
        MapView view;
        view.resize(WindowSize);
        if (!view.Show_image(path)) state.SkipWithError("not loaded");
    }
}

void Decode(benchmark::State& state, const char* format) {
    const QString path = To_qt(Scan::Large(format).Path());
    QImageReader::setAllocationLimit(0);
    for (auto _ : state) benchmark::DoNotOptimize(QImageReader(path).read());
}

void Resize(benchmark::State& state) {
    OpenMap map(Scan::Large("jpeg"));
    int narrower = 0;
    for (auto _ : state) {
        map.view.resize(WindowSize - QSize(++narrower % 100, 0));
        map.Redraw();
    }
}

void Scroll_at(benchmark::State& state, OpenMap& map, int length) {
    auto& across = *map.view.findChild<QScrollBar*>("HScroll1");
    auto& down = *map.view.findChild<QScrollBar*>("VScroll1");
    int way = 0;
    for (auto _ : state) {
        way = (way + 48) % length;
        across.setValue(way % qMax(across.maximum(), 1));
        down.setValue(way % qMax(down.maximum(), 1));
        QCoreApplication::processEvents();
    }
}

void Scroll(benchmark::State& state, const char* format) {
    OpenMap map(Scan::Large(format));
    Scroll_at(state, map, 8000);
}

void Zoom_to(OpenMap& map, double level) {
    while (map.view.Scale().Zoom() < level) map.view.Zoom_in();
    while (map.view.Scale().Zoom() > level) map.view.Zoom_out();
    QCoreApplication::processEvents();
}

void Scroll_zoomed(benchmark::State& state, double level) {
    OpenMap map(Scan::Large("jpeg"), {10000, 10000}, LargeWindow);
    Zoom_to(map, level);
    Scroll_at(state, map, 80000);
}

// From 100 % to the smallest level, to the largest and back; the halves of the picture are there.
void Zoom(benchmark::State& state) {
    OpenMap map(Scan::Large("jpeg"), {10000, 10000}, LargeWindow);
    map.view.Zoom_whole();
    QCoreApplication::processEvents();
    map.view.Zoom_reset();
    QCoreApplication::processEvents();
    auto step = &MapView::Zoom_out;
    for (auto _ : state) {
        const double before = map.view.Scale().Zoom();
        (map.view.*step)();
        if (map.view.Scale().Zoom() == before)
            step = step == &MapView::Zoom_out ? &MapView::Zoom_in : &MapView::Zoom_out;
        QCoreApplication::processEvents();
    }
}

void First_shrunk_view(benchmark::State& state) {
    const std::string& path = Scan::Large("jpeg").Path();
    for (auto _ : state) {
        state.PauseTiming();
        auto view = std::make_unique<MapView>();
        view->resize(LargeWindow);
        view->show();
        view->Show_image(path);
        QCoreApplication::processEvents();
        state.ResumeTiming();
        view->Zoom_whole();
        QCoreApplication::processEvents();
        state.PauseTiming();
        view.reset();
        state.ResumeTiming();
    }
}

// The lines of the project, each run of one pen together.
class LineRuns : public DrawingSurface {
  public:
    struct Run {
        QPen Pen;
        std::vector<QLineF> Lines;
    };
    std::vector<Run> Runs;

    void Erase() override {}
    void Pen_width(int pixels) override {
        pen_.setWidth(pixels);
        Runs.push_back({pen_, {}});
    }
    void Pen_colour(Colour c) override {
        pen_.setColor(QColor(c.Red, c.Green, c.Blue));
        Runs.push_back({pen_, {}});
    }
    void Line(CanvasPoint from, CanvasPoint to) override {
        Runs.back().Lines.emplace_back(from.X, from.Y, to.X, to.Y);
    }
    void Circle(CanvasPoint, double, Colour) override {}

  private:
    QPen pen_;
};

const Scan& Window_sized() {
    static const Scan scan(WindowSize, "jpeg");
    return scan;
}

void Redraw(benchmark::State& state) {
    OpenMap map(Window_sized(), WindowSize);
    for (auto _ : state) map.Redraw();
}

void Hand_to_painter(benchmark::State& state) {
    LineRuns lines;
    RecordingMessages messages;
    Refresh_Graphics(*Busiest_project(WindowSize), -1, lines, messages);
    QPixmap pixmap(WindowSize);
    pixmap.fill();
    for (auto _ : state) {
        QPainter painter(&pixmap);
        for (const LineRuns::Run& run : lines.Runs) {
            painter.setPen(run.Pen);
            painter.drawLines(run.Lines.data(), static_cast<int>(run.Lines.size()));
        }
    }
}

void Uncover(benchmark::State& state) {
    OpenMap map(Window_sized(), WindowSize);
    for (auto _ : state) map.canvas.repaint();
}

void Move_mouse(benchmark::State& state) {
    OpenMap map(Window_sized(), WindowSize);
    Session session;
    QLabel vtp, cell;
    QObject::connect(&map.canvas, &MapCanvas::Mouse_moved, [&](float x, float y) {
        const auto texts = Move_cursor(*map.project, session, x, y);
        vtp.setText(To_qt(texts->VTP));
        cell.setText(To_qt(texts->Cell));
    });
    int x = 0;
    for (auto _ : state) {
        const QPointF at(++x % 1500, 500);
        QMouseEvent move(QEvent::MouseMove, at, at, Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(&map.canvas, &move);
    }
}

// Every move leads into another cell, and shows its frame among the marks of the whole map.
void Move_mouse_over_marks(benchmark::State& state) {
    OpenMap map(Scan::Large("jpeg"), {10000, 10000}, LargeWindow);
    Zoom_to(map, SmallestLevel);
    Session session;
    map.project->BGLOD13tlX = map.project->BGLOD13tlY = 0;
    map.project->BGLOD13brX = map.project->BGLOD13brY = 31;
    map.canvas.Show_marks(Marks_of(*map.project, session, {}));
    QObject::connect(&map.canvas, &MapCanvas::Mouse_moved, [&](float x, float y) {
        Move_cursor(*map.project, session, x, y);
        map.canvas.Show_pointer_frame(Pointer_frame(*map.project, session));
    });
    int x = 0;
    for (auto _ : state) {
        x = (x + 60) % 1200;
        const QPointF at(x, 500);
        QMouseEvent move(QEvent::MouseMove, at, at, Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(&map.canvas, &move);
        QCoreApplication::processEvents();
    }
}

template <class Function, class... Arguments>
auto* Register(const char* name, Function function, Arguments... arguments) {
    return benchmark::RegisterBenchmark(name, function, arguments...)->UseRealTime();
}

const bool registered = [] {
    Register("loading a 10,000 x 10,000 JPEG [1.1x]|tidemark", Load, "jpeg");
    Register("loading a 10,000 x 10,000 JPEG [1.1x]|Qt's decoding", Decode, "jpeg");
    Register("loading a 10,000 x 10,000 8-bit BMP [1.1x]|tidemark", Load, "bmp");
    Register("loading a 10,000 x 10,000 8-bit BMP [1.1x]|Qt's decoding", Decode, "bmp");
    Register("resizing the window over the JPEG [16 ms]|tidemark", Resize);
    Register("a frame of scrolling the JPEG [16 ms]|tidemark", Scroll, "jpeg");
    Register("a frame of scrolling the 8-bit BMP [16 ms]|tidemark", Scroll, "bmp");
    for (double level = SmallestLevel, last = 0; level != last; level = Next_level(level)) {
        MapScale scale;
        scale.Zoom_to(level, {});
        Register(("a frame of scrolling it at " + scale.Percent() + " [16 ms]|tidemark").c_str(),
                 Scroll_zoomed, level);
        last = level;
    }
    Register("a zoom step of the JPEG with its redraw [33 ms]|tidemark", Zoom)->Iterations(60);
    Register("first view of the whole JPEG [0.5x]|tidemark", First_shrunk_view);
    Register("first view of the whole JPEG [0.5x]|Qt's decoding", Decode, "jpeg");
    Register("redrawing 47,000 lines in the window [1.3x]|tidemark", Redraw);
    Register("redrawing 47,000 lines in the window [1.3x]|QPainter", Hand_to_painter);
    Register("uncovering them|tidemark", Uncover);
    Register("moving the mouse [50 us]|tidemark", Move_mouse);
    Register("moving the mouse with all marks on [1 ms]|tidemark", Move_mouse_over_marks);
    return true;
}();

}  // namespace
}  // namespace tidemark
