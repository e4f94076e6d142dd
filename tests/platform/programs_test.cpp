// What reaches a really started program.
#include "platform/programs.h"

#include "fakes/rules_test.h"

namespace tidemark {

TEST(ProgramsTest, ArgumentsArriveAsTheyAreAndTheEndIsSeen) {
    const TemporaryFolder folder;
    const std::string program = folder / "a program; $(touch x).exe", record = folder / "record";
    std::filesystem::copy_file(RECORDER, program);
    const Variable variable("RECORD", record);
    const std::vector<std::string> arguments{
        "two words", R"("it's")", R"(\"\\" \)", "$(touch x)",  "`touch x`", "-rf",
        "*",         "",          R"(C:\a b\)", "a\\b;|&%x% ", "K\xC3\xBC"};
    FakePlatform fake;
    SystemPrograms programs(fake.patience);
    const ProgramStart start = programs.Start({program, arguments, folder.Path()});
    ASSERT_TRUE(start.Program);
    EXPECT_TRUE(Comes_true([&] { return start.Program->End().has_value(); }));
    std::string expected = folder.Path() + "\n";
    for (const std::string& argument : arguments) expected += argument + "\n";
    EXPECT_EQ(File_content(record), expected);
    EXPECT_EQ(folder.Number_of_files(), 2) << "nothing of it ran";
    EXPECT_FALSE(programs.Start({folder / "none.exe", {}, ""}).Program);
    EXPECT_FALSE(programs.Start({program, {}, folder / "no such folder"}).Program);
}

}  // namespace tidemark
