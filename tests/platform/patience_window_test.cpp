// Waiting with windows on the screen: what comes through, and what comes later.

#include <QElapsedTimer>
#include <QMenuBar>
#include <QTimer>

#include "fakes/window_test.h"
#include "platform/qt_controls.h"
#include "platform/qt_patience.h"

namespace tidemark {

class ClosingWindow : public QMainWindow {
  public:
    int Closed = 0;

  protected:
    void closeEvent(QCloseEvent*) override { ++Closed; }
};

class PatienceTest : public testing::Test {
  protected:
    PatienceTest() {
        auto* const button = Named<QPushButton>("Other", "Other");
        window_.setCentralWidget(button);
        QObject::connect(button, &QPushButton::clicked, [this] { ++other_commands_; });
        auto* const entry = window_.menuBar()->addMenu("&Menu")->addAction("Command");
        entry->setShortcut(Qt::CTRL | Qt::Key_S);
        QObject::connect(entry, &QAction::triggered, [this] { ++other_commands_; });
        window_.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
        button->setFocus();
    }

    // Whether the wait of a second goes on to its end while the user does this.
    bool Waits_through(const std::function<void()>& doing) {
        QTimer::singleShot(20, &window_, doing);
        return patience_.Wait("Waiting for it", 1000);
    }

    ClosingWindow window_;
    QtPatience patience_{*window_.statusBar()};
    int other_commands_ = 0;
};

TEST_F(PatienceTest, OnlyCancelAndEscComeThrough) {
    auto& other = Control<QPushButton>(window_, "Other");
    const int height = window_.statusBar()->height();
    const auto click_cancel = [&] { Click(Control<QPushButton>(window_, "CancelButton")); };
    const auto press_escape = [&] { Press(other, Qt::Key_Escape); };
    EXPECT_TRUE(Waits_through([&] {
        Click(other);
        Press(other, Qt::Key_Space);
        QTest::keyClick(&window_, Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(window_.statusBar()->currentMessage(), "Waiting for it");
        EXPECT_EQ(window_.statusBar()->height(), height) << "or the map would be laid out anew";
    }));
    EXPECT_EQ(other_commands_, 0);
    for (const std::function<void()>& cancel :
         {std::function<void()>(click_cancel), {press_escape}}) {
        QElapsedTimer time;
        time.start();
        EXPECT_FALSE(Waits_through(cancel));
        EXPECT_LT(time.elapsed(), 900) << "at once";
        EXPECT_FALSE(patience_.Wait("Waiting for it", 1));
        patience_.Over("Given up");
        EXPECT_EQ(window_.statusBar()->currentMessage(), "Given up");
        EXPECT_FALSE(Control<QPushButton>(window_, "CancelButton").isVisible());
    }
    QTest::keyClick(&window_, Qt::Key_S, Qt::ControlModifier);
    Click(other);
    EXPECT_EQ(other_commands_, 2);
}

TEST_F(PatienceTest, AWindowIsClosedAfterwards) {
    EXPECT_TRUE(Waits_through([&] { window_.close(); }));
    EXPECT_EQ(window_.Closed, 0);
    patience_.Over("");
    EXPECT_TRUE(QTest::qWaitFor([&] { return window_.Closed == 1; }));
}

}  // namespace tidemark
