// Recovery from a real end of the editor's process.
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include "app/recovery.h"
#include "fakes/content_mark.h"
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

#ifdef BUSY_EDITOR
// What a killed editor has noted of its steps, and what is found of it.
class BusyEditor {
  public:
    explicit BusyEditor(int seed) : process_(::fork()) {
        if (process_ != 0) return;
        // Whoever runs the tests in the background may ignore some of them.
        for (const int asking : {SIGTERM, SIGHUP, SIGINT, SIGQUIT}) ::signal(asking, SIG_DFL);
        const std::string number = std::to_string(seed);
        ::execl(BUSY_EDITOR, "busy_editor", folder_.Path().c_str(), number.c_str(), nullptr);
        ::_exit(127);
    }

    // Ends the editor and gives the milliseconds of work that are lost: from the first step that is
    // not in what the next start finds to the end.
    long Lost_by(int signal) {
        using namespace std::chrono;
        const auto now = steady_clock::now().time_since_epoch();
        const long end = duration_cast<milliseconds>(now).count();
        ::kill(process_, signal);
        ::waitpid(process_, nullptr, 0);
        std::istringstream log(File_content(folder_ / "log"));
        std::vector<std::pair<long, std::string>> steps;
        for (std::pair<long, std::string> step; log >> step.first >> step.second;)
            steps.push_back(step);
        if (steps.empty()) return 0;  // it had not come to anything yet

        DiskFiles files;
        const LostWorks lost = Recovery(folder_ / "state", files).Find_lost();
        EXPECT_THAT(lost.Complaints, testing::IsEmpty());
        // Nothing to be found is the project as it was opened.
        const std::string found =
            lost.Found.empty() ? steps[0].second : Content_mark(*lost.Found[0].Unsaved.Work);
        auto kept = std::ranges::find(steps.rbegin(), steps.rend(), found,
                                      &std::pair<long, std::string>::second);
        EXPECT_NE(kept, steps.rend()) << "no state that the project was ever in";
        return kept == steps.rbegin() || kept == steps.rend() ? 0 : end - (kept - 1)->first;
    }

  private:
    const TemporaryFolder folder_;
    const pid_t process_;
};

// TIDEMARK_KILLS in the environment asks for more than the few of the tests.
TEST(KilledEditorTest, AtMostTheLastTwoSecondsOfWorkAreLostAndNoneToASignalThatAsksToEnd) {
    const char* const asked = std::getenv("TIDEMARK_KILLS");
    const int kills = asked ? std::atoi(asked) : 4;
    constexpr long most = 2000, latency = 300;  // ms; writing takes a moment itself
    RandomNumbers random(1);
    long worst = 0;
    for (int round = 0; round < kills; ++round) {
        BusyEditor editor(round);
        std::this_thread::sleep_for(std::chrono::milliseconds(random.Number(100, 6000)));
        const bool is_asked = round % 4 == 3;
        const int signals[] = {SIGTERM, SIGHUP, SIGINT, SIGQUIT};
        const long lost = editor.Lost_by(is_asked ? signals[round / 4 % 4] : SIGKILL);
        EXPECT_LE(lost, is_asked ? 0 : most + latency) << "round " << round;
        worst = std::max(worst, lost);
    }
    RecordProperty("worst", static_cast<int>(worst));
    if (asked) std::cout << kills << " kills, at worst " << worst << " ms of work lost\n";
}
#endif

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
