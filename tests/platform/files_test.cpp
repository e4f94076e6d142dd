// The machine's files: replaced whole, read only when they are files, failures reported in words.
#include "platform/files.h"

#include "fakes/rules_test.h"

namespace tidemark {

TEST(FilesTest, FilesAreReplacedFoundMeasuredReadAndRemovedOrItIsSaidWhyNot) {
    const TemporaryFolder folder;
    const std::string path = folder / "K\xC3\xBCste 1.TDM", none = folder / "none/x.TDM";
    DiskFiles files;
    for (const char* content : {"first", "12345"}) ASSERT_TRUE(files.Replace(path, content));
    EXPECT_EQ(folder.Number_of_files(), 1) << "nothing is left behind";
    EXPECT_EQ(files.Find(path), path);
    EXPECT_EQ(files.Find(none), std::nullopt);
    EXPECT_TRUE(files.Full_path("b").ends_with("b"));
    EXPECT_EQ(files.Full_path(files.Full_path("b")), files.Full_path("b"));
    EXPECT_TRUE(files.Is_same_file(path, folder / "./K\xC3\xBCste 1.TDM"));
    EXPECT_FALSE(files.Is_same_file(path, none));
    EXPECT_EQ(files.Size(path), 5U);
    EXPECT_EQ(files.Size(none), std::nullopt);

    std::string bytes = "as before";
    EXPECT_EQ(files.Read(path, 4, bytes).Reason(), "File too large");
    EXPECT_EQ(files.Read(none, 4, bytes).Reason(), "No such file or directory");
    EXPECT_EQ(files.Read(folder.Path(), 4, bytes).Reason(), "Is a directory");
    EXPECT_EQ(bytes, "as before");
    EXPECT_TRUE(files.Read(path, 5, bytes));
    EXPECT_EQ(bytes, "12345");

    EXPECT_TRUE(files.Read_start(path, 2, bytes));
    EXPECT_EQ(bytes, "12");

    namespace fs = std::filesystem;
    for (const char* const name : {"one name", ".tidemark-left0A"}) Write_file(folder / name, "");
    fs::create_hard_link(folder / "one name", folder / "another");
    fs::last_write_time(folder / ".tidemark-left0A",
                        fs::file_time_type::clock::now() - std::chrono::hours(1));
    EXPECT_TRUE(files.Replace(folder / "another", "both"));
    EXPECT_EQ(File_content(folder / "one name"), "both");
    EXPECT_EQ(folder.Number_of_files(), 3) << "what a killed save has left is removed";

    EXPECT_EQ(files.Replace(none, "x").Reason(), "No such file or directory");
    EXPECT_EQ(files.Replace(folder.Path(), "x").Reason(), "Is a directory");
    EXPECT_EQ(files.Replace(std::string("a\0b", 3), "x").Reason(), "Invalid argument");

    EXPECT_TRUE(files.Delete(path));
    EXPECT_EQ(files.Delete(path).Reason(), "No such file or directory");
    EXPECT_FALSE(files.Delete(folder.Path())) << "a folder is not a file";
}

}  // namespace tidemark
