#include "walk/driver.h"

#include <algorithm>
#include <stdexcept>

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
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

// A move to where the pointer is already would not be reported.
void Click_at(QWidget& control, QPoint place, Qt::MouseButton button) {
    QTest::mouseMove(&control, place + QPoint(1, 1));
    QTest::mouseMove(&control, place);
    // A real pointer is on its way there; what it tells of that must not come after the click.
    constexpr int arriving = 100;  // milliseconds
    if (QGuiApplication::platformName() != "offscreen") QTest::qWait(arriving);
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
