#include "walk/keys_only.h"

#include <memory>

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "walk/check.h"
#include "walk/driver.h"

namespace tidemark {

namespace {

// Something that is done at a place of the canvas, first by keys and then with the mouse.
struct Act {
    const char* Mode;  // that is chosen before; null: the one that is
    int X, Y;          // VTP units, even: at 400 % those that a mouse comes to
    Qt::MouseButton Button;
    int InCell = -1;  // where Edit Point then puts the point, in cell units from the west
};

constexpr int west = FirstVTP + 10 * CellSizeVTP, north = FirstVTP + 18 * CellSizeVTP;
constexpr const char* coast = "Coastline (sand), no waves";
constexpr Act acts[] = {
    {coast, west + 6, north + 100, Qt::LeftButton},
    {nullptr, west + 128, north + 60, Qt::LeftButton},
    {nullptr, west + 356, north + 140, Qt::LeftButton},
    {nullptr, west + 600, north + 110, Qt::LeftButton},
    {nullptr, west + 760, north + 90, Qt::LeftButton},
    {nullptr, west + 10, north + 96, Qt::RightButton, 0},
    {nullptr, west + 750, north + 96, Qt::RightButton, 255},
    {"Water polygon", west + 128, north + 30, Qt::LeftButton},
    {nullptr, west + 384, north + 30, Qt::LeftButton},
    {"Clear existing coastlines in LOD13 cell", west + 384, north + 200, Qt::LeftButton},
};

class KeysOnly {
  public:
    explicit KeysOnly(TidemarkMain& window) : window_(window) {}

    // Returns the pixel of the canvas at which it was done.
    QPoint Do_by_keys(const Act& act);
    void Do_by_mouse(const Act& act, QPoint pixel);
    void Save();
    void Take_back(const Project& before);
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        Come_to(*at_);
        QTest::keyClick(at_->windowHandle(), key, held);
    }

    // A window manager may have turned to the other window, and takes its time.
    void Come_to(QWidget& window) {
        if (QApplication::activeWindow() != &window) window.activateWindow();
        Wait_for(window);
    }

  private:
    void Go_to_window(QWidget& window);
    // To QTest the main window is active when the panel is, which belongs to it.
    static void Wait_for(const QWidget& window) {
        Check(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }),
              window.objectName() + " did not become active");
    }
    void Choose_mode(const QString& mode);
    void Step_to(int x, int y);
    void Edit_point(int in_cell);

    TidemarkMain& window_;
    QWidget* at_ = &window_;  // what has the keyboard
    Status& panel_ = Control<Status>(window_, "Status");
    MapView& map_ = Control<MapView>(window_, "MapView");
    MapCanvas& canvas_ = Control<MapCanvas>(window_, "Picture2");
    const Session& session_ = window_.Current_session();
};

void KeysOnly::Go_to_window(QWidget& window) {
    Key(Qt::Key_F6);
    Wait_for(window);
    at_ = &window;
}

void KeysOnly::Choose_mode(const QString& mode) {
    Go_to_window(panel_);
    auto& modes = Control<QComboBox>(panel_, "DrawModeCombo");
    QTest::qWait(50);  // for the keyboard to follow
    for (int i = 0; i < 30 && !modes.hasFocus(); ++i) Key(Qt::Key_Tab);
    Key(Qt::Key_Home);
    for (int i = modes.findText(mode); i > 0; --i) Key(Qt::Key_Down);
    Check(modes.currentText() == mode, "the drawing mode was not chosen");
    Go_to_window(window_);
}

