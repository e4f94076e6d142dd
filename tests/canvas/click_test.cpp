// The left click on the map.
#include "canvas/click.h"

#include "fakes/rules_test.h"

namespace tidemark {

TEST(LeftClickTest, TheItemTextDecidesWhatIsAdded) {
    Expect_cases("canvas/data/clicks.txt", [](const Given& given) {
        Project project;
        Session session;
        session.DrawMode = 5;
        project.ScaleX = 2;
        project.ScaleY = std::stof(given[1]);
        RecordingMessages messages;
        const auto adds = Take_left_click(project, session, given[0], messages);
        EXPECT_TRUE(session.DataChanged);
        const char* const names[] = {" point", " polygon", " cleared cell"};
        const std::string said = messages.Said();
        return Int_text(session.DrawMode) + (said.empty() ? "" : " " + said) +
               (adds ? names[static_cast<int>(*adds)] : "");
    });
}

}  // namespace tidemark
