#include "walk/driver.h"

#include <algorithm>
#include <stdexcept>

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

namespace tidemark {

namespace detail {

QWidget* Find_control(const QWidget& root, const QString& path) {
    const QWidget* at = &root;
    QWidget* found = nullptr;
    for (const QString& name : path.split('/')) {
        found = at->findChild<QWidget*>(name);
        if (!found) return nullptr;
        at = found;
    }
    return found;
}

void Throw_no_control(const QWidget& root, const QString& path, const char* kind) {
    QStringList names;
    for (const QWidget* control : root.findChildren<QWidget*>())
        if (!control->objectName().isEmpty() && !control->objectName().startsWith("qt_"))
            names << control->objectName() + " (" + control->metaObject()->className() + ")";
    throw std::runtime_error(QString("%1 has no %2 \"%3\"; it has: %4")
                                 .arg(root.objectName(), kind, path, names.join(", "))
                                 .toStdString());
}

}  // namespace detail

void Click(QWidget& control, Qt::MouseButton button) {
    QTest::mouseClick(&control, button);
}

void Press(QWidget& control, Qt::Key key) {
    QTest::keyClick(&control, key);
}

namespace {

// Off screen there is none.
bool Has_real_pointer() {
    return QGuiApplication::platformName() != "offscreen";
}

// Watches for the display's pointer to be seen at a place of a control: within a pixel of it, as a
// window on a scaled display can begin in the middle of one.
class Arrival : public QObject {
  public:
    Arrival(QWidget& control, QPoint place) : place_(place) { control.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseMove)
            is_there_ =
                (static_cast<QMouseEvent*>(event)->position() - place_).manhattanLength() <= 1;
        return false;
    }
    bool Is_there() const { return is_there_; }

  private:
    const QPointF place_;
    bool is_there_ = false;
};

// To the pixel, and after all that is still to be told.
void Tell_of_move(QWidget& control, QPoint place) {
    QCoreApplication::processEvents();
    QMouseEvent move(QEvent::MouseMove, place, control.mapToGlobal(place), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &move);
}

}  // namespace

void Move_to(QWidget& control, QPoint place) {
    if (Has_real_pointer()) {
        const Arrival arrival(control, place);
        // Again, as the window manager may have moved the window meanwhile.
        constexpr int tries = 20, a_while = 500;  // milliseconds
        for (int i = 0; i < tries && !arrival.Is_there(); ++i) {
            // A move to where the pointer is already would not be reported.
            for (const QPoint off : {QPoint(3, 3), QPoint(0, 0)})
                QCursor::setPos(control.mapToGlobal(place + off));
            static_cast<void>(QTest::qWaitFor([&] { return arrival.Is_there(); }, a_while));
        }
        if (!arrival.Is_there())
            throw std::runtime_error("the mouse did not come to " +
                                     control.objectName().toStdString());
    }
    Tell_of_move(control, place);
}

void Park_mouse() {
    if (!Has_real_pointer()) return;
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    // The display answers after all that it had to tell of before.
    if (QApplication::widgetAt(QCursor::pos()))
        throw std::runtime_error("a window lies where the mouse is to be parked");
    QCoreApplication::processEvents();
}

void Click_at(QWidget& control, QPoint place, Qt::MouseButton button) {
    Move_to(control, place);
    QTest::mouseClick(&control, button, {}, place);
}

