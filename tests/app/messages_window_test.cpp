// The message boxes and choosers on the screen.
#include <gtest/gtest.h>

#include "platform/qt_choosers.h"
#include "platform/qt_messages.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

TEST(QtMessagesTest, ABoxShowsItsMessageAndReturnsTheAnswer) {
    QWidget owner;
    QtMessages messages(owner);
    Plan plan;
    plan.Then_answer().Then_answer(QMessageBox::Yes).Then([](QWidget& box) {
        Press(box, Qt::Key_Escape);
    });
    Warn(messages, "<b>as it is</b>\nsecond line");
    EXPECT_TRUE(Ask(messages, "Tidemark - Exit Warning", "Exit?"));
    EXPECT_FALSE(Ask(messages, "Tidemark - Exit Warning", "Exit?"));
    EXPECT_NO_THROW(plan.Finish());
    EXPECT_EQ(plan.Messages().front(), "Tidemark - Warning: <b>as it is</b>\nsecond line");
}

TEST(QtChoosersTest, AChosenPathIsReturnedWholeAndACancelledOneNotAtAll) {
    QWidget owner;
    QtChoosers choosers(owner);
    const FileChooser chooser{
        "SaveProject", "Tidemark - Save Project As", "*.TDM", "TDM", "", "/tmp", true};
    Plan plan;
    plan.Then_choose("/tmp/no such project").Then_choose("");
    EXPECT_EQ(choosers.Choose(chooser), "/tmp/no such project.TDM");
    EXPECT_EQ(choosers.Choose(chooser), std::nullopt);
    EXPECT_NO_THROW(plan.Finish());
}

}  // namespace
}  // namespace tidemark
