// Work that is not saved: when it is written, who is offered it, and what damage does.
#include "app/recovery.h"

#include "fakes/rules_test.h"

namespace tidemark {

using Moment = RecoverySchedule::Moment;

// Plays changes for 8 s on a clock of its own, looking every 100 ms.
TEST(RecoveryScheduleTest, WorkIsWrittenSoonAfterAChangeNotOftenAndNeverWithoutOne) {
    Expect_cases("app/data/recovery_schedule.txt", [](const Given& given) {
        RecoverySchedule schedule;
        std::uint64_t state = 0;
        bool refuses = false;
        std::string done;
        for (int time = 0; time < 8000; time += 100) {
            const Moment now{std::chrono::milliseconds(time)};
            const std::string at = " " + std::to_string(time);
            for (const std::string& event : given) {
                if (!event.ends_with(at)) continue;
                if (event.starts_with("change")) schedule.Changed(++state, true, now);
                if (event.starts_with("save")) schedule.Changed(++state, false, now);
                if (event.starts_with("refuse")) refuses = true;
                if (event.starts_with("accept")) refuses = false;
            }
            const auto step = schedule.Step_at(now);
            EXPECT_EQ(step.has_value(), schedule.Next() && *schedule.Next() <= now);
            if (!step) continue;
            const bool is_write = step == RecoveryStep::Write;
            done += std::string(done.empty() ? "" : "\n") +
                    (!is_write ? "remove"
                     : refuses ? "refused"
                               : "write") +
                    at;
            is_write ? schedule.Written(!refuses, now) : schedule.Removed();
        }
        return done;
    });
}

class RecoveryTest : public testing::Test {
  protected:
    struct Editor : Recovery {
        Editor(const std::string& folder, Files& files) : Recovery(folder, files) {}
        FileResult Write_at(const std::string& time, const Project& project) {
            return Write("/maps/coast.TDM", project, time, {});
        }
    };

    // Ends without an orderly exit.
    void Lose(const std::string& time, const Project& project) {
        EXPECT_TRUE(Editor(path_, files_).Write_at(time, project));
    }

    // The times of what is found, and the complaints.
    std::string Found() {
        std::string text;
        const LostWorks lost = Editor(path_, files_).Find_lost();
        for (const LostWork& work : lost.Found) text += work.Unsaved.Time + "\n";
        for (const std::string& complaint : lost.Complaints) text += complaint + "\n";
        return text;
    }

    const TemporaryFolder folder_;
    const std::string path_ = folder_ / "state/tidemark";
    const Project work_ = Project_of_all_values();
    DiskFiles files_;
};

TEST_F(RecoveryTest, WorkIsOfferedOnceItsEditorIsGoneToOneEditorAtATimeUntilItIsDone) {
    EXPECT_EQ(Found(), "") << "no folder";
    Lose("later", Project());
    Lose("earlier", work_);
    Editor running(path_, files_), asking(path_, files_);
    EXPECT_TRUE(running.Write_at("now", Project()));
    {
        LostWorks lost = asking.Find_lost();
        ASSERT_EQ(lost.Found.size(), 2U);
        const LostWork& work = lost.Found[0];
        EXPECT_EQ(work.Unsaved.Time + work.Unsaved.ProjectPath, "earlier/maps/coast.TDM");
        EXPECT_TRUE(*work.Unsaved.Work == work_);
        EXPECT_EQ(std::tuple(work.Points(), work.Polygons(), work.ClearedCells()),
                  std::tuple(int{work_.VTPCount}, int{work_.LWMCount}, int{work_.KillCount}));
        EXPECT_EQ(Found(), "") << "nobody else is offered them";
        asking.Take_over(lost.Found[0], 7);
        EXPECT_EQ(asking.Next(), std::nullopt) << "it is written already";
    }
    EXPECT_EQ(Found(), "later\n");
    LostWorks lost = running.Find_lost();
    EXPECT_TRUE(running.Discard(lost.Found.at(0)));
    asking.Changed(8, false, {});
    EXPECT_TRUE(asking.Tend("", work_, "", {})) << "saved";
    EXPECT_TRUE(running.Remove());
    EXPECT_EQ(Found(), "");
    EXPECT_FALSE(files_.Exists(asking.File()) || files_.Exists(running.File()));

    std::filesystem::remove_all(path_);
    EXPECT_TRUE(running.Write_at("anew", work_)) << "the folder was taken away";
    std::filesystem::remove(path_ + "/1.lock");
    std::filesystem::remove(path_ + "/2.lock");
    EXPECT_TRUE(running.Write_at("anew", work_));
    EXPECT_EQ(Found(), "") << "it is living, and so is its lock";
}

TEST_F(RecoveryTest, TheFileIsTheProjectsBytesBehindFourLines) {
    const std::string file = Source_file("fuzz/corpus/recovery_file/all-values.recovery");
    EXPECT_EQ(Recovery_file_bytes("/home/me/coast 1.tdm", "2026-11-22 14:05:09", work_), file);
    EXPECT_TRUE(*Read_recovery_file(file).Unsaved.Work == work_);
    EXPECT_EQ(Read_recovery_file(Recovery_file_bytes("a\nb", "", work_)).Unsaved.ProjectPath, "");
}

TEST_F(RecoveryTest, ADamagedFileIsSetAsideAndANewerOneLeftAlone) {
    Lose("then", work_);
    const std::string file = path_ + "/1.recovery", bytes = File_content(file);
    std::string newer = bytes, other = bytes;
    newer.replace(newer.find(" 1"), 2, " 2");
    other[bytes.size() / 2] ^= 1;
    int kept = 0;
    for (const std::string& damaged : {bytes.substr(0, bytes.size() - 1), other, std::string(),
                                       std::string("Tidemark recovery 1\r\n")}) {
        Write_file(file, damaged);
        const std::string name =
            ++kept == 1 ? "1.damaged" : "1-" + std::to_string(kept) + ".damaged";
        EXPECT_EQ(Found(), file + " is damaged; it is kept as " + name + "\n");
        EXPECT_EQ(File_content(path_ + "/" + name), damaged);
    }
    EXPECT_EQ(Found(), "");
    Write_file(file, newer);
    for ([[maybe_unused]] const int twice : {1, 2})
        EXPECT_EQ(Found(), file + " was written by a newer version of Tidemark\n");
    Write_file(file, bytes);
    EXPECT_EQ(Found(), "then\n");
}

TEST_F(RecoveryTest, WhatCannotBeWrittenSaysWhyAndLeavesWhatWasWritten) {
    Write_file(folder_ / "file", "");
    EXPECT_NE(Editor(folder_ / "file/state", files_).Write_at("now", work_).Reason(), "");
    std::filesystem::create_directories(path_ + "/1.lock");
    Write_file(path_ + "/1.recovery", "of nobody that can be asked");
    Lose("then", work_);
    Project unsavable;
    unsavable.FSFolder = "two\nlines";
    Editor editor(path_, files_);
    EXPECT_EQ(editor.Write_at("now", unsavable).Reason(), "FSFolder cannot be saved");
    EXPECT_TRUE(Found().starts_with("then\n" + path_ + "/1.lock: ")) << Found();
}

}  // namespace tidemark
