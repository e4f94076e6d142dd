// Every window by keyboard and by screen reader, and where the windows come up.
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

#include "app/tidemark_main_window.h"
#include "fakes/sample_projects.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

bool Takes_tab(const QWidget& control) {
    return control.isVisible() && control.isEnabled() && (control.focusPolicy() & Qt::TabFocus);
}

QRect Place_of(const QWidget& control) {
    const QRect seen = control.visibleRegion().boundingRect();
    return {control.mapToGlobal(seen.topLeft()), seen.size()};
}

// Down, or to the right: a control that Tab comes to is not above the last one, nor left of it in
// one row.
void Expect_comfort(QWidget& window) {
    const QWidget* last = nullptr;
    for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
        if (at->window() != &window || !Takes_tab(*at)) continue;
        const std::string name = at->objectName().toStdString();
        EXPECT_FALSE(QAccessible::queryAccessibleInterface(at)->text(QAccessible::Name).isEmpty())
            << name << " has no accessible name";
        if (last) {
            const QRect from = Place_of(*last), to = Place_of(*at);
            EXPECT_TRUE(to.top() > from.bottom() || to.left() > from.right())
                << "from " << last->objectName().toStdString() << " up to " << name;
        }
        last = at;
    }
    EXPECT_TRUE(last) << window.objectName().toStdString();
}

TEST(ComfortTest, TabFollowsTheEyeAndEveryControlHasAName) {
    TidemarkMain window;
    window.show();
    window.Open(TIDEMARK_SOURCE_DIR "/sample/golden-gate.TDM");
    Expect_comfort(window);
    Expect_comfort(Control<Status>(window, "Status"));
    const auto expect_comfort_of_a_dialog = [](const std::function<void()>& open) {
        Plan plan;
        plan.Then([](QWidget& dialog) {
            Expect_comfort(dialog);
            dialog.close();
        });
        open();
        EXPECT_NO_THROW(plan.Finish());
    };
    for (const auto& [menu, entry] : {std::pair{"Output", "OutputPreferences"},
                                      {"HelpMenu", "CellCalc"},
                                      {"BackgroundMenu", "BackgroundProperties"}})
        expect_comfort_of_a_dialog([&] { Choose_entry(window, menu, entry); });
    auto& map = Control<QWidget>(window, "Picture2");
    Click_at(map, {50, 50}, Qt::RightButton);
    expect_comfort_of_a_dialog([&] { Press(map, Qt::Key_E); });
}

TEST(ComfortTest, ThePanelIsAWindowWhosePositionsAreReadAsTheyChange) {
    TidemarkMain window;
    window.show();
    window.Open(TIDEMARK_SOURCE_DIR "/sample/golden-gate.TDM");
    const auto said = [&](const char* name) {
        QAccessibleInterface* const control =
            QAccessible::queryAccessibleInterface(&Control<QWidget>(window, name));
        return std::pair(control->role(), control->text(QAccessible::Name).toStdString());
    };
    EXPECT_EQ(said("StatusLabel1").second, "LOD8 cell co-ordinates (VTP): --");
    EXPECT_EQ(said("Status"),
              std::pair(QAccessible::Window, std::string("Tidemark - Status Panel")));
    QTest::mouseMove(&Control<QWidget>(window, "Picture2"), {40, 40});
    const auto shown = [&](const char* name) {
        return Control<QLabel>(window, name).text().toStdString();
    };
    EXPECT_NE(shown("StatusLabel2"), "--");
    EXPECT_EQ(said("StatusLabel1").second,
              "LOD8 cell co-ordinates (VTP): " + shown("StatusLabel1"));
    EXPECT_EQ(said("StatusLabel2").second, "LOD13 cell co-ordinates: " + shown("StatusLabel2"));
}

TEST(ComfortTest, F6GoesFromWindowToWindow) {
    TidemarkMain window;
    window.show();
    auto& panel = Control<Status>(window, "Status");
    panel.hide();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (QWidget* const next : {static_cast<QWidget*>(&panel), static_cast<QWidget*>(&window)}) {
        Press(*QApplication::activeWindow(), Qt::Key_F6);
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == next; }));
    }
}

}  // namespace
}  // namespace tidemark
