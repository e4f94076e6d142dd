// The view of the map, with real files, mouse and keys.
#include "canvas/map_view_window.h"

#include <QLabel>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include "canvas/refresh_graphics.h"
#include "canvas/test_images.h"
#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "fakes/temporary_folder.h"
#include "model/drawing_modes.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

class MapViewTest : public testing::Test {
  protected:
    MapViewTest() {
        view_.resize(400 + bar_, 300 + bar_);
        view_.show();
        project_.BackgroundFile = folder_ / "map.jpg";
    }

    void Load(const QByteArray& bytes) {
        Write_file(project_.BackgroundFile, bytes);
        view_.Load_Background();
    }

    void Resize(int width, int height) {
        view_.resize(width + bar_, height + bar_);
        EXPECT_EQ(messages_.Shown.size(), 0U);  // not in the middle of it
        QCoreApplication::processEvents();
    }

    // What the viewport shows now.
    QImage Shown() { return viewport_.grab().toImage(); }

    TemporaryFolder folder_;
    Project project_;
    RecordingMessages messages_;
    MapView view_{project_, messages_};
    QWidget& viewport_ = Control<QWidget>(view_, "Picture1");
    MapCanvas& canvas_ = Control<MapCanvas>(view_, "Picture2");
    QScrollBar& across_ = Control<QScrollBar>(view_, "HScroll1");
    QScrollBar& down_ = Control<QScrollBar>(view_, "VScroll1");
    const int bar_ = across_.sizeHint().height();
};

TEST_F(MapViewTest, TheImageComesUpScrollsAndTakesMouseAndKeys) {
    const auto& begin = Control<QLabel>(view_, "BeginLabel");
    EXPECT_TRUE(begin.isVisible() && !viewport_.isVisible() && !across_.isVisible());
    Load(BMP_bytes(1000, 200));
    EXPECT_TRUE(!begin.isVisible() && viewport_.isVisible() && across_.isVisible());
    EXPECT_FALSE(down_.isVisible());
    EXPECT_EQ(across_.geometry(), QRect(0, 200, 400, bar_));  // under the image
    EXPECT_EQ(across_.maximum(), 600);

    Load(BMP_bytes(1000, 900));
    across_.setValue(150);
    const QPointF middle(200, 150);
    QWheelEvent turn(middle, view_.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&turn);  // as one from the window system
    qApp->notify(&canvas_, &turn);
    EXPECT_EQ(canvas_.pos(), QPoint(-150, -down_.value()));
    EXPECT_GT(down_.value(), 0);

    QSignalSpy moved(&view_, &MapView::Picture2_MouseMove);
    QSignalSpy pressed(&view_, &MapView::Picture2_MouseDown);
    QSignalSpy keys(&view_, &MapView::Picture2_KeyDown);
    QTest::mouseMove(&viewport_, {10, 20});
    QTest::mouseMove(&canvas_, QPoint(10, 20) - canvas_.pos());
    EXPECT_EQ(moved.last(), (QVariantList{160.0F, 20.0F + static_cast<float>(down_.value())}));
    Click(canvas_);
    Click(canvas_, Qt::RightButton);
    EXPECT_EQ(pressed, (QList<QVariantList>{{1}, {2}}));
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Period, Qt::Key_E}) Press(canvas_, key);
    EXPECT_EQ(keys, (QList<QVariantList>{{46}, {69}}));
}

TEST_F(MapViewTest, AResizeGoesBackToTheCornerAndDecodesOnlyAChangedFile) {
    Load(JPEG_bytes(1000, 900));
    across_.setValue(150);
    // Other content of the same size and time: were it decoded, it would be refused.
    QFile file(QString::fromStdString(project_.BackgroundFile));
    const QDateTime before = QFileInfo(file).lastModified();
    Write_file(project_.BackgroundFile, QByteArray(file.size(), 'x'));
    file.open(QIODevice::ReadWrite);
    file.setFileTime(before, QFileDevice::FileModificationTime);

    QSignalSpy outdated(&view_, &MapView::Graphics_outdated);
    Resize(500, 400);
    EXPECT_EQ(outdated.count(), 1);
    EXPECT_TRUE(project_.BackgroundLoaded);
    EXPECT_EQ(canvas_.pos(), QPoint(0, 0));
    EXPECT_EQ(across_.value(), 150);
    EXPECT_EQ(viewport_.size(), QSize(500, 400));

    file.setFileTime(before.addSecs(1), QFileDevice::FileModificationTime);
    Resize(450, 400);
    EXPECT_FALSE(project_.BackgroundLoaded);
    view_.resize(400 + bar_, 400 + bar_);
    QCoreApplication::processEvents();  // resizes ask no more
    EXPECT_EQ(messages_.Shown.size(), 1U);
    EXPECT_EQ(viewport_.size(), QSize(500, 400));
}

