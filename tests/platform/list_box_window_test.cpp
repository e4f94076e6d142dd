// The list of text lines, by mouse.
#include <QScrollBar>
#include <gtest/gtest.h>

#include "platform/qt_list_box.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

TEST(ListBoxTest, AClickSelectsOneLineEvenRightAfterLinesHaveGone) {
    ListBox list("list", "list");
    list.resize(200, 100);
    list.show();
    list.Show_lines(std::vector<std::string>(100, "line"), 0);
    list.scrollToBottom();
    list.Show_lines(std::vector<std::string>(98, "line"), 0);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {20, 3});
    EXPECT_GT(list.verticalScrollBar()->value(), 0);
    EXPECT_EQ(list.currentIndex().row(), list.Selected());
}

}  // namespace
}  // namespace tidemark
