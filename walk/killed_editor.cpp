#include "walk/killed_editor.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QPushButton>

#include "app/recovery_file.h"
#include "model/project_file.h"
#include "platform/qt_text.h"
#include "walk/check.h"
#include "walk/driver.h"

namespace tidemark {

namespace {

constexpr const char* State = "state";      // the folder that the work is kept in
constexpr const char* Drawn = "drawn.TDM";  // what the killed editor had at its end
constexpr const char* Kept = "state/1.recovery";

std::string Here(const char* name) {
    return Path_from_qt(QDir::current().absoluteFilePath(name));
}

std::string Content(const char* name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "";
}

// The project that the editor has drawn; null as long as not all of that is kept.
std::unique_ptr<Project> Drawn_and_kept() {
    auto drawn = std::make_unique<Project>();
    const ProjectFileReading reading = Read_project(Content(Drawn), *drawn);
    const RecoveryFileReading kept = Read_recovery_file(Content(Kept));
    const bool is_whole = !reading.Error && reading.EndedAtLine == 0 &&
                          kept.State == RecoveryFileState::Whole && *kept.Unsaved.Work == *drawn;
    return is_whole ? std::move(drawn) : nullptr;
}

std::unique_ptr<Project> Start_and_kill() {
    QDir(State).removeRecursively();  // of an earlier walk
    QFile::remove(Drawn);
    QProcess editor;
    editor.setProcessChannelMode(QProcess::ForwardedChannels);
    editor.start(QCoreApplication::applicationFilePath(),
                 {QDir::currentPath(), QString::fromLatin1(UntilKilled)});
    constexpr int long_enough = 30000;  // milliseconds
    std::unique_ptr<Project> drawn;
    const bool is_kept =
        QTest::qWaitFor([&] { return (drawn = Drawn_and_kept()) != nullptr; }, long_enough);
    editor.kill();
    Check(editor.waitForFinished() && editor.exitStatus() == QProcess::CrashExit,
          "the editor was not killed");
    Check(is_kept, "the work of the editor that was killed was not kept");
    return drawn;
}

}  // namespace

int Work_until_killed(TidemarkMain& window, const QString& out) {
    QDir::setCurrent(out);
    window.Keep_work_in(Here(State));
    window.Open(QString::fromStdString(Here("north-shore.TDM")));
    auto& canvas = Control<QWidget>(window, "Picture2");
    for (const QPoint place : {QPoint(40, 40), QPoint(200, 90), QPoint(130, 220)})
        Click_at(canvas, place);
    QFile drawn(Drawn);
    Check(drawn.open(QIODevice::WriteOnly), "what was drawn cannot be written");
    drawn.write(QByteArray::fromStdString(Project_bytes(window.Current_project(), "then")));
    drawn.close();
    return QApplication::exec();
}

void Kill_and_recover(const TakePicture& take_picture) {
    const std::unique_ptr<Project> drawn = Start_and_kill();
    TidemarkMain window;
    window.show();
    Plan plan;
    plan.Then([&](QWidget& box) {
        take_picture({&window, &box}, "recovery");
        Click(Control<QPushButton>(box, "RecoverButton"));
    });
    window.Keep_work_in(Here(State));
    Check(QTest::qWaitFor([&] { return window.Current_project() == *drawn; }),
          "the lost work was not recovered");
    plan.Finish();
    Check(window.windowTitle() == "Tidemark - NORTH-SHORE.TDM", "the lost work has lost its name");
    plan.Then_answer(QMessageBox::Yes).Then_answer();
    Choose_entry(window, "FileMenu", "FileSave");
    plan.Finish();
    Check(window.close() && !QFile::exists(Kept), "work that is saved is still kept");
}

}  // namespace tidemark
