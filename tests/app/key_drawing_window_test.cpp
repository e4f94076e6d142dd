// Drawing by keys on the real windows, beside a mouse that does the same.
#include "app/tidemark_main_window.h"
#include "canvas/test_images.h"
#include "fakes/window_test.h"

namespace tidemark {

TEST(KeyDrawingTest, TheKeysDoWhatAMouseWouldDoWhereTheCrossIsAtEveryZoom) {
    const TemporaryFolder folder;
    Project project;
    Place_area(project, 3, 5, 5, 7);
    project.BackgroundLoaded = project.PrefsSet = true;
    project.BackgroundFile = folder / "a.bmp";
    Write_file(project.BackgroundFile, BMP_bytes(768, 768).toStdString());
    Write_file(folder / "a.TDM", Project_bytes(project, "then"));
    TidemarkMain window, by_mouse;
    for (TidemarkMain* const each : {&by_mouse, &window}) {
        each->resize(500, 400);
        each->show();
        each->Open(QString::fromStdString(folder / "a.TDM"));
        QApplication::processEvents();
    }
    auto& canvas = Control<MapCanvas>(window, "Picture2");
    auto& clicked = Control<MapCanvas>(by_mouse, "Picture2");
    const QAction& on = *window.findChild<QAction*>("DrawByKeys");
    const auto texts = [](const QWidget& root) {
        return (Control<QLabel>(root, "StatusLabel1").text() + ", cell " +
                Control<QLabel>(root, "StatusLabel2").text())
            .toStdString();
    };
    const auto key = [&](Qt::Key pressed, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(window.focusWidget(), pressed, held);
    };
    const auto click = [](QWidget& map, QPointF at, Qt::MouseButton button) {
        for (const auto type : {QEvent::MouseMove, QEvent::MouseButtonPress}) {
            QMouseEvent event(type, at, map.mapToGlobal(at), button, button, {});
            qApp->notify(&map, &event);
        }
    };
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F7);
    EXPECT_TRUE(on.isChecked() && canvas.hasFocus());
    RandomNumbers random(3);
    const std::vector<Qt::Key> arrows{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
    for (int i = 0; i < 300 && !testing::Test::HasFailure(); ++i) {
        if (i % 40 == 39)
            for (TidemarkMain* const each : {&window, &by_mouse})
                each->findChild<QAction*>(i < 150 ? "ZoomIn" : "ZoomOut")->trigger();
        const std::vector<Qt::KeyboardModifiers> all{{}, Qt::ShiftModifier, Qt::ControlModifier};
        const Qt::KeyboardModifiers held = random.One_of(all);
        const Qt::Key arrow = random.One_of(arrows);
        key(arrow, held);
        for (const Qt::Key each : {Qt::Key_Left, Qt::Key_Up}) key(each);  // to whole pixels
        EXPECT_EQ(canvas.accessibleDescription().toStdString(), "Cross at " + texts(window));
        const CanvasPoint at = *canvas.Cross();
        const double zoom = Control<MapView>(window, "MapView").Scale().Zoom();
        const QPointF pixel(at.X * zoom, at.Y * zoom);
        EXPECT_TRUE(canvas.visibleRegion().contains(pixel.toPoint())) << "the view follows";
        const bool is_right = random.One_in(4);
        key(Qt::Key_Return, is_right ? Qt::ShiftModifier : Qt::NoModifier);
        click(clicked, pixel, is_right ? Qt::RightButton : Qt::LeftButton);
        EXPECT_EQ(texts(window), texts(by_mouse));
        if (random.One_in(3)) {
            key(Qt::Key_Delete);
            QTest::keyClick(&clicked, Qt::Key_Delete);
        }
        EXPECT_TRUE(window.Current_project() == by_mouse.Current_project()) << i;
    }
    const auto cross = canvas.Cross();
    for (MapCanvas* const each : {&canvas, &clicked}) click(*each, {20, 30}, Qt::LeftButton);
    EXPECT_EQ(texts(window), texts(by_mouse)) << "a mouse acts where it is";
    EXPECT_EQ(canvas.Cross(), cross);
    key(Qt::Key_Escape);
    EXPECT_FALSE(on.isChecked() || canvas.Cross());
    EXPECT_EQ(canvas.accessibleDescription(), "");
}

}  // namespace tidemark
