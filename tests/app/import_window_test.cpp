// Importing a coast file with the real windows.
#include <QDropEvent>
#include <QMimeData>
#include <QProgressBar>
#include <QStatusBar>
#include <QTimer>

#include "app/tidemark_main_window.h"
#include "canvas/test_images.h"
#include "coast/check.h"
#include "fakes/random_numbers.h"
#include "fakes/window_test.h"

namespace tidemark {
namespace {

// A coast from the west to the east end of the map, through its middle row; land is in the north.
constexpr const char* Coast =
    R"({"type": "LineString", "coordinates": [[0.03, -0.0714], [0.06, -0.07], [0.1, -0.0714]]})";

class ImportTest : public testing::Test {
  protected:
    ImportTest() {
        Write_file(folder_ / "map.bmp", BMP_bytes(768, 768).toStdString());
        Write_file(folder_ / "coast.geojson", Coast);
        Write_file(folder_ / "walk.kml",
                   "<kml><Track/><LineString><coordinates>0.03,-0.07 0.1,-0.07</coordinates>"
                   "</LineString></kml>");
        Write_file(folder_ / "broken.json", "{\"type\": \"LineString\"");
        Project p;
        Place_area(p, 3, 5, 5, 7);
        p.BGLOD8X = 384;  // the north-west corner of its LOD8 cell is at 0, 0 degrees
        p.BGLOD8Y = 256;
        p.BackgroundFile = folder_ / "map.bmp";
        p.BackgroundLoaded = true;
        p.ProjectFile = folder_ / "bay.TDM";
        Write_file(p.ProjectFile, Project_bytes(p, "then"));
        window_.show();
    }
    void TearDown() override { EXPECT_NO_THROW(plan_.Finish()); }

    void Open() { window_.Open(Path("bay.TDM")); }
    QString Path(const char* name) { return QString::fromStdString(folder_ / name); }
    void Drop(const char* name, QDialog* at_once = nullptr) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(Path(name))});
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window_, &enter);
        QCoreApplication::sendEvent(&window_, &drop);
        // What comes up at once, before the dropped file's turn.
        if (at_once) at_once->exec();
        QCoreApplication::processEvents();
    }
    QImage Map() { return Control<QWidget>(window_, "MapView").grab().toImage(); }
    QColor Colour_at(QPoint place) {
        const QImage map = Map();
        return map.pixelColor(place * map.devicePixelRatio());
    }
    std::string Said() { return window_.statusBar()->currentMessage().toStdString(); }
    static std::string Counted(const QWidget& dialog) {
        return Control<QLabel>(dialog, "ImportCountLabel").text().toStdString();
    }
    static bool Is_ready(const QWidget& dialog) {
        const auto& ok = Control<QPushButton>(dialog, "OkButton");
        return QTest::qWaitFor([&] { return ok.isEnabled(); }, 2000);
    }

    TemporaryFolder folder_;
    TidemarkMain window_;
    Plan plan_;
};

TEST_F(ImportTest, ADroppedCoastIsCountedShownImportedAndUndone) {
    Drop("coast.geojson");
    EXPECT_EQ(Said(), NoMapAreaText);
    Open();
    const Project before = window_.Current_project();
    const QImage map = Map();
    plan_
        .Then([&](QWidget& dialog) {
            EXPECT_TRUE(Is_ready(dialog)) << Counted(dialog);
            EXPECT_FALSE(Map() == map) << "the preview is missing";
            EXPECT_FALSE(window_.frameGeometry().intersected(dialog.frameGeometry()).width() >
                         window_.width() / 2);
            dialog.close();
        })
        .Then([&](QWidget& dialog) {
            EXPECT_TRUE(Is_ready(dialog));
            const std::string lines = Counted(dialog);
            EXPECT_TRUE(lines.starts_with("1 line, ")) << lines;
            Click(Control<QCheckBox>(dialog, "FillWaterCheck"));
            EXPECT_EQ(Counted(dialog), lines + "\n3 cells; 3 polygons needed, 200 free");
            const auto tint = [&] { return Colour_at({100, 450}); };
            const QColor water = tint();
            Click(Control<QCheckBox>(dialog, "ReverseCheck"));
            EXPECT_NE(tint(), water) << "the water is on the other side now";
            Click(Control<QCheckBox>(dialog, "ReverseCheck"));
            EXPECT_EQ(tint(), water);
            auto& modes = Control<QComboBox>(dialog, "ImportModeCombo");
            Choose_line(modes, "Road (dirt)");
            EXPECT_EQ(Counted(dialog), lines) << "roads bound no polygons";
            Choose_line(modes, "Coastline (river)");
            Type(Control<QLineEdit>(dialog, "ToleranceText"), "0");
            EXPECT_EQ(Counted(dialog), WrongToleranceText);
            EXPECT_FALSE(Control<QPushButton>(dialog, "OkButton").isEnabled());
            Type(Control<QLineEdit>(dialog, "ToleranceText"), "9");
            Type(Control<QLineEdit>(dialog, "ImportWidthText"), "301");
            Click(Control<QPushButton>(dialog, "OkButton"));  // asks for another width
            EXPECT_EQ(Control<QLineEdit>(dialog, "ImportWidthText").text(), "80");
            Click(Control<QPushButton>(dialog, "OkButton"));
        })
        .Then_answer();
    Drop("coast.geojson");
    EXPECT_TRUE(Map() == map) << "the preview is gone with the dialog";
    EXPECT_TRUE(window_.Current_project() == before);
    Drop("coast.geojson");
    const Project& now = window_.Current_project();
    EXPECT_GE(now.VTPCount, 4);
    EXPECT_EQ(now.VTPMode(1), RiverCoast);
    EXPECT_EQ(now.LWMCount, 3);
    EXPECT_EQ(now.LWMType(1), WaterPolygon);
    EXPECT_TRUE(Said().ends_with(" points, 3 polygons.")) << Said();
    EXPECT_TRUE(window_.Current_session().DataChanged);
    window_.findChild<QAction*>("EditUndo")->trigger();
    EXPECT_TRUE(window_.Current_project() == before);
}

