// Drives the real windows as a user would, by mouse and key events on controls that are found by
// their object names.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include <QComboBox>
#include <QFileDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QStringList>
#include <QTest>
#include <QWidget>

namespace tidemark {

// The control below `root` at `path`, object names joined with "/" (names between may be left out).
// Throws std::runtime_error, listing the names that are there, when there is none or it is of
// another kind.
template <class T>
T& Control(const QWidget& root, const QString& path);

// Clicks and keys at the middle of a control.
void Click(QWidget& control, Qt::MouseButton button = Qt::LeftButton);
void Press(QWidget& control, Qt::Key key);
// Moves the mouse to a place in a control that is not covered, and waits until the control has seen
// it there. Throws std::runtime_error when it does not.
void Move_to(QWidget& control, QPoint place);
// Moves it off all windows, so that nothing that comes and goes under it is taken for a move.
void Park_mouse();
// Moves the mouse to a place in a control and clicks there.
void Click_at(QWidget& control, QPoint place, Qt::MouseButton button = Qt::LeftButton);
// Replaces the text of an edit field by typing.
void Type(QWidget& field, const QString& text);
// Opens a combo box and chooses the line with this text. Throws when there is none.
void Choose_line(QComboBox& box, const QString& text);
// Opens a menu of the main window and clicks one of its entries. Throws when it is disabled.
void Choose_entry(QMainWindow& window, const QString& menu, const QString& entry);

// What the user will do with the modal windows that come up, one after another. A plan is made
// before the click that opens the first of them; each step is carried out while its window is open.
class Plan {
  public:
    Plan();
    Plan(const Plan&) = delete;
    Plan& operator=(const Plan&) = delete;
    ~Plan();

    // Runs `step` on the next modal window; it has to end with that window closed.
    Plan& Then(std::function<void(QWidget&)> step);
    // Answers the next message box.
    Plan& Then_answer(QMessageBox::StandardButton button = QMessageBox::Ok);
    // Types a path into the next file chooser and accepts it; an empty path cancels.
    Plan& Then_choose(const QString& path);

    // Throws std::runtime_error when a step failed, when steps are left over, or when a window came
    // up that no step was planned for (it was closed with Escape).
    void Finish();

    // The messages shown so far, "title: text".
    const std::vector<QString>& Messages() const { return messages_; }

  private:
    void Look();
    void Carry_out_next(QWidget& modal);
    void Close_unplanned(QWidget& modal);

    std::deque<std::function<void(QWidget&)>> steps_;
    std::vector<QString> messages_;
    std::vector<QWidget*> handled_;  // modal windows whose step is running
    QStringList failures_;
    int looks_without_step_ = 0;
    QObject guard_;  // ends the looking together with the plan
};

// What the screen shows where these windows stand, with their frames. Their other windows are not
// in the picture when they do not lie within.
QPixmap Picture_of(const QList<QWidget*>& windows);

namespace detail {
[[noreturn]] void Throw_no_control(const QWidget& root, const QString& path, const char* kind);
QWidget* Find_control(const QWidget& root, const QString& path);
}  // namespace detail

template <class T>
T& Control(const QWidget& root, const QString& path) {
    T* const control = qobject_cast<T*>(detail::Find_control(root, path));
    if (!control) detail::Throw_no_control(root, path, T::staticMetaObject.className());
    return *control;
}

}  // namespace tidemark