void Type(QWidget& field, const QString& text) {
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

void Choose_line(QComboBox& box, const QString& text) {
    const int line = box.findText(text);
    if (line < 0)
        throw std::runtime_error((box.objectName() + " has no line " + text).toStdString());
    Click(box);
    QTest::keyClick(box.view(), Qt::Key_Home);
    for (int i = 0; i < line; ++i) QTest::keyClick(box.view(), Qt::Key_Down);
    QTest::keyClick(box.view(), Qt::Key_Enter);
}

void Choose_entry(QMainWindow& window, const QString& menu, const QString& entry) {
    auto& popup = Control<QMenu>(window, menu);
    auto* const action = window.findChild<QAction*>(entry);
    if (!action || !popup.actions().contains(action))
        throw std::runtime_error(("no menu entry " + menu + "/" + entry).toStdString());
    if (!action->isEnabled())
        throw std::runtime_error(("menu entry " + entry + " is disabled").toStdString());
    QTest::mouseClick(window.menuBar(), Qt::LeftButton, {},
                      window.menuBar()->actionGeometry(popup.menuAction()).center());
    QTest::mouseClick(&popup, Qt::LeftButton, {}, popup.actionGeometry(action).center());
}

namespace {

constexpr int look_interval = 5;  // milliseconds
constexpr int patience = 400;     // looks at a window without a step before it is closed

QString As_text(const QMessageBox& box) {
    return box.windowTitle() + ": " + box.text();
}

}  // namespace

Plan::Plan() {
    Look();
}

Plan::~Plan() = default;

// Each look books the next one before it acts: a step may open a window of its own, whose steps
// are then carried out from inside this one.
void Plan::Look() {
    QTimer::singleShot(look_interval, &guard_, [this] { Look(); });
    QWidget* const modal = QApplication::activeModalWidget();
    const bool handled = std::find(handled_.begin(), handled_.end(), modal) != handled_.end();
    if (!modal || !modal->isVisible() || handled)
        looks_without_step_ = 0;
    else if (!steps_.empty())
        Carry_out_next(*modal);
    else if (++looks_without_step_ >= patience)
        Close_unplanned(*modal);
}

void Plan::Carry_out_next(QWidget& modal) {
    if (const auto* box = qobject_cast<QMessageBox*>(&modal)) messages_.push_back(As_text(*box));
    const auto step = std::move(steps_.front());
    steps_.pop_front();
    handled_.push_back(&modal);
    try {
        step(modal);
    } catch (const std::exception& error) {
        failures_ << error.what();
        QTest::keyClick(&modal, Qt::Key_Escape);
    }
    std::erase(handled_, &modal);
}

void Plan::Close_unplanned(QWidget& modal) {
    looks_without_step_ = 0;
    const auto* box = qobject_cast<QMessageBox*>(&modal);
    failures_ << "nothing was planned for the window " +
                     (box ? As_text(*box) : modal.objectName() + " " + modal.windowTitle());
    QTest::keyClick(&modal, Qt::Key_Escape);
}

void Plan::Finish() {
    if (!steps_.empty())
        failures_ << QString::number(steps_.size()) + " planned windows did not come up";
    if (!failures_.isEmpty()) throw std::runtime_error(failures_.join("; ").toStdString());
}

Plan& Plan::Then(std::function<void(QWidget&)> step) {
    steps_.push_back(std::move(step));
    return *this;
}

Plan& Plan::Then_answer(QMessageBox::StandardButton button) {
    return Then([button](QWidget& modal) {
        auto* const box = qobject_cast<QMessageBox*>(&modal);
        if (!box || !box->button(button))
            throw std::runtime_error("the window that came up is no message box with that button");
        Click(*box->button(button));
    });
}

Plan& Plan::Then_choose(const QString& path) {
    return Then([path](QWidget& modal) {
        if (!qobject_cast<QFileDialog*>(&modal))
            throw std::runtime_error("the window that came up is no file chooser");
        if (path.isEmpty()) {
            QTest::keyClick(&modal, Qt::Key_Escape);
            return;
        }
        auto& name = Control<QLineEdit>(modal, "fileNameEdit");
        name.setText(path);
        QTest::keyClick(&name, Qt::Key_Enter);
    });
}

namespace {

QPixmap Screen_picture() {
    QScreen* const screen = QGuiApplication::primaryScreen();
    if (QGuiApplication::platformName() == "xcb") return screen->grabWindow(0);
    QPixmap picture(screen->size());
    picture.fill(Qt::darkGray);
    QPainter painter(&picture);
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible()) painter.drawPixmap(window->pos(), window->grab());
    return picture;
}

}  // namespace

QPixmap Picture_of(const QList<QWidget*>& windows) {
    QRect part;
    for (const QWidget* window : windows) part |= window->frameGeometry();
    const QPixmap screen = Screen_picture();
    const qreal ratio = screen.devicePixelRatio();  // of the picture's pixels to the windows' own
    return screen.copy(QRectF(part.topLeft() * ratio, part.size() * ratio).toRect());
}

}  // namespace tidemark
