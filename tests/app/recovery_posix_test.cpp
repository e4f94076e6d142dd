// Recovery from a real end of the editor's process.
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include "app/recovery.h"
#include "fakes/rules_test.h"
#include "platform/folder.h"

namespace tidemark {

// It is killed at a random moment of a write, which may be the first one.
TEST(KilledEditorTest, TheWorkOfAKilledEditorIsFoundWhole) {
    const TemporaryFolder folder;
    DiskFiles files;
    const auto work = std::make_unique<Project>(Project_of_all_values());
    Recovery next(folder.Path(), files);
    int found = 0;
    for (int round = 0; round < 300 && (round < 30 || found == 0); ++round) {
        const pid_t child = ::fork();
        if (child == 0) {
            Recovery editor(folder.Path(), files);
            for (;;) editor.Write("", *work, "now", {});
        }
        std::this_thread::sleep_for(std::chrono::microseconds(round * 100));
        EXPECT_TRUE(next.Find_lost().Found.empty()) << "it is living";
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        LostWorks lost = next.Find_lost();
        EXPECT_THAT(lost.Complaints, testing::IsEmpty());
        for (LostWork& each : lost.Found) {
            EXPECT_TRUE(*each.Unsaved.Work == *work);
            EXPECT_TRUE(next.Discard(each));
        }
        found += !lost.Found.empty();
    }
    EXPECT_GT(found, 0);
}

TEST(StateFolderTest, ItIsWhereTheDesktopKeepsState) {
    const Variable home("HOME", "/home/me");
    for (const auto& [state, folder] : {std::pair{"", "/home/me/.local/state/tidemark"},
                                        {"state", "/home/me/.local/state/tidemark"},
                                        {"/my state", "/my state/tidemark"}}) {
        const Variable set("XDG_STATE_HOME", state);
        EXPECT_EQ(State_folder(), folder);
    }
    const TemporaryFolder folder;
    EXPECT_TRUE(Make_folder(folder / "a/b"));
    EXPECT_TRUE(Make_folder(folder / "a/b"));
    EXPECT_EQ(std::filesystem::status(folder / "a/b").permissions(),
              std::filesystem::perms::owner_all);
}

}  // namespace tidemark
