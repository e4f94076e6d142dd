#include "walk/there_and_back.h"

#include <memory>

#include "walk/check.h"
#include "walk/driver.h"

namespace tidemark {

namespace {

// Presses the button until it has nothing more to do, or the project is this one. Returns how
// often.
int Press_through(QWidget& button, const Project& now, const Project* wanted = nullptr) {
    int times = 0;
    for (; button.isEnabled() && !(wanted && now == *wanted); ++times) Click(button);
    return times;
}

}  // namespace

void Undo_and_redo_everything(TidemarkMain& window, const std::function<QByteArrayList()>& saved) {
    auto& undo = Control<QWidget>(window, "EditUndoButton");
    auto& redo = Control<QWidget>(window, "EditRedoButton");
    const Project& now = window.Current_project();
    const auto here = std::make_unique<Project>(now);
    Press_through(redo, now);
    const auto last = std::make_unique<Project>(now);
    const QByteArrayList files = saved();
    const int steps = Press_through(undo, now);
    const auto empty = std::make_unique<Project>();
    empty->ProjectFile = now.ProjectFile;  // the name that it was saved under is no step
    Check(now == *empty, "not everything was undone");
    Check(Press_through(redo, now) == steps, "another number of steps was redone than undone");
    Check(now == *last, "redoing everything has made another project");
    Check(saved() == files, "redoing everything has made other files");
    Press_through(undo, now, here.get());
    Check(now == *here, "undoing has not led back");
    saved();
}

}  // namespace tidemark
