// The Edit Point dialog, by mouse and keys.
#include "vtp_edit/edit_point_window.h"

#include "fakes/window_test.h"

namespace tidemark {

// An area of 2 x 3 cells with its top-left cell at column 3, row 5, and a point in it.
class EditPointTest : public testing::Test {
  protected:
    // Opens the dialog for a point at this place, lets the user act and returns whether it was
    // edited.
    bool Edit(int x, int y, const std::function<void()>& user) {
        document.Settle([&](Project& p) {
            Place_area(p, 3, 5, 4, 7);
            p.VTPCount = 0;
            Add_segment(p, 1, 80, {{x, y}});
        });
        Plan plan;
        plan.Then([&](QWidget&) { user(); });
        session.DataChanged = false;
        dialog.Edit(1);
        EXPECT_NO_THROW(plan.Finish());
        return session.DataChanged;
    }

    QLineEdit& Field(const char* name) { return Control<QLineEdit>(dialog, name); }

    Session session;
    Document document{session};
    const Project& project = document.Now();
    RecordingMessages messages;
    EditPoint dialog{document, session, messages};
};

TEST_F(EditPointTest, ShowsThePlaceInTheAreaAndInTheCell) {
    for (const auto& [x, y, shown, cell] :
         {std::tuple{5000, 6000, "5000/6000 152/128", "Current LOD13 cell is [ 3, 7 ]"},
          {4848, 5615, "4848/5615 0/255", "Current LOD13 cell is [ 3, 5 ]"},
          {4847, 5000, "4847/5000 255/152", "Current LOD13 cell is [ 2, 3 ]"},
          {5360, 5360, "5360/5360 0/0", "Current LOD13 cell is [ 5, 5 ]"}}) {
        EXPECT_FALSE(Edit(x, y, [&] {
            EXPECT_EQ(Field("VTPX").text() + "/" + Field("VTPY").text() + " " +
                          Field("LOD13X").text() + "/" + Field("LOD13Y").text(),
                      shown);
            EXPECT_EQ(Control<QLabel>(dialog, "CellLabel").text(), cell);
            EXPECT_EQ(session.CursorInCellX, Field("LOD13X").text().toInt());
            EXPECT_TRUE(Field("VTPX").isEnabled() && !Field("LOD13X").isEnabled());
            Type(Field("VTPX"), "5001");
            Press(dialog, Qt::Key_Escape);
        }));
        EXPECT_EQ(project.VTPPoint(1, 0), x);
    }
}

TEST_F(EditPointTest, TheChosenFormIsCheckedAndStored) {
    Expect_cases("vtp_edit/data/edits.txt", [this](const Given& given) {
        const std::string &form = given[0], x = form + "X", y = form + "Y";
        const bool edited = Edit(5000, 6000, [&] {
            const bool by_VTP = Control<QRadioButton>(dialog, "Option1").isChecked();
            EXPECT_EQ(dialog.focusWidget(), &Field(by_VTP ? "VTPX" : "LOD13X"));
            Click(Control<QRadioButton>(dialog, form == "VTP" ? "Option1" : "Option2"));
            Type(Field(x.c_str()), QString::fromStdString(given[1]));
            Type(Field(y.c_str()), QString::fromStdString(given[2]));
            Press(Field(y.c_str()), Qt::Key_Return);
            if (!messages.Shown.empty()) dialog.close();
        });
        const std::string said = messages.Said();
        EXPECT_EQ(edited, said.empty());
        return Int_text(project.VTPPoint(1, 0)) + ", " + Int_text(project.VTPPoint(1, 1)) +
               (edited ? "" : " ") + said;
    });
}

}  // namespace tidemark