TEST_F(MapViewTest, AFileThatIsNoImageIsToldAndThePictureStays) {
    Load(BMP_bytes(1000, 900));
    const QImage before = Shown();
    Write_file(folder_ / "strip.bmp", BMP_bytes(1, 40000));
    Write_file(folder_ / "text.JPG", "To whom it may concern");
    for (const std::string& path :
         {folder_ / "strip.bmp", folder_ / "text.JPG", folder_.Path(), std::string()}) {
        messages_.Shown.clear();
        project_.BackgroundFile = path;
        project_.DataChanged = false;
        view_.Load_Background();
        EXPECT_EQ(messages_.Texts(), std::vector{"An error occurred when trying to load " + path});
        EXPECT_FALSE(project_.BackgroundLoaded || project_.DataChanged) << path;
        EXPECT_EQ(Shown(), before) << path;
    }
    project_.BackgroundFile = folder_ / "map.jpg";
    view_.Load_Background();
    EXPECT_TRUE(project_.BackgroundLoaded && project_.DataChanged);
}

// The columns or rows around `at` that have this colour, from the first to the last.
std::pair<int, int> Extent(const QImage& image, QPoint at, QPoint step, QRgb colour) {
    int first = 1, last = 0;
    for (int way = -20; way <= 20; ++way)
        if (image.pixel(at + way * step) == colour) {
            if (first > last) first = way;
            last = way;
        }
    return {first, last};
}

TEST_F(MapViewTest, DrawingsHaveTheirColoursAndWidthsOverTheImage) {
    Load(BMP_bytes(512, 256));
    project_.AreaLeftVTP = project_.AreaTopVTP = 4080;
    project_.ScaleX = project_.ScaleY = 1;
    Add_segment(project_, 0, 80, {{4100, 4180}, {4300, 4180}});
    Add_segment(project_, 5, 80, {{4380, 4110}, {4380, 4280}});
    Add_polygon(project_, 0, 0, LandPolygon, 0, 4);
    Add_cleared_cell(project_, 1, 0, ClearMinorRoads);
    Refresh_Graphics(project_, 2, view_.Surface(), messages_);
    const QImage image = canvas_.grab().toImage();

    constexpr QPoint down(0, 1), right(1, 0);
    using Range = std::pair<int, int>;
    EXPECT_EQ(Extent(image, {100, 100}, down, qRgb(255, 0, 255)), Range(0, 0));
    EXPECT_EQ(Extent(image, {300, 150}, right, qRgb(0, 255, 255)), Range(-1, 0));
    EXPECT_EQ(Extent(image, {255, 200}, right, qRgb(0, 255, 0)), Range(-1, 1));
    EXPECT_EQ(Extent(image, {350, 28}, down, qRgb(128, 128, 128)), Range(-1, 0));
    EXPECT_EQ(Extent(image, {300, 30}, right, qRgb(255, 0, 0)), Range(-6, 5));  // the ring
    EXPECT_EQ(image.pixel(150, 150), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(300, 20), qRgb(0, 0, 255));

    project_.VTPCount = project_.LWMCount = project_.KillCount = 0;
    Refresh_Graphics(project_, -1, view_.Surface(), messages_);
    EXPECT_EQ(canvas_.grab().toImage().pixel(100, 100), qRgb(255, 0, 0));
}

// The pixels that differ. Where a line's edge runs between two pixels, either may be taken.
int Differences(const QImage& a, const QImage& b) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) count += a.pixel(x, y) != b.pixel(x, y);
    return count;
}

TEST_F(MapViewTest, ScrolledPicturesEqualThosePaintedAnew) {
    Load(Encoded(Red_and_blue(1000, 900, QImage::Format_Grayscale8), "jpeg"));
    project_ = Largest_project();
    project_.ScaleX = 1000 / 8192.0F;
    project_.ScaleY = 900 / 8192.0F;
    Refresh_Graphics(project_, 500, view_.Surface(), messages_);
    for (const QPoint at : {QPoint(0, 0), {7, 0}, {7, 300}, {130, 290}, {600, 600}, {599, 0}}) {
        across_.setValue(at.x());
        down_.setValue(at.y());
        const QImage anew = canvas_.grab().copy(QRect(at, viewport_.size())).toImage();
        EXPECT_LT(Differences(Shown(), anew), 20) << at.x() << "," << at.y();
    }
}

}  // namespace
}  // namespace tidemark
