// Zooming and panning on the real windows: the tool bar and its keys, wheel, fingers and mouse.
#include <QToolButton>

#include "app/tidemark_main_window.h"
#include "canvas/test_images.h"
#include "fakes/window_test.h"

namespace tidemark {
namespace {

class ZoomTest : public testing::Test {
  protected:
    ZoomTest() {
        Place_area(project_, 3, 5, 5, 7);
        project_.BackgroundLoaded = project_.PrefsSet = true;
        window_.resize(500, 400);
        window_.show();
    }

    void Open(const char* map) {
        Write_file(folder_ / map, BMP_bytes(768, 768).toStdString());
        project_.BackgroundFile = folder_ / map;
        Write_file(folder_ / "a.TDM", Project_bytes(project_, "then"));
        window_.Open(QString::fromStdString(folder_ / "a.TDM"));
        QApplication::processEvents();
    }
    void Key(Qt::Key key) { QTest::keyClick(&window_, key, Qt::ControlModifier); }
    QString Level() { return Control<QToolButton>(window_, "ZoomResetButton").text(); }
    QPoint Scrolled() { return -canvas_.pos(); }

    void Wheel(QPointF at, QPoint turned, Qt::KeyboardModifiers held) {
        QWheelEvent turn(at, view_.mapToGlobal(at), {}, turned, Qt::NoButton, held,
                         Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&turn);
        qApp->notify(&view_, &turn);
    }
    void Drag(Qt::MouseButton button, QPoint from, QPoint to) {
        const auto send = [&](QEvent::Type type, QPoint at) {
            const QPoint place = at + Scrolled();
            QMouseEvent event(type, place, canvas_.mapToGlobal(place), button, button, {});
            qApp->notify(&canvas_, &event);
        };
        send(QEvent::MouseMove, from);
        send(QEvent::MouseButtonPress, from);
        send(QEvent::MouseMove, to);
        send(QEvent::MouseButtonRelease, to);
    }