// Cells first, then units, and then to a whole pixel.
void KeysOnly::Step_to(int x, int y) {
    const auto go = [this](const Int16& at, int to, Qt::Key less, Qt::Key more) {
        for (int steps = 0; at != to && steps < 600; ++steps) {
            const bool is_far = std::abs(to - at) >= CellSizeVTP;
            Key(to < at ? less : more, is_far ? Qt::ControlModifier : Qt::ShiftModifier);
        }
        for (const Qt::Key key : {less, more}) Key(key);
        Check(at == to, "the cross did not come to its place");
    };
    go(session_.CursorVTPX, x, Qt::Key_Left, Qt::Key_Right);
    go(session_.CursorVTPY, y, Qt::Key_Up, Qt::Key_Down);
}

void KeysOnly::Edit_point(int in_cell) {
    Plan plan;
    plan.Then([in_cell](QWidget& dialog) {
        auto& in_cell_units = Control<QRadioButton>(dialog, "Option2");
        in_cell_units.setFocus();
        Press(in_cell_units, Qt::Key_Space);
        Type(Control<QLineEdit>(dialog, "LOD13X"), QString::number(in_cell));
        Press(dialog, Qt::Key_Enter);
    });
    Press(canvas_, Qt::Key_E);
    plan.Finish();
    Come_to(window_);
}

QPoint KeysOnly::Do_by_keys(const Act& act) {
    if (act.Mode) Choose_mode(act.Mode);
    Step_to(act.X, act.Y);
    Key(Qt::Key_Return, act.Button == Qt::RightButton ? Qt::ShiftModifier : Qt::NoModifier);
    if (act.InCell >= 0) Edit_point(act.InCell);
    const double zoom = map_.Scale().Zoom();
    return {qRound(canvas_.Cross()->X * zoom), qRound(canvas_.Cross()->Y * zoom)};
}

void KeysOnly::Do_by_mouse(const Act& act, QPoint pixel) {
    if (act.Mode) Choose_line(Control<QComboBox>(panel_, "DrawModeCombo"), act.Mode);
    map_.Reveal({pixel.x() / map_.Scale().Zoom(), pixel.y() / map_.Scale().Zoom()});
    Click_at(canvas_, pixel, act.Button);
    if (act.InCell >= 0) Edit_point(act.InCell);
}

void KeysOnly::Save() {
    Plan plan;
    for (const auto button : {QMessageBox::Yes, QMessageBox::Ok})
        plan.Then([button](QWidget& box) {
            QAbstractButton& answer = *static_cast<QMessageBox&>(box).button(button);
            answer.setFocus();
            Press(answer, Qt::Key_Space);
        });
    Key(Qt::Key_S, Qt::ControlModifier);
    plan.Finish();
    Check(!session_.DataChanged, "the drawing was not saved");
    Come_to(window_);
}

void KeysOnly::Take_back(const Project& before) {
    const Project& now = window_.Current_project();
    for (int i = 0; i < 50 && now != before; ++i) Key(Qt::Key_Z, Qt::ControlModifier);
    Check(now == before, "the drawing was not taken back");
}

}  // namespace

void Draw_with_keys_only(TidemarkMain& window, const std::function<void()>& is_drawn) {
    KeysOnly user(window);
    const Project& now = window.Current_project();
    const auto before = std::make_unique<Project>(now);
    user.Come_to(window);
    Park_mouse();
    for (int i = 0; i < 4; ++i) user.Key(Qt::Key_Plus, Qt::ControlModifier);
    user.Key(Qt::Key_F7);
    std::vector<QPoint> pixels;
    for (const Act& act : acts) pixels.push_back(user.Do_by_keys(act));
    Check(now.LWMCount == before->LWMCount + 2 && now.KillCount == before->KillCount + 1,
          "something is missing");
    user.Save();
    is_drawn();
    const auto by_keys = std::make_unique<Project>(now);
    user.Key(Qt::Key_Escape);
    user.Take_back(*before);
    for (std::size_t i = 0; i < pixels.size(); ++i) user.Do_by_mouse(acts[i], pixels[i]);
    Check(now == *by_keys, "the mouse has made another project than the keys");
    Control<MapView>(window, "MapView").Zoom_reset();
}

}  // namespace tidemark