TEST_F(ImportTest, ADropThatABoxOvertakesIsForgotten) {
    Open();
    QMessageBox box(&window_);
    plan_.Then([](QWidget& modal) {
        QTest::qWait(20);
        EXPECT_EQ(QApplication::activeModalWidget(), &modal);
        modal.close();
    });
    Drop("coast.geojson", &box);
}

TEST_F(ImportTest, AFileThatIsRefusedIsNamedInTheDialog) {
    Open();
    plan_
        .Then([&](QWidget& dialog) {
            Click(Control<QPushButton>(dialog, "CoastFileButton"));
            EXPECT_TRUE(Counted(dialog).starts_with("broken.json, line 1")) << Counted(dialog);
            EXPECT_FALSE(Control<QPushButton>(dialog, "OkButton").isEnabled());
            dialog.close();
        })
        .Then_choose(Path("broken.json"));
    window_.findChild<QAction*>("ImportCoast")->trigger();
    EXPECT_TRUE(plan_.Messages().empty());
}

// Of errors only those that the import would add: the project has loose ends already.
TEST_F(ImportTest, TheListHasRemarksOnTheFileAndOnlyErrorsOfTheImport) {
    Open();
    Project with_error = window_.Current_project();
    Add_segment(with_error, 1, 40, {{5000, 5500}, {5300, 5500}});
    Write_file(with_error.ProjectFile, Project_bytes(with_error, "then"));
    Open();
    EXPECT_GT(Count_errors(Check_coast(window_.Current_project())), 0);
    plan_.Then([&](QWidget& dialog) {
        EXPECT_TRUE(Is_ready(dialog)) << Counted(dialog);
        const auto& list = Control<QListWidget>(dialog, "ImportRemarkList");
        EXPECT_EQ(list.count(), 1);
        EXPECT_TRUE(list.item(0)->text().startsWith("walk.kml: Remark: its gx:Track in line 1 is"));
        dialog.close();
    });
    Drop("walk.kml");
}

// Reading that goes on until it is cancelled.
TEST_F(ImportTest, ReadingIsShownAndEndsWithTheButtonAndWithTheDialog) {
    Open();
    FakePlatform fake;
    int readings = 0;
    ImportCoast import(fake.platform, &window_, [&](auto&&, auto&&, const CoastProgress& progress) {
        ++readings;
        while (progress(0.5)) QTest::qSleep(1);
        CoastFileReading cancelled;
        cancelled.Cancelled = true;
        return cancelled;
    });
    const auto while_reading = [&](const std::function<void()>& act) {
        QTimer::singleShot(300, &import, [&, act] {
            EXPECT_EQ(Control<QProgressBar>(import, "ReadingProgress").value(), 50);
            act();
        });
    };
    while_reading([&] {
        Click(Control<QPushButton>(import, "StopReadingButton"));
        QTimer::singleShot(100, &import, [&] {
            EXPECT_EQ(Counted(import), "The reading was stopped.");
            EXPECT_FALSE(Control<QProgressBar>(import, "ReadingProgress").isVisible());
            import.close();
        });
    });
    EXPECT_FALSE(import.Ask(window_.Current_project(), "a.gpx").has_value());
    while_reading([&] { import.close(); });
    EXPECT_FALSE(import.Ask(window_.Current_project(), "a.gpx").has_value());
    EXPECT_EQ(readings, 2);
}

// A scribble that touches itself everywhere.
TEST_F(ImportTest, LayingThatGoesOnAndOnEndsWithTheButton) {
    Open();
    FakePlatform fake;
    ImportCoast import(fake.platform, &window_, [](auto&&, std::span<const GeoBox> box, auto&&) {
        RandomNumbers random(7);
        CoastFileReading reading;
        CoastLine& line = reading.Lines.emplace_back().emplace_back();
        for (int i = 0; i < 2000; ++i)
            line.Positions.push_back({box[0].West + random.Number(1000, 2000) / 1e5,
                                      box[0].North - random.Number(1000, 2000) / 1e5});
        return reading;
    });
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &import, [&] {
        auto& stop = Control<QPushButton>(import, "StopReadingButton");
        if (stop.isVisible()) return Click(stop);
        if (Counted(import) != "The laying was stopped. Another tolerance begins it anew.") return;
        EXPECT_FALSE(Is_ready(import));
        EXPECT_TRUE(Control<QPushButton>(import, "CoastFileButton").isEnabled());
        watch.stop();
        import.close();
    });
    watch.start(50);
    EXPECT_FALSE(import.Ask(window_.Current_project(), "a.gpx").has_value());
    EXPECT_FALSE(watch.isActive());
}

}  // namespace
}  // namespace tidemark
