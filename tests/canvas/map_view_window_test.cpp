// The view of the map, with real files, mouse and keys.
#include "canvas/map_view_window.h"

#include "canvas/refresh_graphics.h"
#include "canvas/test_images.h"
#include "fakes/window_test.h"

namespace tidemark {

class MapViewTest : public testing::Test {
  protected:
    MapViewTest() {
        view_.resize(400 + bar_, 300 + bar_);
        view_.show();
    }

    void Load(const QByteArray& bytes) {
        Write_file(folder_ / "map.jpg", bytes.toStdString());
        EXPECT_TRUE(view_.Show_image(folder_ / "map.jpg"));
    }

    // What the viewport shows now.
    QImage Shown() { return viewport_.grab().toImage(); }

    TemporaryFolder folder_;
    Project project_;
    RecordingMessages messages_;
    MapView view_;
    QWidget& viewport_ = Control<QWidget>(view_, "Picture1");
    MapCanvas& canvas_ = Control<MapCanvas>(view_, "Picture2");
    QScrollBar& across_ = Control<QScrollBar>(view_, "HScroll1");
    QScrollBar& down_ = Control<QScrollBar>(view_, "VScroll1");
    const int bar_ = across_.sizeHint().height();
};

TEST_F(MapViewTest, TheImageComesUpScrollsTakesMouseAndKeysAndIsResized) {
    const auto& begin = Control<QLabel>(view_, "BeginLabel");
    EXPECT_TRUE(begin.isVisible() && !viewport_.isVisible() && !across_.isVisible());
    Load(BMP_bytes(1000, 200));
    EXPECT_TRUE(!begin.isVisible() && viewport_.isVisible() && !down_.isVisible());
    Load(BMP_bytes(1000, 900));
    EXPECT_TRUE(across_.maximum() == 600 && down_.isVisible());
    across_.setValue(150);
    const QPointF middle(200, 150);
    QWheelEvent turn(middle, view_.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&turn);  // as one from the window system
    qApp->notify(&canvas_, &turn);
    EXPECT_EQ(canvas_.pos(), QPoint(-150, -down_.value()));
    EXPECT_GT(down_.value(), 0);

    QSignalSpy moved(&canvas_, &MapCanvas::Mouse_moved);
    QSignalSpy pressed(&canvas_, &MapCanvas::Mouse_pressed);
    QSignalSpy keys(&canvas_, &MapCanvas::Key_pressed);
    QTest::mouseMove(&viewport_, {10, 20});
    QTest::mouseMove(&canvas_, QPoint(10, 20) - canvas_.pos());
    EXPECT_EQ(moved.last(), (QVariantList{160.0F, 20.0F + static_cast<float>(down_.value())}));
    Click(canvas_);
    Click(canvas_, Qt::RightButton);
    EXPECT_EQ(pressed, (QList<QVariantList>{{1}, {2}}));
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Period, Qt::Key_E}) Press(canvas_, key);
    EXPECT_EQ(keys, (QList<QVariantList>{{46}, {69}}));

    QSignalSpy resized(&view_, &MapView::Resized);
    view_.resize(500 + bar_, 400 + bar_);
    EXPECT_EQ(resized.count(), 1);
    EXPECT_TRUE(view_.Show_image(view_.Shown_file()));
    EXPECT_EQ(canvas_.pos(), QPoint(0, 0)) << "it goes back to the corner";
    EXPECT_EQ(viewport_.size(), QSize(500, 400));
    view_.Show_nothing();
    EXPECT_TRUE(begin.isVisible() && !viewport_.isVisible() && !down_.isVisible());
}

TEST_F(MapViewTest, AFileThatIsNoImageIsRefusedAndThePictureStays) {
    Load(BMP_bytes(1000, 900));
    const QImage before = Shown();
    Write_file(folder_ / "strip.bmp", BMP_bytes(1, 40000).toStdString());
    Write_file(folder_ / "text.JPG", "To whom it may concern");
    for (const std::string& path :
         {folder_ / "strip.bmp", folder_ / "text.JPG", folder_.Path(), std::string()}) {
        EXPECT_FALSE(view_.Show_image(path)) << path;
        EXPECT_EQ(Shown(), before) << path;
        EXPECT_EQ(view_.Shown_file(), folder_ / "map.jpg");
    }
}