    TemporaryFolder folder_;
    Project project_;
    TidemarkMain window_;
    MapView& view_ = Control<MapView>(window_, "MapView");
    QWidget& canvas_ = Control<QWidget>(window_, "Picture2");
    const Project& now_ = window_.Current_project();
};

TEST_F(ZoomTest, KeysAndToolBarZoomAndTheLevelGoesWithThePicture) {
    const auto enabled = [&] {
        QStringList names;
        for (const char* const name : {"ZoomOut", "ZoomReset", "ZoomIn", "ZoomWhole"})
            if (window_.findChild<QAction*>(name)->isEnabled()) names << name;
        return names.join(" ");
    };
    EXPECT_EQ(enabled(), "");
    Key(Qt::Key_Plus);
    Open("a.bmp");
    EXPECT_EQ(enabled(), "ZoomOut ZoomReset ZoomIn ZoomWhole");
    QStringList levels{Level()};
    for (const Qt::Key key :
         {Qt::Key_Plus, Qt::Key_Equal, Qt::Key_Minus, Qt::Key_0, Qt::Key_Minus}) {
        Key(key);
        levels << Level();
    }
    EXPECT_EQ(levels.join(", "), "100 %, 150 %, 200 %, 150 %, 100 %, 66.7 %");
    EXPECT_EQ(canvas_.size(), QSize(512, 512));
    EXPECT_EQ(view_.Canvas_size(), QSize(768, 768)) << "what the scale is computed from";
    for (int i = 0; i < 20; ++i) Key(Qt::Key_Plus);
    EXPECT_EQ(enabled(), "ZoomOut ZoomReset ZoomWhole");
    EXPECT_EQ(Control<QScrollBar>(window_, "HScroll1").maximum(),
              768 * 16 - Control<QWidget>(window_, "Picture1").width());
    Click(Control<QToolButton>(window_, "ZoomWholeButton"));
    EXPECT_FALSE(Control<QScrollBar>(window_, "HScroll1").isVisible() ||
                 Control<QScrollBar>(window_, "VScroll1").isVisible());
    EXPECT_EQ(canvas_.height(), Control<QWidget>(window_, "Picture1").height());
    Open("b.bmp");
    EXPECT_EQ(Level(), "100 %");
    EXPECT_EQ(Scrolled(), QPoint(0, 0));
}

TEST_F(ZoomTest, ClicksMakeTheSamePointsAtEveryZoom) {
    Open("a.bmp");
    const std::vector<QPoint> pixels{{10, 20}, {33, 41}, {90, 61}, {101, 77}};
    for (const QPoint pixel : pixels) Click_at(canvas_, pixel);
    while (Level() != "400 %") Key(Qt::Key_Plus);
    Drag(Qt::MiddleButton, {0, 0}, {4000, 4000});  // to the corner
    for (const QPoint pixel : pixels) Click_at(canvas_, pixel * 4);
    ASSERT_EQ(now_.VTPCount, 8);
    for (int i = 1; i <= 4; ++i)
        for (const int axis : {0, 1})
            EXPECT_EQ(now_.VTPPoint(i, axis), now_.VTPPoint(i + 4, axis)) << i << axis;
    // Without a move, the pointer is over another place after a zoom.
    const QPoint pointer = pixels.back() * 4 - Scrolled();
    Key(Qt::Key_0);
    Click(canvas_, Qt::MiddleButton);
    EXPECT_NEAR(window_.Current_session().CursorOffsetX, pointer.x() + Scrolled().x(), 1);
}

TEST_F(ZoomTest, ClicksMakeTheSamePolygonsAtEveryZoom) {
    Open("a.bmp");
    const auto draw = [&](int scale) {
        const auto click = [&](QPoint pixel) {
            const QPoint at = pixel * scale - Scrolled();
            Drag(Qt::LeftButton, at, at);
        };
        auto& modes = Control<QComboBox>(window_, "DrawModeCombo");
        Choose_line(modes, "Coastline (sand), no waves");
        for (const QPoint pixel : {QPoint(240, 300), {320, 330}, {450, 310}, {522, 340}})
            click(pixel);
        Choose_line(modes, "Water polygon");
        click({380, 280});
        Choose_line(modes, "Land polygon");
        click({380, 380});
        auto drawn = std::make_unique<Project>(now_);
        for (int i = 0; i < 6; ++i) Click(Control<QToolButton>(window_, "EditUndoButton"));
        return drawn;
    };
    Plan no_boxes;
    const auto natural = draw(1);
    while (Level() != "400 %") Key(Qt::Key_Plus);
    const auto large = draw(4);
    EXPECT_NO_THROW(no_boxes.Finish());
    EXPECT_TRUE(natural->VTPCount == 4 && natural->LWMCount == 2);
    EXPECT_TRUE(*large == *natural);
}

TEST_F(ZoomTest, WheelFingersAndMouseMoveTheMapUnderThePointer) {
    Open("a.bmp");
    const ScreenPoint at{120, 90};
    const auto under = [&] { return view_.Scale().To_canvas(at).X; };
    Wheel({200, 200}, {0, -120}, {});
    EXPECT_TRUE(Scrolled().x() == 0 && Scrolled().y() > 0);
    Wheel({200, 200}, {0, -120}, Qt::ShiftModifier);
    EXPECT_EQ(Scrolled().x(), Scrolled().y());
    const double held = under();
    for (const int turned : {120, 60, 60, 240}) {
        Wheel({at.X, at.Y}, {0, turned}, Qt::ControlModifier);
        EXPECT_NEAR(under(), held, 1);
    }
    EXPECT_EQ(Level(), "400 %");
    for (const auto& [type, value] : {std::pair{Qt::BeginNativeGesture, 0.0},
                                      {Qt::ZoomNativeGesture, -0.3},
                                      {Qt::ZoomNativeGesture, -0.3}}) {
        QNativeGestureEvent pinch(type, QPointingDevice::primaryPointingDevice(), 2, {at.X, at.Y},
                                  {at.X, at.Y}, {at.X, at.Y}, value, {});
        qApp->notify(&canvas_, &pinch);
    }
    EXPECT_EQ(Level(), "200 %");

    const QPoint before = Scrolled();
    Drag(Qt::MiddleButton, {200, 150}, {170, 110});
    EXPECT_EQ(Scrolled(), before + QPoint(30, 40));
    QTest::keyPress(&canvas_, Qt::Key_Space);
    Drag(Qt::LeftButton, {170, 110}, {200, 150});
    EXPECT_EQ(Scrolled(), before);
    EXPECT_EQ(Control<QScrollBar>(window_, "HScroll1").value(), before.x());
    Drag(Qt::LeftButton, {0, 0}, {4000, 4000});
    EXPECT_EQ(Scrolled(), QPoint(0, 0)) << "no further than the map goes";
    EXPECT_EQ(now_.VTPCount, 0);
    QTest::keyRelease(&canvas_, Qt::Key_Space);
    Drag(Qt::LeftButton, {20, 20}, {40, 40});
    EXPECT_EQ(now_.VTPCount, 1);
    QTest::keyPress(&canvas_, Qt::Key_Space);
    QFocusEvent leaves(QEvent::FocusOut);  // for a window that hears of the key's release
    QCoreApplication::sendEvent(&canvas_, &leaves);
    Drag(Qt::LeftButton, {60, 60}, {80, 80});
    EXPECT_EQ(now_.VTPCount, 2);
}

TEST_F(ZoomTest, AResizeKeepsTheMiddleUnlessTheMapIsAtItsOwnSize) {
    Open("a.bmp");
    Control<QScrollBar>(window_, "HScroll1").setValue(100);
    window_.resize(480, 390);
    QApplication::processEvents();
    EXPECT_EQ(Scrolled(), QPoint(0, 0));
    Key(Qt::Key_Plus);
    Control<QScrollBar>(window_, "HScroll1").setValue(330);
    const auto middle = [&] {
        const auto& viewport = Control<QWidget>(window_, "Picture1");
        return view_.Scale().To_canvas({viewport.width() / 2.0, viewport.height() / 2.0});
    };
    const CanvasPoint before = middle();
    for (int width = 479; width > 460; --width) {
        window_.resize(width, 380);
        QApplication::processEvents();
    }
    EXPECT_NEAR(middle().X, before.X, 0.5);
    EXPECT_NEAR(middle().Y, before.Y, 0.5);
    EXPECT_EQ(Level(), "150 %");
}

}  // namespace
}  // namespace tidemark
