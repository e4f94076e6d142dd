// busy_editor FOLDER SEED: an editor that is used at random until it is ended from outside. Its
// work is kept in FOLDER/state. After every step it adds a line to FOLDER/log: the time
// (milliseconds of the steady clock) and the project's Content_mark.
#include <chrono>
#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include "app/tidemark_main_window.h"
#include "fakes/content_mark.h"
#include "fakes/environment.h"
#include "fakes/random_numbers.h"
#include "fakes/sample_projects.h"
#include "walk/driver.h"

using namespace tidemark;

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    const std::string folder = argv[1];
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    RandomNumbers random(static_cast<unsigned>(std::atoi(argv[2])));

    QImage(768, 768, QImage::Format_RGB32).save(QString::fromStdString(folder + "/map.bmp"));
    Project project;
    Place_area(project, 3, 5, 5, 7);
    project.BackgroundFile = folder + "/map.bmp";
    project.BackgroundLoaded = true;
    project.ProjectFile = folder + "/a.TDM";
    Write_file(project.ProjectFile, Project_bytes(project, "then"));
    TidemarkMain window;
    window.show();
    window.Open(QString::fromStdString(project.ProjectFile));
    window.Keep_work_in(folder + "/state");

    auto& canvas = Control<QWidget>(window, "Picture2");
    const int log = ::open((folder + "/log").c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    const auto note = [&] {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        const std::string line =
            std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(now).count()) +
            " " + Content_mark(window.Current_project()) + "\n";
        if (::write(log, line.data(), line.size()) < 0) ::_exit(3);
    };
    note();
    QTimer step;
    QObject::connect(&step, &QTimer::timeout, [&] {
        const int what = random.Number(0, 9);
        if (what < 7)
            Click_at(canvas, {random.Number(0, 500), random.Number(0, 500)});
        else if (what == 7)
            Press(canvas, Qt::Key_Delete);
        else
            window.findChild<QAction*>(what == 8 ? "EditUndo" : "EditRedo")->trigger();
        note();
        step.start(random.One_in(10) ? random.Number(0, 3000) : random.Number(0, 100));
    });
    step.start(0);
    return QApplication::exec();
}