TEST_F(MapViewTest, DrawingsHaveTheirColoursAndWidthsOverTheImage) {
    if (view_.devicePixelRatio() != 1) GTEST_SKIP() << "the pixels are those of a screen at 100 %";
    Load(BMP_bytes(512, 256));
    Place_area(project_, 0, 0, 1, 0);
    Add_segment(project_, 0, 80, {{4100, 4180}, {4300, 4180}});
    Add_segment(project_, 5, 80, {{4380, 4110}, {4380, 4280}});
    Add_polygon(project_, 0, 0, LandPolygon, 0, 4);
    Refresh_Graphics(project_, 2, canvas_.Surface(), messages_);
    const QImage image = canvas_.grab().toImage();
    const QRgb red = qRgb(255, 0, 0), blue = qRgb(0, 0, 255), line = qRgb(255, 0, 255);
    // From left to right around a line, and down across one.
    const auto across = [&](int x, int y) {
        std::array<QRgb, 5> colours;
        for (int i = 0; i < 5; ++i)
            colours[static_cast<std::size_t>(i)] = image.pixel(x - 2 + i, y);
        return colours;
    };
    const QRgb river = qRgb(0, 255, 255), land = qRgb(0, 255, 0);
    EXPECT_EQ(across(300, 150), (std::array{blue, river, river, blue, blue}));
    EXPECT_EQ(across(255, 200), (std::array{red, land, land, land, blue}));
    EXPECT_EQ(across(295, 30), (std::array{blue, red, red, blue, blue})) << "the ring";
    for (const auto& [y, colour] : {std::pair{99, red}, {100, line}, {101, red}})
        EXPECT_EQ(image.pixel(100, y), colour);

    project_.VTPCount = 0;
    Refresh_Graphics(project_, -1, canvas_.Surface(), messages_);
    EXPECT_EQ(canvas_.grab().toImage().pixel(100, 100), red);
}

TEST_F(MapViewTest, ZoomedMapsKeepTheirColoursAndPensTheirWidths) {
    if (view_.devicePixelRatio() != 1) GTEST_SKIP() << "the pixels are those of a screen at 100 %";
    Load(BMP_bytes(1002, 200));  // red up to 501
    Place_area(project_, 0, 0, 3, 0);
    Add_segment(project_, 5, 80, {{4280, 4080}, {4280, 4280}});
    Refresh_Graphics(project_, 0, canvas_.Surface(), messages_);
    // What the row shows from a place of the zoomed map on.
    const auto row = [&](int left, int y) {
        QString colours;
        const QImage image = canvas_.grab({left, y, 5, 1}).toImage();
        for (int x = 0; x < 5; ++x) colours += QColor(image.pixel(x, 0)).name() + " ";
        return colours.replace("#ff0000", "r").replace("#0000ff", "b").replace("#00ffff", "c");
    };
    EXPECT_EQ(row(499, 100), "r r b b b ");
    EXPECT_EQ(row(198, 100), "r c c r r ");
    view_.Zoom_out();
    view_.Zoom_out();
    EXPECT_EQ(row(248, 50), "r r #800080 b b ") << "at 50 %";
    EXPECT_EQ(row(98, 50), "r c c r r ");
    for (int i = 0; i < 4; ++i) view_.Zoom_in();
    EXPECT_EQ(row(1000, 300), "r r b b b ") << "at 200 %";
    EXPECT_EQ(row(398, 300), "r c c r r ");
}

TEST_F(MapViewTest, ScrolledPicturesEqualThosePaintedAnew) {
    Load(Encoded(Red_and_blue(1000, 900, QImage::Format_Grayscale8), "jpeg"));
    project_ = Largest_project();
    RandomNumbers random(1);
    for (int polygon = 1; polygon <= MaxLWMCount; ++polygon)
        for (int point = 1; point <= MaxLWMPointCount; ++point)
            for (const int axis : {0, 1})
                project_.LWMPoint(polygon, point, axis) = random.Number(0, 255);
    const auto redraw = [this] { Refresh_Graphics(project_, 5, canvas_.Surface(), messages_); };
    redraw();
    using V = MapView;
    for (const auto zoom : {&V::Zoom_reset, &V::Zoom_out, &V::Zoom_out, &V::Zoom_out,
                            &V::Zoom_reset, &V::Zoom_in, &V::Zoom_in, &V::Zoom_in}) {
        (view_.*zoom)();
        for (const QPoint at :
             {QPoint(0, 0), {7, 0}, {7, 300}, {60, 290}, {130, 290}, {600, 600}, {599, 0}}) {
            across_.setValue(at.x());
            down_.setValue(at.y());
            const QImage scrolled = Shown();
            redraw();
            EXPECT_EQ(scrolled, Shown()) << view_.Scale().Percent() << at.x() << "," << at.y();
        }
    }
}

}  // namespace tidemark
