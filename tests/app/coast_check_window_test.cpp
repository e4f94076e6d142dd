// The window of the coast check beside the map: what is chosen there, mended, and undone.
#include <QStatusBar>

#include "app/tidemark_main_window.h"
#include "canvas/test_images.h"
#include "fakes/window_test.h"

namespace tidemark {
namespace {

// A map of the cells [ 3, 5 ] to [ 5, 7 ] at one pixel to the unit, with a loose end in [ 3, 6 ]
// and coastlines that skip the cells [ 4, 5 ] and [ 4, 7 ].
class CoastCheckTest : public testing::Test {
  protected:
    void Open(int other_points) {
        Write_file(folder_ / "map.bmp", BMP_bytes(768, 768).toStdString());
        Project p;
        Place_area(p, 3, 5, 5, 7);
        p.BackgroundFile = folder_ / "map.bmp";
        p.BackgroundLoaded = true;
        for (const int y : {5400, 6000})
            Add_segment(p, SandWithWaves, 80, {{4848, y}, {5500, y}, {5615, y}});
        Add_segment(p, SandWithWaves, 80, {{5000, 5616}, {5000, 5700}});
        std::vector<std::pair<int, int>> stream;
        for (int i = 0; i < other_points; ++i) stream.emplace_back(4900 + i % 9, 5500);
        if (other_points > 0) Add_segment(p, Stream, 40, stream);
        Write_file(folder_ / "bay.TDM", Project_bytes(p, "then"));
        window_.show();
        window_.resize(900, 700);
        window_.Open(QString::fromStdString(folder_ / "bay.TDM"));
        QApplication::processEvents();
    }
    void Expect_active(const char* window) {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return QApplication::activeWindow()->objectName() == QLatin1String(window); }));
    }
    void Open_check() {
        QTest::keyClick(&window_, Qt::Key_F8);
        Expect_active("CoastCheck");
    }
    // "line | line", the chosen one in brackets.
    std::string Findings_shown() {
        const auto& list = Of<ListBox>("FindingList");
        std::string shown;
        for (std::size_t i = 0; i < list.Lines().size(); ++i) {
            const std::string line = list.Lines()[i].substr(0, list.Lines()[i].find(']') + 1);
            const bool is_chosen = static_cast<int>(i) == list.Selected();
            shown += (i == 0 ? "" : " | ") + (is_chosen ? "(" + line + ")" : line);
        }
        return shown;
    }
    // By the middle of its west edge, on the screen.
    bool Is_framed(int column, int row) {
        const double zoom = map_.Scale().Zoom();
        const CanvasPoint place{(column - 3) * 256.0, (row - 5) * 256.0 + 128};
        const QRect pixel(qRound(place.X * zoom), qRound(place.Y * zoom), 1, 1);
        return map_.Is_in_view(place, {place.X + 256, place.Y + 128}) &&
               map_.Canvas().grab(pixel).toImage().pixelColor(0, 0) == QColor(224, 0, 0);
    }
    template <class T>
    T& Of(const QString& name) {
        return Control<T>(window_, name);
    }

    TemporaryFolder folder_;
    TidemarkMain window_;
    MapView& map_ = Of<MapView>("MapView");
    Plan plan_;
};

TEST_F(CoastCheckTest, WhatIsChosenIsFramedAndBroughtIntoViewAndMendedAndTheListIsCurrent) {
    Open(0);
    EXPECT_EQ(Of<QWidget>("CoastCheckButton").accessibleName(), "Coast check: 3 errors");
    Click(Of<QWidget>("ZoomInButton"));
    Open_check();
    auto& list = Of<ListBox>("FindingList");
    const auto& mend = Of<QPushButton>("MendButton");
    EXPECT_EQ(Findings_shown(), "[ 3, 6 ] | [ 4, 5 ] | [ 4, 7 ]");
    Press(list, Qt::Key_Down);
    EXPECT_FALSE(mend.isEnabled());
    for (const int row : {5, 7}) {
        Press(list, Qt::Key_Down);
        EXPECT_TRUE(mend.isEnabled());
        EXPECT_TRUE(Is_framed(4, row)) << row;
    }
    EXPECT_FALSE(Is_framed(4, 5));

    Press(list, Qt::Key_Return);
    Expect_active("Status");
    EXPECT_EQ(Of<ListBox>("VTPlistbox").Selected(), 4);
    EXPECT_TRUE(Of<ListBox>("VTPlistbox").hasFocus());

    Open_check();
    Press(list, Qt::Key_Up);
    QTest::keyClick(&list, Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return list.Lines().size() == 2; }));
    EXPECT_EQ(Findings_shown(), "[ 3, 6 ] | ([ 4, 7 ])");
    EXPECT_TRUE(Is_framed(4, 7));
    EXPECT_EQ(window_.Current_project().VTPCount, 12);
    EXPECT_EQ(Of<ListBox>("VTPlistbox").Selected(), 8) << "the same point as before";
    QTest::keyClick(&list, Qt::Key_Z, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_EQ(Findings_shown(), "[ 3, 6 ] | [ 4, 5 ] | ([ 4, 7 ])");

    Choose_line(Of<QComboBox>("KindFilter"), "Loose ends (1)");
    EXPECT_EQ(Findings_shown(), "[ 3, 6 ]");
    Click(Of<QPushButton>("MendAllButton"));
    EXPECT_EQ(Of<QLabel>("FindingSummary").text(), "1 error");
    EXPECT_EQ(Of<QWidget>("CoastCheckButton").accessibleName(), "Coast check: 1 error");
    Press(list, Qt::Key_Down);
    EXPECT_TRUE(Is_framed(3, 6));
    Press(list, Qt::Key_Escape);
    EXPECT_FALSE(Of<QWidget>("CoastCheck").isVisible());
    EXPECT_FALSE(Is_framed(3, 6));
}

TEST_F(CoastCheckTest, ARefusalIsToldInTheWindowAndThatOfAPolygonIsExplainedInTheStatusBar) {
    Open(MaxVTPCount - 9);
    Open_check();
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End}) Press(Of<ListBox>("FindingList"), key);
    const Project before = window_.Current_project();
    Click(Of<QPushButton>("MendButton"));
    EXPECT_EQ(Of<QLabel>("MendResult").text(),
              "Nothing was mended: 4 more points are needed, and 1 is free.");
    EXPECT_TRUE(window_.Current_project() == before);

    Choose_line(Of<QComboBox>("DrawModeCombo"), "Water polygon");
    plan_.Then_answer();
    Click_at(Of<QWidget>("Picture2"), {40, 300});
    plan_.Finish();
    EXPECT_EQ(window_.statusBar()->currentMessage(),
              "[ 3, 6 ] Error: a coastline ends in this cell at point 8, and no polygon can be "
              "built; move the end to the cell's edge or delete it");
}

}  // namespace
}  // namespace tidemark
